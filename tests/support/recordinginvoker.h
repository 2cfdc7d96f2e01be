#pragma once

#include "RxObjectImpl.h"
#include "vndialogs.h"

#include <QMetaType>
#include <QStringList>

#include <functional>
#include <string>

class RecordingHost;

/// A command that records each request in the log of a recording host and answers it with a
/// function.
class RecordingInvoker : public vnsi::VnUiDialogInvoker
{
public:
    using Answer = std::function<void(const vnsi::VnJsonPtr& tree)>;
    using Ptr = OdSmartPtr<RecordingInvoker>;

    /// `keys` are the members that are recorded with each request; empty for the whole tree.
    static Ptr create(RecordingHost& host, const QStringList& keys, Answer answer = {});
    RecordingInvoker(RecordingHost& host, QStringList keys, Answer answer);

    /// Sets the key of the request code when it is not "marker".
    void setMarkerKey(const char* key) { m_markerKey = key; }
    void setAnswer(Answer answer) { m_answer = std::move(answer); }

    void invoke(vnsi::VnJsonPtr tree) override;

private:
    RecordingHost& m_host;
    QStringList m_keys;
    Answer m_answer;
    std::string m_markerKey = "marker";
};

Q_DECLARE_METATYPE(RecordingInvoker::Answer)
