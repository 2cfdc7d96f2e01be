#include "RxObjectImpl.h"
#include "hostapi/hostcalls.h"
#include "hostcodes.h"
#include "hoststart.h"
#include "recordinghost.h"
#include "recordinginvoker.h"
#include "rows.h"
#include "trees.h"
#include "vornqt.h"

#include <QJsonDocument>
#include <QLoggingCategory>

#include <stdexcept>

using namespace vnsi;

namespace {

using Answer = RecordingInvoker::Answer;

QStringList loggedLines;

void keepLine(QtMsgType, const QMessageLogContext& context, const QString& text)
{
    if (qstrcmp(context.category, "quenlith.layers.requests") == 0)
        loggedLines.append(text);
}

class Bystander : public OdRxObject
{
};

class Thrower : public VnUiDialogInvoker
{
    void invoke(VnJsonPtr) override { throw 4; }
};

VnQtAnswer ask(const VnJsonPtr& node, const OdRxObjectPtr& invoker, const VnQtRequest& request,
    const VnQtArgumentWriter& write = {}, const char* dialogName = "probe")
{
    return vnqtAsk(node, OdRxObjectImpl<VnQtCommandInvoker>::createObject(invoker), dialogName,
        request, write);
}

/// A host that fails whatever it is asked.
class BrokenHost : public host::HostFrontEnd
{
public:
    BrokenHost() : m_previous(host::setHostFrontEnd(this)) {}
    ~BrokenHost() override { host::setHostFrontEnd(m_previous); }

    int messageBox(const OdString&, const OdString&, int) override { throw 1; }
    int messageBoxEx(const OdString&, const OdString&, const VnJsonPtr&, int, int, int) override
    {
        throw std::runtime_error("broken");
    }
    int taskDialog(const host::TaskQuestion&) override { throw OdError_InvalidIndex(); }
    int showDialog(
        const OdString&, const OdString&, const VnJsonPtr&, const OdRxObjectPtr&, QWidget*) override
    {
        throw 2;
    }
    void help(int) override { throw 3; }

private:
    host::HostFrontEnd* m_previous;
};

} // namespace

Q_DECLARE_METATYPE(OdRxObjectPtr)

class TestRequests : public QObject
{
    Q_OBJECT

private slots:
    void writesEnvelopeAndClearsAnswers()
    {
        RecordingHost host;
        const VnJsonPtr root = tree(R"({"IsExistBlock":true,"marker":9,"parameter":"old"})");
        const auto invoker = RecordingInvoker::create(host, {});
        VnQtRequest request{6, {"IsExistBlock"}};
        request.parameter = 2;
        QVERIFY(bool(ask(root, invoker, request, [](IElementValueBase& node) {
            node.SetDataSW("LStateName", L"a");
            node.SetDataB("IsExistBlock", true);
        })));
        QCOMPARE(host.log(), (QStringList{"request|6|2|{\"IsExistBlock\":false,"
                                          "\"LStateName\":\"a\",\"marker\":6,\"parameter\":2}"}));
        QVERIFY(!root->GetDataB("IsExistBlock", true));
    }

    void handsOverOtherCodeKeyAndTree()
    {
        RecordingHost host;
        const VnJsonPtr root = tree("{}");
        const auto invoker = RecordingInvoker::create(host, {"layTransUserType"});
        invoker->setMarkerKey("layTransUserType");
        VnQtRequest request{5};
        request.codeKey = "layTransUserType";
        request.parameterTree = tree(R"({"deep":1})");
        ask(root, invoker, request);
        QCOMPARE(toText(root), R"({"layTransUserType":5,"parameter":{"deep":1}})");
        QCOMPARE(host.log(), QStringList{R"(request|5|-1|{"layTransUserType":5})"});
    }

    void readsAnswerWhereItAsked_data()
    {
        const Rows<Answer> row("meddle");
        row("nothing", [](const VnJsonPtr&) {});
        row("replaces", [](const VnJsonPtr& root) {
            root->SetDataJ("LayerStateMgr", tree(R"([{},{"ok":false}])"));
        });
        row("removes",
            [](const VnJsonPtr& root) { hostextras::removeKey(*root, "LayerStateMgr"); });
        row("empties", [](const VnJsonPtr& root) {
            host::clear(*root->GetDataJ("LayerStateMgr"));
            host::clear(*root);
        });
    }

    void readsAnswerWhereItAsked()
    {
        QFETCH(Answer, meddle);
        RecordingHost host;
        const VnJsonPtr root = tree(R"({"LayerStateMgr":[{},{"ok":false,"other":true}]})");
        const auto invoker = RecordingInvoker::create(host, {"marker"}, [&](const VnJsonPtr& node) {
            node->SetDataB("ok", true);
            meddle(root);
        });
        const VnQtAnswer answer = ask(root->GetDataJ("LayerStateMgr")(1), invoker, {5, {"ok"}});
        QVERIFY(answer && answer->GetDataB("ok"));
        QVERIFY(answer->GetDataB("other")); // The answer of another request.
    }

