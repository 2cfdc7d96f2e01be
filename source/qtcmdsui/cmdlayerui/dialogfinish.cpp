#include "dialoghelp.h"
#include "vornqt.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QShortcut>
#include <QTextDocument>
#include <QTextDocumentFragment>

namespace vnsi {

namespace {

QString plainText(const QLabel& label)
{
    if (label.textFormat() != Qt::PlainText && Qt::mightBeRichText(label.text()))
        return QTextDocumentFragment::fromHtml(label.text()).toPlainText();
    return label.text();
}

/// What a label or a group box calls its field: without the letter and the colon.
QString nameIn(QString text)
{
    static const QRegularExpression decoration(QStringLiteral("\\(&?[A-Z]\\)|[:：]?\\s*$"));
    return text.remove(decoration);
}

QKeySequence plainLetter(const QString& text)
{
    static const QRegularExpression brackets(QStringLiteral("\\(([A-Z])\\)"));
    const QString letter = brackets.match(text).captured(1);
    return letter.isEmpty() ? QKeySequence() : QKeySequence(QStringLiteral("Alt+") + letter);
}

void nameUnnamed(QWidget& widget, const QString& name)
{
    if (widget.accessibleName().isEmpty())
        widget.setAccessibleName(name);
}

/// The shortcut belongs to the field, so there is one however often this is done.
void goToByKey(QWidget& field, const QKeySequence& key)
{
    const auto name = QStringLiteral("letterKey");
    if (key.isEmpty() || field.findChild<QShortcut*>(name, Qt::FindDirectChildrenOnly))
        return;
    auto* const shortcut = new QShortcut(key, &field);
    shortcut->setObjectName(name);
    QObject::connect(shortcut, &QShortcut::activated, &field,
        [&field] { field.setFocus(Qt::ShortcutFocusReason); });
}

void useLabels(const QDialog& dialog)
{
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        if (!label->buddy())
            continue;
        const QString text = plainText(*label);
        nameUnnamed(*label->buddy(), nameIn(text));
        goToByKey(*label->buddy(), plainLetter(text));
    }
}

void nameByGroups(const QDialog& dialog)
{
    for (QAbstractItemView* view : dialog.findChildren<QAbstractItemView*>()) {
        if (const auto* group = qobject_cast<QGroupBox*>(view->parentWidget()))
            nameUnnamed(*view, nameIn(group->title()));
    }
}

/// The line has the focus in its box's place.
void nameEditLines(const QDialog& dialog)
{
    for (const QComboBox* box : dialog.findChildren<QComboBox*>()) {
        if (box->isEditable())
            nameUnnamed(*box->lineEdit(), box->accessibleName());
    }
}

void giveHelpKey(QDialog& dialog)
{
    const auto name = QStringLiteral("helpKey");
    if (dialog.findChild<QShortcut*>(name, Qt::FindDirectChildrenOnly))
        return;
    auto* const key = new QShortcut(QKeySequence(QKeySequence::HelpContents), &dialog);
    key->setObjectName(name);
    key->setAutoRepeat(false);
    QObject::connect(key, &QShortcut::activated, &dialog, vnqtShowHelp);
}

} // namespace

void vnqtFinishDialog(QDialog& dialog)
{
    useLabels(dialog);
    nameByGroups(dialog);
    nameEditLines(dialog);
    giveHelpKey(dialog);
}

} // namespace vnsi
