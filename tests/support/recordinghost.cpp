#include "recordinghost.h"
#include "valuetree.h"

#include "hostcodes.h"
#include "trees.h"
#include "vnstrings.h"

#include <QtTest>

namespace {

constexpr int kButtonBits = 0x0F;
constexpr const char* kButtonKeys[] = {"btnText/0", "btnText/1", "btnText/2", "btnText/3"};

QString line(std::initializer_list<QString> parts)
{
    return QStringList(parts).join(QLatin1Char('|'));
}

QString plain(const OdString& text)
{
    return vnsi::vnutOdStringToQString(text);
}

QStringList customButtons(const vnsi::VnJsonPtr& options)
{
    QStringList texts;
    for (const char* key : kButtonKeys) {
        if (options && host::hasKey(options, key))
            texts.append(plain(options->GetDataSW(key)));
    }
    return texts;
}

} // namespace

RecordingHost::RecordingHost() : m_previous(host::setHostFrontEnd(this)) {}

RecordingHost::~RecordingHost()
{
    host::setHostFrontEnd(m_previous);
    if (!m_answers.isEmpty())
        QTest::qFail("fewer questions were asked than were answered", __FILE__, __LINE__);
}

void RecordingHost::answer(int value, const QString& json)
{
    m_answers.enqueue([value, json](const vnsi::VnJsonPtr& tree) {
        if (tree)
            merge(tree, json);
        return value;
    });
}

void RecordingHost::answer(const Answer& answer)
{
    m_answers.enqueue(answer);
}

int RecordingHost::messageBox(const OdString& text, const OdString& caption, int style)
{
    note(line({"message", plain(text), plain(caption), QString::number(style)}));
    return (style & kButtonBits) == vnsi::kVnOk ? vnsi::kVnAnswerOk : take({});
}

int RecordingHost::messageBoxEx(const OdString& caption, const OdString& text,
    const vnsi::VnJsonPtr& options, int style, int code, int icon)
{
    QStringList parts{"messageEx", plain(caption), plain(text), QString::number(style),
        QString::number(code), QString::number(icon)};
    const QStringList custom = customButtons(options);
    note((parts + custom).join(QLatin1Char('|')));
    const int buttons = style & kButtonBits;
    if (buttons == vnsi::kVnCustomButtons && custom.size() == 1)
        return 0;
    return buttons == vnsi::kVnOk ? vnsi::kVnAnswerOk : take({});
}

int RecordingHost::taskDialog(const host::TaskQuestion& question)
{
    QStringList commands;
    for (const auto& [id, text] : question.commands)
        commands.append(QString::number(id) + QLatin1Char('=') + plain(text));
    note(line({"task", plain(question.title), plain(question.instruction),
        commands.join(QLatin1Char(';'))}));
    return take({});
}

int RecordingHost::showDialog(const OdString& service, const OdString& name,
    const vnsi::VnJsonPtr& tree, const OdRxObjectPtr& invoker, QWidget* parent)
{
    const QString json = m_logsTrees ? toText(tree) : QString();
    note(line({"dialog", plain(service), plain(name), json}));
    if (m_passed.contains(plain(name)))
        return HostFrontEnd::showDialog(service, name, tree, invoker, parent);
    return take(tree);
}

void RecordingHost::help(int topic)
{
    note(line({"help", QString::number(topic)}));
}

int RecordingHost::take(const vnsi::VnJsonPtr& tree)
{
    if (!m_answers.isEmpty())
        return m_answers.dequeue()(tree);
    QTest::qFail(qPrintable("nothing answers: " + m_log.last()), __FILE__, __LINE__);
    return vnsi::kVnAnswerCancel;
}