    /// Nothing is written, and the remainder of an earlier answer does not count.
    void skipsWithoutPartner_data()
    {
        const Rows<bool, OdRxObjectPtr> row("hasTree", "invoker");
        row("nobody", true, {});
        row("not a call-back object", true, OdRxObjectImpl<Bystander>::createObject());
        row("no tree", false, OdRxObjectImpl<VnUiDialogInvoker>::createObject());
    }

    void skipsWithoutPartner()
    {
        QFETCH(bool, hasTree);
        QFETCH(OdRxObjectPtr, invoker);
        const VnJsonPtr root = tree(R"({"answer":true})");
        bool hasWritten = false;
        const VnQtAnswer answer = ask(hasTree ? root : VnJsonPtr(), invoker, {6, {"answer"}},
            [&](IElementValueBase&) { hasWritten = true; });
        QVERIFY(!answer && !hasWritten && !answer->GetDataB("answer"));
        QCOMPARE(toText(root), R"({"answer":true})");
    }

    void silentCommandLeavesDefaults()
    {
        const VnJsonPtr root = tree(R"({"answer":true})");
        const OdRxObjectPtr silent = OdRxObjectImpl<VnUiDialogInvoker>::createObject();
        QVERIFY(!ask(root, silent, {6, {"answer"}})->GetDataB("answer"));
    }

    void reportsWhatCommandThrows_data()
    {
        const Rows<Answer, QString> row("fail", "cause");
        const auto standard = [](const VnJsonPtr&) { throw std::runtime_error("磁盘已满"); };
        const auto platform = [](const VnJsonPtr&) { throw OdError_InvalidIndex(); };
        const auto anything = [](const VnJsonPtr&) { throw 1; };
        row("standard", standard, "磁盘已满");
        row("platform", platform, "Index outside the array");
        row("anything", anything, "未知");
    }

    void reportsWhatCommandThrows()
    {
        QFETCH(Answer, fail);
        QFETCH(QString, cause);
        RecordingHost host;
        const VnJsonPtr root = tree("{}");
        const auto invoker = RecordingInvoker::create(host, {"marker"}, [&](const VnJsonPtr& node) {
            node->SetDataB("answer", true); // An incomplete answer does not count.
            fail(node);
        });
        const VnQtAnswer answer = ask(root, invoker, {6, {"answer"}});
        QVERIFY(!answer && !answer->GetDataB("answer") && !root->GetDataB("answer"));
        QCOMPARE(host.log().size(), 2);
        QVERIFY2(host.log().last().startsWith("message|") && host.log().last().contains(cause) &&
                     host.log().last().endsWith("|Quenlith|48"),
            qPrintable(host.log().last()));
    }

    void countsWhatTheHostThrowsAsCancelled()
    {
        host::Host services;
        const BrokenHost broken;
        const VnJsonPtr question = tree(R"({"result":1})");
        QCOMPARE(hostapi::messageBox({}, {}, kVnYesNo), 0);
        QCOMPARE(hostapi::messageBoxEx({}, {}, {}, kVnCustomButtons, 1, 0, 3), 3);
        QCOMPARE(hostapi::taskDialog({}, {}, {{101, QStringLiteral("a")}}), 2);
        QCOMPARE(hostapi::showDialog(L"s", L"d", question)->GetDataI("result"), 0);
        QCOMPARE(hostapi::showDialogEx(L"s", L"d", {}, {}, nullptr)->GetDataI("result", -1), -1);
        hostapi::showHelp();
        QVERIFY(!ask(tree("{}"), OdRxObjectImpl<Thrower>::createObject(), {6}));
    }

    void logsJsonLines()
    {
        const QString name = "\"WALL\"\n%1 %s\\图层";
        RecordingHost host;
        const VnJsonPtr root = tree("{}");
        const auto invoker = RecordingInvoker::create(
            host, {"marker"}, [](const VnJsonPtr& node) { node->SetDataI("answer", 7); });
        const auto send = [&] {
            ask(
                root, invoker, {6, {"answer"}},
                [&](IElementValueBase& node) {
                    node.SetDataSW("name", name.toStdWString().c_str());
                },
                "Dialog_CmdLaydel");
        };
        const QtMessageHandler previous = qInstallMessageHandler(keepLine);
        send();
        QLoggingCategory::setFilterRules("quenlith.layers.requests.debug=true");
        send();
        QLoggingCategory::setFilterRules({});
        send();
        qInstallMessageHandler(previous);

        QCOMPARE(loggedLines.size(), 1); // Silent by default.
        QVERIFY(!loggedLines.first().contains('\n'));
        const QJsonObject line = QJsonDocument::fromJson(loggedLines.first().toUtf8()).object();
        QCOMPARE(line["dialog"].toString(), "Dialog_CmdLaydel");
        QCOMPARE(line["code"].toInt(), 6);
        QCOMPARE(line["before"]["name"].toString(), name);
        QCOMPARE(line["before"]["answer"], QJsonValue(false));
        QCOMPARE(line["after"]["answer"].toInt(), 7);
    }
};

QTEST_MAIN(TestRequests)
#include "tst_requests.moc"
