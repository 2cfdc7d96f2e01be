#include "messagebox.h"

#include "hostcodes.h"
#include "hostfrontend.h"
#include "hosttexts.h"
#include "hostwindows.h"
#include "readable.h"
#include "valuetree.h"
#include "vnmessages.h"
#include "vnrequests.h"
#include "vnstrings.h"

#include <QMessageBox>
#include <QPushButton>

#include <vector>

namespace host {

namespace {

constexpr int kButtonBits = 0x0F;
constexpr int kIconBits = 0xF0;
constexpr const char* kCustomTextKeys[] = {"btnText/0", "btnText/1", "btnText/2", "btnText/3"};

struct Button
{
    QString text;
    QMessageBox::ButtonRole role;
    int answer;
};

std::vector<Button> customButtons(const vnsi::VnJsonPtr& options)
{
    std::vector<Button> buttons;
    int position = 0;
    for (const char* key : kCustomTextKeys) {
        if (hasKey(options, key)) {
            const QString text = vnsi::vnutOdStringToQString(options->GetDataSW(key));
            buttons.push_back({text, QMessageBox::ActionRole, position});
        }
        ++position;
    }
    return buttons;
}

/// The buttons of a style in their order. The last one cancels.
std::vector<Button> buttonsOf(const Message& message)
{
    const Button ok{Texts::tr("确定"), QMessageBox::AcceptRole, vnsi::kVnAnswerOk};
    std::vector<Button> custom;
    switch (message.style & kButtonBits) {
    case vnsi::kVnOkCancel:
        return {ok, {Texts::tr("取消"), QMessageBox::RejectRole, vnsi::kVnAnswerCancel}};
    case vnsi::kVnYesNo:
        return {{Texts::tr("是(&Y)"), QMessageBox::YesRole, vnsi::kVnAnswerYes},
            {Texts::tr("否(&N)"), QMessageBox::NoRole, vnsi::kVnAnswerNo}};
    case vnsi::kVnCustomButtons:
        custom = customButtons(message.options);
        return custom.empty() ? std::vector<Button>{ok} : custom;
    default:
        return {ok};
    }
}

QMessageBox::Icon iconOf(int code)
{
    switch (code & kIconBits) {
    case 0:
        return QMessageBox::NoIcon;
    case 16:
        return QMessageBox::Critical;
    case vnsi::kVnIconQuestion:
        return QMessageBox::Question;
    case vnsi::kVnIconInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::Warning; // Style 80 has no icon of its own and is a warning.
    }
}

} // namespace

int showMessageBox(const Message& message)
{
    QMessageBox box(currentWindow());
    box.setObjectName(QStringLiteral("messageBox"));
    box.setWindowTitle(vnsi::vnutOdStringToQString(message.caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(readable(vnsi::vnutOdStringToQString(message.text)));
    box.setIcon(iconOf(message.icon));

    const std::vector<Button> buttons = buttonsOf(message);
    const int last = static_cast<int>(buttons.size()) - 1;
    const int byDefault = message.defaultButton - 1;
    std::vector<QAbstractButton*> made;
    for (const Button& button : buttons) {
        QPushButton* const widget = box.addButton(button.text, button.role);
        made.push_back(widget);
        if (made.size() == static_cast<std::size_t>(byDefault) + 1)
            box.setDefaultButton(widget);
    }
    box.setEscapeButton(made[static_cast<std::size_t>(last)]);
    box.exec();

    for (std::size_t i = 0; i < made.size(); ++i) {
        if (box.clickedButton() == made[i])
            return buttons[i].answer;
    }
    return buttons.back().answer;
}

} // namespace host

namespace vnsi {

int vnuiMessageBox(const OdString& text, const OdString& caption, int style)
{
    return vnedIsRunningInUI() ? host::hostFrontEnd().messageBox(text, caption, style) : 0;
}

VnJsonPtr vnuiMessageBoxEx(const OdString& caption, const OdString& text, const VnJsonPtr& options,
    int style, int code, int icon)
{
    VnJsonPtr answer = ElementValue::createObject(1);
    if (vnedIsRunningInUI())
        answer->SetDataI("ControlBtn",
            host::hostFrontEnd().messageBoxEx(caption, text, options, style, code, icon));
    return answer;
}

} // namespace vnsi
