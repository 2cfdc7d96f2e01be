#include "taskdialog.h"

#include "hostcodes.h"
#include "hostfrontend.h"
#include "readable.h"
#include "vnrequests.h"
#include "vnstrings.h"
#include "vntaskdialog.h"

#include <QCommandLinkButton>
#include <QLabel>
#include <QVBoxLayout>

namespace host {

namespace {
constexpr int kWidth = 440;
constexpr double kInstructionScale = 1.25;
} // namespace

TaskDialog::TaskDialog(const TaskQuestion& question, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("taskDialog"));
    setWindowTitle(vnsi::vnutOdStringToQString(question.title));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    auto* const instruction =
        new QLabel(readable(vnsi::vnutOdStringToQString(question.instruction)));
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
    for (const auto& [id, text] : question.commands) {
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

namespace vnsi {

CVnUiTaskDialog::CVnUiTaskDialog() : m_question(std::make_unique<host::TaskQuestion>()) {}

CVnUiTaskDialog::~CVnUiTaskDialog() = default;

void CVnUiTaskDialog::SetWindowTitle(const OdString& text)
{
    m_question->title = text;
}

void CVnUiTaskDialog::SetMainInstruction(const OdString& text)
{
    m_question->instruction = text;
}

void CVnUiTaskDialog::AddCommandControl(int id, const OdString& text)
{
    m_question->commands.emplace_back(id, text);
}

int CVnUiTaskDialog::DoModal()
{
    return vnedIsRunningInUI() ? host::hostFrontEnd().taskDialog(*m_question) : kVnAnswerCancel;
}

} // namespace vnsi
