#include "dialogfixture.h"
#include "linetypes.h"
#include "vnpickers.h"

using namespace vnsi;

namespace {

const char kSettings[] = "Dialog/CmdLaytransSetting";
const char kNewEdit[] = "Dialog/CmdLaytransNewEdit";

} // namespace

/// Tests the two small dialogs of the layer translator.
class TestLaytransForms : public DialogFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        DialogFixture::init();
        host::setLineTypes({{L"Dashed", OdDbObjectId(0x20)}, {L"CENTER", OdDbObjectId(0x21)}});
    }

    /// Six elements are shown and returned; any other number is not a valid record.
    void settings_data()
    {
        const Rows<QString, QByteArray> row("given", "checked");
        row("six", "[1,0,1,0,0,1]", "101001");
        row("five", "[1,1,1,1,1]", "000000");
        row("seven", "[1,1,1,1,1,1,1]", "000000");
        row("no bool", "[2,1,1,1,1,1]", "011111");
        row("none", "", "000000");
    }

    void settings()
    {
        QFETCH(QString, given);
        QFETCH(QByteArray, checked);
        // 1 and 0 stand for the two values, 2 for an element without a value.
        given.replace('1', R"({"LtransSettingData":true})");
        given.replace('0', R"({"LtransSettingData":false})").replace('2', "{}");
        open(kSettings, given.isEmpty() ? "{}" : R"({"qLtransSettingParamset":)" + given + "}");
        for (int option = 0; option < 6; ++option)
            QCOMPARE(
                find<QCheckBox>(("optionBox" + QByteArray::number(option)).constData()).isChecked(),
                checked[option] == '1');
        auto& partial = find<QCheckBox>("optionBox4");
        partial.setTristate(true);
        partial.setCheckState(Qt::PartiallyChecked); // This does not count as checked.
        press("okButton");
        checked[4] = '0';
        const VnJsonPtr out = m_tree->GetDataJ("LtransSettingParamOut");
        QCOMPARE(out.ArrayCount(), 6);
        for (int option = 0; option < 6; ++option)
            QCOMPARE(out(option)->GetDataB("LtransSettingData", checked[option] != '1'),
                checked[option] == '1');
        QCOMPARE(m_tree->GetDataI("result"), 1);
    }

    void cancelWritesNothing()
    {
        for (const char* name : {kSettings, kNewEdit}) {
            open(name, R"({"ltransInitIsEditLayer":true})");
            const QString before = toText(m_tree);
            press("helpButton");
            press("cancelButton");
            QCOMPARE(toText(m_tree), before);
        }
        QCOMPARE(log(), (QStringList{"help|0", "help|0"}));
    }

    void preparesBoxes()
    {
        open(kNewEdit, "{}");
        QCOMPARE(title(), "新图层");
        QCOMPARE(textsOf(find<VnLineTypeComboBox>("linetypeBox")),
            (QStringList{"Dashed", "CENTER", "Continuous"}));
        const auto& weights = find<VnLineWidthComboBox>("lineWidthBox");
        QCOMPARE(textsOf(weights).mid(0, 2), (QStringList{"默认", "0.00 mm"}));
        QCOMPARE(weights.currentIndex(), 6);
        const auto& colors = find<VnColorComboBox>("colorBox");
        QCOMPARE(colors.currentIndex(), 1);
        QCOMPARE(colors.GetCurrentColorEx().colorIndex(), OdInt16(2));
        const auto& transparency = find<QComboBox>("transparencyBox");
        QCOMPARE(textsOf(transparency).join(' '), "0 10 20 30 40 50 60 70 80 90");
        QVERIFY(transparency.isEditable());
        const auto& plotStyle = find<QComboBox>("plotStyleBox");
        QCOMPARE(textsOf(plotStyle), (QStringList{"普通", "ByLayer", "ByBlock"}));
        QCOMPARE(plotStyle.currentText(), "ByLayer");
        QVERIFY(!plotStyle.isEnabled());
    }

    /// A record is returned unchanged, including values that the boxes do not list.
    void givesBack_data()
    {
        const Rows<QString, QString> row("record", "result");
        row("listed", R"("transTosLineType":"dashed","transTosLinew":"0.50 mm",
            "transToTransparency":35,"transToColor":{"clrMethod":195,"selectClr":3})",
            "墙|Dashed|32|50|0.50 mm|195|3|35|ByLayer");
        row("colour appended", R"("transTosLineType":"CENTER","transTosLinew":"默认",
            "transToprintt":"普通","transToColor":{"clrMethod":195,"selectClr":200})",
            "墙|CENTER|33|-3|默认|195|200|0|普通");
        row("true colour, unknown linetype and style", R"("transTosLineType":"GAS_LINE",
            "transToLineWidth":13,"transToprintt":"Color_4",
            "transToColor":{"clrMethod":194,"selectClr":3351057})",
            "墙|GAS_LINE|0|13|0.13 mm|194|3351057|0|Color_4");
        row("weight told in another language", R"("transTosLinew":"Default","transToLineWidth":-3)",
            "墙|Dashed|32|-3|默认|195|2|0|ByLayer");
        row("weight that does not exist", R"("transTosLinew":"0.22 mm","transToLineWidth":22)",
            "墙|Dashed|32|-3|默认|195|2|0|ByLayer");
    }

    void givesBack()
    {
        QFETCH(QString, record);
        open(kNewEdit,
            R"({"ltransInitIsEditLayer":true,"ltransInitNewEditLayer":{"transToName":"墙",)" +
                // The names in use do not matter here, because the layer may keep its own.
                record + R"(},"newToLayerNameArray":{"ToLayerNameArray":["墙"]}})");
        QCOMPARE(title(), "编辑图层");
        press("okButton");
        QCOMPARE(log(), QStringList());
        QCOMPARE(m_tree->GetDataI("result"), 1);
        const QJsonObject result = toJsonObject(m_tree->GetDataJ("ltransResultNewEditLayer"));
        QStringList values;
        for (const char* key : {"LayName", "LineType", "LineTypeId", "LineWidth", "LineWidthName",
                 "clrMethod", "selectClr", "Tparency", "Plotstyle"})
            values += result.value(QLatin1String("ltransResultNew") + key).toVariant().toString();
        QTEST(values.join('|'), "result");
    }

    void refuses_data()
    {
        // Each refusal is checked before the ones after it. Without a message the layer is
        // accepted.
        const Rows<QString, QString, QString> row("name", "transparency", "message");
        const QString invalid = "名称不是有效符号名。";
        const QString number = "请输入一个 0-90 之间的整数";
        const QString inUse = "名称 %s 已在使用。\n您需要输入其他名称。";
        row("empty", "", "x", "名称必须赋值。");
        row("leading blank", " a", "x", invalid);
        row("trailing blank", "WALL ", "x", invalid);
        for (const char c : QByteArray("<>/\\?*|,=`\":;"))
            row(QByteArray(1, c).constData(), QString("a%1b").arg(c), "0", invalid);
        row("256 characters", QString(256, QChar(0x5899)), "0", invalid);
        row("255 characters", QString(255, QChar(0x5899)), "0", "");
        row("blank inside", "a b", "0", "");
        row("in use", "Wall", "x", QString(inUse).replace("%s", "Wall"));
        row("in use, placeholders", "墙%1", "0", QString(inUse).replace("%s", "墙%1"));
        row("transparency 90", "a", "90", "");
        for (const char* text : {"91", "-1", "+1", "1x", "4294967297", ""})
            row(qPrintable(QStringLiteral("transparency %1").arg(text)), "a", text, number);
    }

    void refuses()
    {
        QFETCH(QString, name);
        QFETCH(QString, transparency);
        QFETCH(QString, message);
        open(kNewEdit, R"({"newToLayerNameArray":{"ToLayerNameArray":["0","WALL","墙%1"]}})");
        find<QLineEdit>("nameEdit").setText(name);
        find<QComboBox>("transparencyBox").setEditText(transparency);
        press("okButton");
        QCOMPARE(
            log(), message.isEmpty() ? QStringList() : QStringList{"message|" + message + "||0"});
        QCOMPARE(host::hasKey(m_tree, "ltransResultNewEditLayer"), message.isEmpty());
        QCOMPARE(isOpen(), !message.isEmpty());
    }
};

QTEST_MAIN(TestLaytransForms)
#include "tst_laytransforms.moc"
