#include "RxObjectImpl.h"
#include "recordinghost.h"
#include "recordinginvoker.h"
#include "rows.h"
#include "trees.h"
#include "vornqt.h"

#include <QJsonDocument>
#include <QLoggingCategory>
#include <QtTest>

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

} // namespace

Q_DECLARE_METATYPE(RecordingInvoker::Answer)

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
        QVERIFY(vnqtSendRequest(root, invoker, "probe", request, [](IElementValueBase& node) {
            node.set("LStateName", L"a").set("IsExistBlock", true);
        }));
        QCOMPARE(host.log(), (QStringList{"request|6|2|{\"IsExistBlock\":false,"
                                          "\"LStateName\":\"a\",\"marker\":6,\"parameter\":2}"}));
        QVERIFY(!root->GetDataB("IsExistBlock", true));
    }

    void readsAnswerOfSameTree()
    {
        RecordingHost host;
        const VnJsonPtr root = tree("{}");
        const auto invoker = RecordingInvoker::create(host, {"layTransUserType"},
            [&](const VnJsonPtr& node) { node->SetDataB("done", node == root); });
        invoker->setMarkerKey("layTransUserType");
        VnQtRequest request{5, {"done"}};
        request.codeKey = "layTransUserType";
        request.parameterTree = tree(R"({"deep":1})");
        QVERIFY(vnqtSendRequest(root, invoker, "probe", request, {}));
        QVERIFY(root->GetDataB("done"));
        QCOMPARE(root->GetDataI("parameter/deep"), 1);
        QVERIFY(!root->HasKey("marker"));
        QCOMPARE(host.log(), QStringList{R"(request|5|-1|{"layTransUserType":5})"});
    }

    void skipsWithoutPartner()
    {
        const VnJsonPtr root = tree(R"({"answer":true})");
        const OdRxObjectPtr stranger = OdRxObjectImpl<Bystander>::createObject();
        QVERIFY(!vnqtSendRequest(root, {}, "probe", {6, {"answer"}}, {}));
        QVERIFY(!vnqtSendRequest(root, stranger, "probe", {6, {"answer"}}, {}));
        QCOMPARE(toText(root), QStringLiteral(R"({"answer":true})"));
    }

    void skipsWithoutTree()
    {
        RecordingHost host;
        bool wrote = false;
        QVERIFY(!vnqtSendRequest({}, RecordingInvoker::create(host, {}), "probe", {6, {"answer"}},
            [&](IElementValueBase&) { wrote = true; }));
        QVERIFY(!wrote);
        QVERIFY(host.log().isEmpty());
    }

    void silentCommandLeavesDefaults()
    {
        const VnJsonPtr root = tree(R"({"answer":true})");
        vnqtSendRequest(
            root, OdRxObjectImpl<VnUiDialogInvoker>::createObject(), "probe", {6, {"answer"}}, {});
        QVERIFY(!root->GetDataB("answer"));
    }

    void reportsWhatCommandThrows_data()
    {
        const Rows<Answer, QString> row("fail", "cause");
        row("standard", Answer([](const VnJsonPtr&) { throw std::runtime_error("磁盘已满"); }),
            "磁盘已满");
        row("platform", Answer([](const VnJsonPtr&) { throw OdError_InvalidIndex(); }),
            "Index outside the array");
        row("anything", Answer([](const VnJsonPtr&) { throw 1; }), "未知");
    }

    void reportsWhatCommandThrows()
    {
        QFETCH(Answer, fail);
        QFETCH(QString, cause);
        RecordingHost host;
        const VnJsonPtr root = tree("{}");
        const auto invoker = RecordingInvoker::create(host, {"marker"}, [&](const VnJsonPtr& node) {
            node->SetDataB("answer", true); // Half an answer is none.
            fail(node);
        });
        QVERIFY(!vnqtSendRequest(root, invoker, "probe", {6, {"answer"}}, {}));
        QVERIFY(!root->GetDataB("answer"));
        QCOMPARE(host.log().size(), 2);
        QVERIFY2(host.log().last().startsWith("message|") && host.log().last().contains(cause) &&
                     host.log().last().endsWith("|Quenlith|48"),
            qPrintable(host.log().last()));
    }

    void logsJsonLines()
    {
        const QString name = "\"WALL\"\n%1 %s\\图层";
        RecordingHost host;
        const VnJsonPtr root = tree("{}");
        const auto invoker = RecordingInvoker::create(
            host, {"marker"}, [](const VnJsonPtr& node) { node->SetDataI("answer", 7); });
        const auto send = [&] {
            vnqtSendRequest(root, invoker, "Dialog_CmdLaydel", {6, {"answer"}},
                [&](IElementValueBase& node) { node.set("name", name.toStdWString().c_str()); });
        };
        const QtMessageHandler previous = qInstallMessageHandler(keepLine);
        send();
        QLoggingCategory::setFilterRules("quenlith.layers.requests.debug=true");
        send();
        QLoggingCategory::setFilterRules({});
        send();
        qInstallMessageHandler(previous);

        QCOMPARE(loggedLines.size(), 1); // Silent unless asked for.
        QVERIFY(!loggedLines.first().contains('\n'));
        const QJsonObject line = QJsonDocument::fromJson(loggedLines.first().toUtf8()).object();
        QCOMPARE(line["dialog"].toString(), QStringLiteral("Dialog_CmdLaydel"));
        QCOMPARE(line["code"].toInt(), 6);
        QCOMPARE(line["before"]["name"].toString(), name);
        QCOMPARE(line["before"]["answer"], QJsonValue(false));
        QCOMPARE(line["after"]["answer"].toInt(), 7);
    }
};

QTEST_MAIN(TestRequests)

#include "tst_requests.moc"
