#include "rows.h"
#include "trees.h"
#include "vnstrings.h"

#include <functional>
#include <limits>

using vnsi::ElementValue;
using vnsi::VnJsonPtr;

namespace {

constexpr OdInt64 kWide = 1LL << 40;
constexpr OdInt32 kFallbackI = -7;
constexpr OdInt64 kFallbackL = -8;

/// The text of each getter's result for "k"; "-" when the getter returned its fallback.
QString readings(const VnJsonPtr& node)
{
    const bool isBool = node->GetDataB("k", true) == node->GetDataB("k", false);
    const OdInt32 i = node->GetDataI("k", kFallbackI);
    const OdInt64 l = node->GetDataL("k", kFallbackL);
    const OdString wide = node->GetDataSW("k", L"-");
    return QStringList{isBool ? (node->GetDataB("k") ? "true" : "false") : "-",
        i == kFallbackI ? "-" : QString::number(i), l == kFallbackL ? "-" : QString::number(l),
        vnsi::vnutOdStringToQString(wide), node->GetDataJ("k") ? "node" : "-"}
        .join(' ');
}

using Setter = std::function<void(vnsi::IElementValueBase&)>;

} // namespace

Q_DECLARE_METATYPE(Setter)

class TestValueTree : public QObject
{
    Q_OBJECT

private slots:
    void readsOnlyWhatWasWritten_data()
    {
        const Rows<Setter, QString> rows("set", "expected");
        const auto row = [&](const char* name, const char* expected, const Setter& set) {
            rows(name, set, expected);
        };
        row("missing", "- - - - -", [](auto&) {});
        row("bool", "true - - - -", [](auto& n) { n.SetDataB("k", true); });
        row("no", "false - - - -", [](auto& n) { n.SetDataB("k", false); });
        row("int", "- 5 - - -", [](auto& n) { n.SetDataI("k", 5); });
        row("int 1 is no bool", "- 1 - - -", [](auto& n) { n.SetDataI("k", 1); });
        row("long that fits", "- - 5 - -", [](auto& n) { n.SetDataL("k", 5); });
        row("from JSON, either", "- 2147483647 2147483647 - -",
            [](auto& n) { n.SetDataJ("k", tree("[2147483647]")(0)); });
        row("from JSON, too wide for an int", "- - 2147483648 - -",
            [](auto& n) { n.SetDataJ("k", tree("[2147483648]")(0)); });
        row("from JSON, too low for an int", "- - -2147483649 - -",
            [](auto& n) { n.SetDataJ("k", tree("[-2147483649]")(0)); });
        row("wide", "- - 1099511627776 - -", [](auto& n) { n.SetDataL("k", kWide); });
        row("wide text", "- - - 墙 -", [](auto& n) { n.SetDataSW("k", L"墙"); });
        row("UTF-8 text", "- - - 墙 -", [](auto& n) { n.SetDataS("k", "\xE5\xA2\x99"); });
        row("digits are text", "- - - 5 -", [](auto& n) { n.SetDataSW("k", L"5"); });
        row("node", "- - - - node", [](auto& n) { n.SetDataJ("k", hostextras::createArray(0)); });
        row("replaced", "- 2 - - -", [](auto& n) {
            n.SetDataSW("k", L"1");
            n.SetDataI("k", 2);
        });
        row("empty node removes", "- - - - -", [](auto& n) {
            n.SetDataI("k", 2);
            n.SetDataJ("k", {});
        });
    }

    void readsOnlyWhatWasWritten()
    {
        QFETCH(Setter, set);
        const VnJsonPtr node = ElementValue::createObject(0);
        set(*node);
        QTEST(readings(node), "expected");
    }

    void followsPaths()
    {
        const VnJsonPtr node = ElementValue::createObject(2);
        node->SetDataL("Color/clrMethod", 195);
        node->SetDataL("Color/selectClr", 3);
        node->SetDataI("scalar", 1);
        node->SetDataI("scalar/in/the/way", 2);
        QCOMPARE(toText(node), R"({"Color":{"clrMethod":195,"selectClr":3},)"
                               R"("scalar":{"in":{"the":{"way":2}}}})");
        QCOMPARE(node->GetDataJ("Color")->GetDataL("selectClr"), 3);
        QCOMPARE(node->GetDataI("Color/selectClr/deeper", 9), 9);
        hostextras::removeKey(*node, "Color/clrMethod");
        QVERIFY(!host::hasKey(node, "Color/clrMethod"));
        QVERIFY(host::hasKey(node, "Color/selectClr"));
        QVERIFY(!host::hasKey(tree(R"([{"0":1}])"), "0"));
    }

