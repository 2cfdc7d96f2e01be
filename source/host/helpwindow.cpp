#include "helpwindow.h"

#include "helptexts.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace host {

namespace {
constexpr int kWidth = 460;
constexpr int kHeight = 420;
} // namespace

HelpWindow::HelpWindow(QWidget* parent) : QDialog(parent), m_text(new QTextBrowser)
{
    setObjectName(QStringLiteral("helpWindow"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_text->setObjectName(QStringLiteral("helpText"));
    m_text->setOpenLinks(false);
    auto* const buttons = new QDialogButtonBox;
    QPushButton* const close = buttons->addButton(tr("关闭(&C)"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("close"));
    close->setDefault(true);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(buttons);
    resize(kWidth, kHeight);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
}

void HelpWindow::showFor(QWidget* window, int)
{
    // As a child of the dialog it belongs to, the window is not blocked by that dialog.
    HelpWindow* help = qobject_cast<HelpWindow*>(window);
    if (!help && window)
        help = window->findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!help)
        help = new HelpWindow(window);
    if (help != window)
        help->showTopic(window ? window->objectName() : QString());
    help->show();
    help->raise();
    help->activateWindow();
}

void HelpWindow::showTopic(const QString& dialogName)
{
    const HelpText text = helpText(dialogName);
    setWindowTitle(tr("帮助 - %1").arg(text.title));
    m_text->setHtml(text.html);
}

} // namespace host
