#include "taskdialog.h"

#include "hostfrontend.h"
#include "readable.h"
#include "vnmessages.h"
#include "vnrequests.h"
#include "vnstrings.h"

#include <QCommandLinkButton>
#include <QLabel>
#include <QVBoxLayout>

namespace host {

namespace {
constexpr int kWidth = 440;
constexpr double kInstructionScale = 1.25;
} // namespace

TaskDialog::TaskDialog(const vnsi::CVnUiTaskDialog& content, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("taskDialog"));
    setWindowTitle(vnsi::vnutOdStringToQString(content.windowTitle()));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    auto* const instruction =
        new QLabel(readable(vnsi::vnutOdStringToQString(content.mainInstruction())));
    instruction->setObjectName(QStringLiteral("mainInstruction"));
    instruction->setTextFormat(Qt::PlainText);
    instruction->setWordWrap(true);
    QFont large = instruction->font();
    large.setPointSizeF(large.pointSizeF() * kInstructionScale);
    instruction->setFont(large);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->addWidget(instruction);
    layout->addSpacing(8);
    for (const auto& [id, text] : content.commands()) {
        auto* const button = new QCommandLinkButton(vnsi::vnutOdStringToQString(text));
        button->setObjectName(QStringLiteral("command%1").arg(id));
        const int answerOfButton = id;
        connect(button, &QCommandLinkButton::clicked, this,
            [this, answerOfButton] { choose(answerOfButton); });
        layout->addWidget(button);
    }
    setMinimumWidth(kWidth);
}

void TaskDialog::choose(int id)
{
    m_answer = id;
    accept();
}

} // namespace host

int vnsi::CVnUiTaskDialog::DoModal()
{
    return vnedIsRunningInUI() ? host::hostFrontEnd().taskDialog(*this) : kVnAnswerCancel;
}
