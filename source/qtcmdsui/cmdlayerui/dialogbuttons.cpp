#include "dialogbuttons.h"

#include "moduletexts.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

namespace vnsi {

namespace {

struct ButtonRow
{
    QPushButton* OkCancelHelp::*button;
    const char* text;
    const char* objectName;
};

constexpr ButtonRow kButtons[] = {
    {&OkCancelHelp::ok, QT_TRANSLATE_NOOP("cmdlayerui", "确定"), "okButton"},
    {&OkCancelHelp::cancel, QT_TRANSLATE_NOOP("cmdlayerui", "取消"), "cancelButton"},
    {&OkCancelHelp::help, QT_TRANSLATE_NOOP("cmdlayerui", "帮助(&H)"), "helpButton"},
};

} // namespace

QBoxLayout* makeButtonRow(QDialog& dialog, OkCancelHelp& buttons)
{
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (const ButtonRow& description : kButtons) {
        auto* button = new QPushButton(Texts::tr(description.text), &dialog);
        button->setObjectName(QLatin1String(description.objectName));
        row->addWidget(button);
        buttons.*description.button = button;
    }
    buttons.ok->setDefault(true);
    return row;
}

QSize atLeastItsText(const QSize& agreed, const QPushButton& button)
{
    const QSize text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
    return agreed.expandedTo(text.grownBy({8, 1, 8, 1}));
}

} // namespace vnsi
