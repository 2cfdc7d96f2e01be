#include "helpwindow.h"

#include "helptexts.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QImage>
#include <QKeyEvent>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 560;
constexpr int kWidestPicture = 580;

/// Limits pictures to the initial width of the window.
class Pages : public QTextBrowser
{
protected:
    QVariant loadResource(int type, const QUrl& name) override
    {
        QVariant resource = QTextBrowser::loadResource(type, name);
        if (type != QTextDocument::ImageResource)
            return resource;
        const QImage picture = QImage::fromData(resource.toByteArray());
        return picture.width() > kWidestPicture
                   ? picture.scaledToWidth(kWidestPicture, Qt::SmoothTransformation)
                   : picture;
    }
};

} // namespace

HelpWindow::HelpWindow(QWidget* parent) : QDialog(parent), m_text(new Pages)
{
    setObjectName(QStringLiteral("helpWindow"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_text->setObjectName(QStringLiteral("helpText"));
    m_text->setAccessibleName(tr("帮助"));
    auto* const buttons = new QDialogButtonBox;
    QPushButton* const close = buttons->addButton(tr("关闭(&C)"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("close"));
    close->setDefault(true);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(buttons);
    resize(kWidth, kHeight);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    connect(m_text, &QTextBrowser::sourceChanged, this, &HelpWindow::showTitle);
}

void HelpWindow::showFor(QWidget* window, int)
{
    // As a child of the dialog, the help window is not blocked by it.
    HelpWindow* help = qobject_cast<HelpWindow*>(window);
    QWidget* const owner = window ? window->window() : nullptr;
    if (!help && owner)
        help = owner->findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!help)
        help = new HelpWindow(owner);
    if (help != window)
        help->m_text->setSource(helpPage(window));
    help->show();
    help->raise();
    help->activateWindow();
}

/// Shows the title, which is the first block of every page.
void HelpWindow::showTitle()
{
    setWindowTitle(tr("帮助 - %1").arg(m_text->document()->firstBlock().text()));
}

HelpKey::HelpKey()
{
    if (QCoreApplication* const application = QCoreApplication::instance())
        application->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !object->isWidgetType() ||
        !static_cast<QKeyEvent*>(event)->matches(QKeySequence::HelpContents))
        return false;
    auto* const widget = static_cast<QWidget*>(object);
    const bool isHelp = qobject_cast<HelpWindow*>(widget->window());
    HelpWindow::showFor(isHelp ? widget->window() : widget, 0);
    return true;
}

} // namespace host