    void ignoresBrokenKeys_data()
    {
        const Rows<QByteArray> row("key");
        for (const char* key : {"", "/", "//", "a//b", "/a", "a/"})
            row(key, key);
        row("null", "");
    }

    void ignoresBrokenKeys()
    {
        QFETCH(QByteArray, key);
        const char* const text = key.isNull() ? nullptr : key.constData();
        const VnJsonPtr node = tree(R"({"a":{"b":1}})");
        node->SetDataI(text, 5);
        node->SetDataJ(text, ElementValue::createObject(0));
        hostextras::removeKey(*node, text);
        QCOMPARE(node->GetDataI(text, 7), 7);
        QVERIFY(!host::hasKey(node, text));
        QCOMPARE(toText(node), R"({"a":{"b":1}})");
    }

    void keepsArraysInOrder()
    {
        const VnJsonPtr list = hostextras::createArray(-5);
        hostextras::appendInt(list, 1);
        hostextras::appendText(list, L"二");
        host::insert(list, 99, tree(R"({"n":3})"));
        host::insert(list, 0, tree("[0]"));
        host::insert(list, -1, tree("[9]"));
        hostextras::append(list, {});
        QCOMPARE(toText(list), R"([[0],1,"二",{"n":3},[9]])");
        hostextras::removeItem(list, 1);
        hostextras::removeItem(list, 17);
        hostextras::removeItem(list, -1);
        QCOMPARE(list.ArrayCount(), 4);
        QVERIFY(hostextras::textOf(list(1)) == OdString(L"二"));
        QCOMPARE(hostextras::intOf(list(1), 5), 5);
        list(2)->SetDataI("n", 4); // Containers are shared, not copied.
        QCOMPARE(list(2)->GetDataI("n"), 4);
        for (const int outside : {-1, 4, std::numeric_limits<int>::max()})
            QVERIFY(!list(outside));
        list->SetDataI("key", 1);
        host::clear(*list);
        QCOMPARE(toText(list), "[]");
        QCOMPARE(VnJsonPtr().ArrayCount(), 0);
        QVERIFY(!VnJsonPtr()(0));
    }

    void refusesCycles()
    {
        const VnJsonPtr root = tree(R"({"a":{"list":[{}]},"keep":1})");
        const VnJsonPtr inner = root->GetDataJ("a/list")(0);
        root->SetDataJ("keep", root);
        QVERIFY(!host::hasKey(root, "keep"));
        inner->SetDataJ("up", root);
        inner->SetDataJ("deep/up", root->GetDataJ("a"));
        hostextras::append(root->GetDataJ("a/list"), root);
        host::insert(root->GetDataJ("a/list"), 0, root->GetDataJ("a"));
        QCOMPARE(root->GetDataJ("a/list").ArrayCount(), 1);
        QVERIFY(!host::hasKey(inner, "up"));
        QVERIFY(!host::hasKey(inner, "deep/up"));
        // The same node in two places is not a cycle.
        root->SetDataJ("b", root->GetDataJ("a"));
        QVERIFY(root->GetDataJ("b") == root->GetDataJ("a"));
        inner->SetDataJ("x", ElementValue::createObject(0));
        QVERIFY(host::hasKey(root, "b"));
    }

