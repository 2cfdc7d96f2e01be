#include "dialogpresser.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QTableView>

namespace {

using Act = std::function<void()>;
using Acts = std::vector<Act>;

constexpr int kRowsTried = 3;
constexpr int kActsInPopups = 3;
constexpr int kDeepestPopup = 3;
constexpr const char* kTexts[] = {"", "墙", "新层", "a<b|c", "*", "[~x", "   "};

void sendMouse(QWidget& widget, QEvent::Type type, const QPoint& at)
{
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, Qt::LeftButton, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void click(QWidget& target, const QPoint& at, bool twice)
{
    const QPointer<QWidget> widget(&target);
    using Type = QEvent::Type;
    for (const Type type : {Type::MouseButtonPress, Type::MouseButtonRelease,
             Type::MouseButtonDblClick, Type::MouseButtonRelease}) {
        if (!widget || (!twice && type == Type::MouseButtonDblClick))
            return;
        sendMouse(*widget, type, at);
    }
}

void pressKey(QWidget& target, Qt::Key key)
{
    const QPointer<QWidget> widget(&target);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (!widget)
            return;
        QKeyEvent event(type, key, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
}

void type(QLineEdit& edit, const char* text)
{
    const QPointer<QLineEdit> guarded(&edit);
    edit.selectAll();
    edit.insert(QString::fromUtf8(text)); // Inserting emits the same signals as typing.
    if (guarded)
        pressKey(edit, Qt::Key_Return);
}

void addEdit(QLineEdit& edit, Acts& acts)
{
    for (const char* text : kTexts)
        acts.push_back([&edit, text] { type(edit, text); });
}

void addCombo(QComboBox& combo, Acts& acts)
{
    for (int i = 0; i < std::min(combo.count(), kRowsTried); ++i)
        acts.push_back([&combo, i] {
            const QPointer<QComboBox> guarded(&combo);
            combo.setCurrentIndex(i);
            if (guarded)
                emit combo.activated(i);
        });
    if (combo.isEditable())
        addEdit(*combo.lineEdit(), acts);
    acts.push_back([&combo] {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3));
        QApplication::sendEvent(&combo, &event);
    });
}

void addHeader(QHeaderView& header, Acts& acts)
{
    for (int i = 0; i < header.count(); ++i)
        acts.push_back([&header, i] {
            click(*header.viewport(), QPoint(header.sectionViewportPosition(i) + 8, 4), false);
        });
}

void addView(QAbstractItemView& view, Acts& acts)
{
    const auto cell = [&view](int row, int column) {
        const QModelIndex index = view.model()->index(row, column);
        view.scrollTo(index);
        return view.visualRect(index).center();
    };
    for (int row = 0; row < std::min(view.model()->rowCount(), kRowsTried); ++row) {
        for (int column = 0; column < view.model()->columnCount(); ++column)
            for (const bool twice : {false, true})
                acts.push_back([&view, cell, row, column, twice] {
                    click(*view.viewport(), cell(row, column), twice);
                });
    }
    acts.push_back([&view] { view.selectAll(); });
    acts.push_back([&view] { view.clearSelection(); });
    acts.push_back([&view] { pressKey(view, Qt::Key_Delete); });
    acts.push_back([&view, cell] {
        const QPoint at = cell(0, 0);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, view.viewport()->mapToGlobal(at));
        QApplication::sendEvent(view.viewport(), &event);
    });
}

void addActsOf(QWidget& widget, Acts& acts)
{
    if (auto* const button = qobject_cast<QAbstractButton*>(&widget))
        acts.push_back([button] { button->click(); });
    else if (auto* const header = qobject_cast<QHeaderView*>(&widget))
        addHeader(*header, acts);
    else if (auto* const view = qobject_cast<QAbstractItemView*>(&widget))
        addView(*view, acts);
    else if (auto* const combo = qobject_cast<QComboBox*>(&widget))
        addCombo(*combo, acts);
    else if (auto* const edit = qobject_cast<QLineEdit*>(&widget);
             edit && !qobject_cast<QComboBox*>(edit->parent()))
        addEdit(*edit, acts);
}

} // namespace

Acts actsIn(QWidget& window)
{
    Acts acts;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisibleTo(&window) && widget->isEnabled() && widget->window() == &window)
            addActsOf(*widget, acts);
    }
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return})
        acts.push_back([&window, key] { pressKey(window, key); });
    return acts;
}

PopupAnswerer::PopupAnswerer(Choice choose) : m_choose(std::move(choose))
{
    qApp->installEventFilter(this);
}

bool PopupAnswerer::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Show)
        return false;
    if (const QPointer<QMenu> menu = qobject_cast<QMenu*>(object))
        QMetaObject::invokeMethod(
            this, [this, menu] { menu ? answer(*menu) : void(); }, Qt::QueuedConnection);
    const QPointer<QDialog> dialog = qobject_cast<QDialog*>(object);
    if (dialog && dialog->isModal())
        QMetaObject::invokeMethod(
            this, [this, dialog] { dialog ? answer(*dialog) : void(); }, Qt::QueuedConnection);
    return false;
}

void PopupAnswerer::answer(QMenu& menu) const
{
    const QPointer<QMenu> guarded(&menu);
    const QList<QAction*> entries = menu.actions();
    if (!entries.isEmpty()) {
        menu.setActiveAction(entries[m_choose(entries.size())]);
        pressKey(menu, Qt::Key_Return);
    }
    if (guarded)
        guarded->close();
}

void PopupAnswerer::answer(QDialog& dialog)
{
    const QPointer<QDialog> guarded(&dialog);
    ++m_depth;
    for (int i = 0; i < kActsInPopups && m_depth <= kDeepestPopup; ++i) {
        if (!guarded || !guarded->isVisible())
            break;
        const Acts acts = actsIn(*guarded);
        acts[static_cast<std::size_t>(m_choose(static_cast<int>(acts.size())))]();
    }
    --m_depth;
    if (guarded && guarded->isVisible())
        guarded->reject();
}