    void keepsOrderAndSpeedWithManyKeys()
    {
        // This takes minutes if a look-up or a removal visits all members.
        constexpr int kKeys = 200000;
        const VnJsonPtr node = ElementValue::createObject(0);
        for (int i = 0; i < kKeys; ++i)
            node->SetDataI(QByteArray::number(i).constData(), i);
        node->SetDataI("77", -77);
        for (int i = 0; i < kKeys; i += 2)
            hostextras::removeKey(*node, QByteArray::number(i).constData());
        QCOMPARE(node->GetDataI("77"), -77);
        QVERIFY(!host::hasKey(node, "78"));
        QCOMPARE(node->GetDataI("199999"), 199999);
        for (int i = 21; i < kKeys; ++i)
            hostextras::removeKey(*node, QByteArray::number(i).constData());
        node->SetDataI("new", 1);
        QCOMPARE(toJsonObject(node).size(), 11);
        QCOMPARE(toJsonObject(hostextras::copyOf(node)), toJsonObject(node));
    }

    void survivesDepth()
    {
        constexpr int kDepth = 300000;
        VnJsonPtr root = ElementValue::createObject(1);
        VnJsonPtr deepest = root;
        for (int i = 0; i < kDepth; ++i) {
            const VnJsonPtr next = ElementValue::createObject(1);
            deepest->SetDataJ("a", next);
            deepest = next;
        }
        deepest->SetDataI("end", 1);
        VnJsonPtr copy = hostextras::copyOf(root);
        root = {};
        deepest = {};
        for (int i = 0; i < kDepth; ++i)
            copy = copy->GetDataJ("a");
        QCOMPARE(copy->GetDataI("end"), 1);

        VnJsonPtr list = hostextras::createArray(0);
        for (int i = 0; i < kDepth; ++i) {
            const VnJsonPtr outer = hostextras::createArray(0);
            hostextras::append(outer, list);
            list = outer;
        }
        QVERIFY(toText(list).size() > 1000);
        const QByteArray deepText = QByteArray(kDepth, '[') + QByteArray(kDepth, ']');
        QVERIFY(!host::fromJson(deepText.constData()));
    }

    void clonesShareNothing()
    {
        const VnJsonPtr original = tree(R"({"a":{"b":[1,{"c":2.5}]},"t":"x"})");
        const VnJsonPtr copy = hostextras::copyOf(original);
        QCOMPARE(toText(copy), toText(original));
        copy->GetDataJ("a/b")(1)->SetDataI("c", 3);
        copy->SetDataI("t", 1);
        QCOMPARE(toText(original), R"({"a":{"b":[1,{"c":2.5}]},"t":"x"})");
        QVERIFY(!hostextras::copyOf({}));
        QCOMPARE(hostextras::intOf(hostextras::copyOf(original->GetDataJ("a/b")(0)), 0), 1);
    }

    void roundTripsJson_data()
    {
        const Rows<QString, QString> rows("json", "expected");
        const auto row = [&](const char* json, const char* expected = nullptr) {
            rows(json, json, expected ? expected : json);
        };
        row("{}");
        row("[]");
        row("[null,true,1,2.5,\"a\\\"b\\n\",[],{}]");
        row(R"({"wide":-9007199254740991})");
        row("[2147483648,-2147483649,1e300]", "[2147483648,-2147483649,1e+300]");
        row(R"({"键/斜":"墙"})");
        row(" [ 1 , 2 ] ", "[1,2]");
        for (const char* broken : {"", "1", "\"a\"", "{", "[1,]", R"({"a":})", "nonsense"})
            row(broken, "null");
    }

    void roundTripsJson()
    {
        QFETCH(QString, json);
        const QByteArray utf8 = json.toUtf8();
        QTEST(toText(host::fromJson(utf8.constData())), "expected");
    }

    void keepsStrangeText_data()
    {
        const Rows<QString> row("text");
        row("empty", QString());
        row("beyond the first plane", "𠮷野");
        row("lone high surrogate", QString(QChar(0xD842)) + "a");
        row("lone low surrogate", "a" + QString(QChar(0xDFB7)));
        row("null character", QString(QChar(0)) + "b");
        row("long", QString(100000, QChar(0x5899)));
    }

    void keepsStrangeText()
    {
        QFETCH(QString, text);
        const VnJsonPtr node = ElementValue::createObject(1);
        node->SetDataSW("k", vnsi::vnutQStringToOdString(text));
        QCOMPARE(vnsi::vnutOdStringToQString(node->GetDataSW("k")), text);
    }
};

QTEST_GUILESS_MAIN(TestValueTree)
#include "tst_valuetree.moc"
