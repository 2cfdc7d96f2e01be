#include "linetypes.h"
#include "modulefixture.h"
#include "recordinghost.h"
#include "trees.h"
#include "vnpickers.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace vnsi;

namespace {

const char kSettings[] = "Dialog/CmdLaytransSetting";
const char kNewEdit[] = "Dialog/CmdLaytransNewEdit";

template <class T>
T& child(const VnUiModeDialogBasePtr& dialog, const char* name)
{
    return *ModuleFixture::child<T>(dialog, name);
}

QStringList entries(const QComboBox& box)
{
    QStringList all;
    for (int row = 0; row < box.count(); ++row)
        all.append(box.itemText(row));
    return all;
}

} // namespace

/// The two small dialogs of the layer translator.
class TestLaytransForms : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_host = std::make_unique<RecordingHost>();
        host::setLineTypes({{L"Dashed", OdDbObjectId(0x20)}, {L"CENTER", OdDbObjectId(0x21)}});
    }
    void cleanup() { m_host.reset(); }

    /// What six elements say is shown and given back; any other number is no record.
    void settings_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QByteArray>("checked");
        QTest::newRow("six") << "[1,0,1,0,0,1]" << QByteArray("101001");
        QTest::newRow("five") << "[1,1,1,1,1]" << QByteArray("000000");
        QTest::newRow("seven") << "[1,1,1,1,1,1,1]" << QByteArray("000000");
        QTest::newRow("no bool") << "[2,1,1,1,1,1]" << QByteArray("011111");
        QTest::newRow("none") << "" << QByteArray("000000");
    }

    void settings()
    {
        QFETCH(QString, given);
        QFETCH(QByteArray, checked);
        // 1 and 0 stand for the two values, 2 for an element without one.
        given.replace('1', R"({"LtransSettingData":true})");
        given.replace('0', R"({"LtransSettingData":false})").replace('2', "{}");
        const VnJsonPtr root =
            tree(given.isEmpty() ? "{}" : R"({"qLtransSettingParamset":)" + given + "}");
        const auto dialog = m_module.createDialog(kSettings, root);
        const auto box = [&](int option) {
            return ModuleFixture::child<QCheckBox>(
                dialog, ("optionBox" + QByteArray::number(option)).constData());
        };
        for (int option = 0; option < 6; ++option)
            QCOMPARE(box(option)->isChecked(), checked[option] == '1');
        box(4)->setTristate(true);
        box(4)->setCheckState(Qt::PartiallyChecked); // Which is not checked.
        child<QPushButton>(dialog, "okButton").click();
        checked[4] = '0';
        const VnJsonPtr out = root->GetDataJ("LtransSettingParamOut");
        QCOMPARE(out.ArrayCount(), 6);
        for (int option = 0; option < 6; ++option)
            QCOMPARE(out(option)->GetDataB("LtransSettingData", checked[option] != '1'),
                checked[option] == '1');
        QCOMPARE(root->GetDataI("result"), 1);
    }

    void cancelWritesNothing()
    {
        for (const char* name : {kSettings, kNewEdit}) {
            const VnJsonPtr root = tree(R"({"ltransInitIsEditLayer":true})");
            const QString before = toText(root);
            const auto dialog = m_module.createDialog(name, root);
            child<QPushButton>(dialog, "helpButton").click();
            child<QPushButton>(dialog, "cancelButton").click();
            QCOMPARE(toText(root), before);
        }
        QCOMPARE(m_host->log(), (QStringList{"help|0", "help|0"}));
    }

    void preparesBoxes()
    {
        const auto dialog = m_module.createDialog(kNewEdit, tree("{}"));
        QCOMPARE(dialog->widget()->windowTitle(), QStringLiteral("新图层"));
        QCOMPARE(entries(child<VnLineTypeComboBox>(dialog, "linetypeBox")),
            (QStringList{"Dashed", "CENTER", "Continuous"}));
        const auto& weights = child<VnLineWidthComboBox>(dialog, "lineWidthBox");
        QVERIFY(!entries(weights).contains(QStringLiteral("随层")));
        QVERIFY(!entries(weights).contains(QStringLiteral("随块")));
        QCOMPARE(weights.currentIndex(), 6);
        QCOMPARE(child<VnColorComboBox>(dialog, "colorBox").currentIndex(), 1);
        const auto& transparency = child<QComboBox>(dialog, "transparencyBox");
        QCOMPARE(entries(transparency).join(' '), QStringLiteral("0 10 20 30 40 50 60 70 80 90"));
        QVERIFY(transparency.isEditable());
        const auto& plotStyle = child<QComboBox>(dialog, "plotStyleBox");
        QCOMPARE(entries(plotStyle), (QStringList{"普通", "ByLayer", "ByBlock"}));
        QCOMPARE(plotStyle.currentText(), QStringLiteral("ByLayer"));
        QVERIFY(!plotStyle.isEnabled());
    }

    /// What a record says comes back unchanged, also what the boxes do not list.
    void givesBack_data()
    {
        QTest::addColumn<QString>("record");
        QTest::addColumn<QString>("result");
        QTest::newRow("listed")
            << R"("transTosLineType":"Dashed","transTosLinew":"0.50 mm","transToTransparency":35,
               "transToColor":{"clrMethod":195,"selectClr":3})"
            << "墙|Dashed|32|50|0.50 mm|195|3|35|ByLayer";
        QTest::newRow("colour appended")
            << R"("transTosLineType":"CENTER","transTosLinew":"默认","transToprintt":"普通",
               "transToColor":{"clrMethod":195,"selectClr":200})"
            << "墙|CENTER|33|-3|默认|195|200|0|普通";
        QTest::newRow("true colour, unknown linetype and style")
            << R"("transTosLineType":"GAS_LINE","transToLineWidth":13,"transToprintt":"Color_4",
               "transToColor":{"clrMethod":194,"selectClr":3351057})"
            << "墙|GAS_LINE|0|13|0.13 mm|194|3351057|0|Color_4";
    }

    void givesBack()
    {
        QFETCH(QString, record);
        const VnJsonPtr root =
            tree(R"({"ltransInitIsEditLayer":true,"ltransInitNewEditLayer":{"transToName":"墙",)" +
                 // The names in use are not looked at: the layer may keep its own.
                 record + R"(},"newToLayerNameArray":{"ToLayerNameArray":["墙"]}})");
        const auto dialog = m_module.createDialog(kNewEdit, root);
        QCOMPARE(dialog->widget()->windowTitle(), QStringLiteral("编辑图层"));
        child<QPushButton>(dialog, "okButton").click();
        QCOMPARE(m_host->log(), QStringList());
        QCOMPARE(root->GetDataI("result"), 1);
        const QJsonObject result = toJsonObject(root->GetDataJ("ltransResultNewEditLayer"));
        QStringList values;
        for (const char* key : {"LayName", "LineType", "LineTypeId", "LineWidth", "LineWidthName",
                 "clrMethod", "selectClr", "Tparency", "Plotstyle"})
            values += result.value(QLatin1String("ltransResultNew") + key).toVariant().toString();
        QTEST(values.join('|'), "result");
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("transparency");
        QTest::addColumn<QString>("message"); // Empty: taken.
        const QString invalid = QStringLiteral("名称不是有效符号名。");
        const QString number = QStringLiteral("请输入一个 0-90 之间的整数");
        // Each of the refusals comes before those behind it.
        QTest::newRow("empty") << ""
                               << "x" << QStringLiteral("名称必须赋值。");
        QTest::newRow("leading blank") << " a"
                                       << "x" << invalid;
        QTest::newRow("trailing blank") << "WALL "
                                        << "x" << invalid;
        for (const char c : QByteArray("<>/\\?*|,=`\":;"))
            QTest::newRow(QByteArray(1, c).constData()) << QString("a%1b").arg(c) << "0" << invalid;
        QTest::newRow("256 characters") << QString(256, QChar(0x5899)) << "0" << invalid;
        QTest::newRow("255 characters") << QString(255, QChar(0x5899)) << "0"
                                        << "";
        QTest::newRow("blank inside") << "a b"
                                      << "0"
                                      << "";
        QTest::newRow("in use") << "Wall"
                                << "x"
                                << QStringLiteral("名称 Wall 已在使用。\n您需要输入其他名称。");
        QTest::newRow("in use, placeholders") << "墙%1"
                                              << "0"
                                              << QStringLiteral("名称 墙%1 已在使用。\n您需要输入"
                                                                "其他名称。");
        QTest::newRow("transparency 90") << "a"
                                         << "90"
                                         << "";
        QTest::newRow("transparency 91") << "a"
                                         << "91" << number;
        QTest::newRow("transparency -1") << "a"
                                         << "-1" << number;
        QTest::newRow("transparency +1") << "a"
                                         << "+1" << number;
        QTest::newRow("transparency 1x") << "a"
                                         << "1x" << number;
        QTest::newRow("transparency 4294967297") << "a"
                                                 << "4294967297" << number;
        QTest::newRow("transparency empty") << "a"
                                            << "" << number;
    }

    void refuses()
    {
        QFETCH(QString, name);
        QFETCH(QString, transparency);
        QFETCH(QString, message);
        const VnJsonPtr root =
            tree(R"({"newToLayerNameArray":{"ToLayerNameArray":["0","WALL","墙%1"]}})");
        const auto dialog = m_module.createDialog(kNewEdit, root);
        dialog->widget()->show();
        child<QLineEdit>(dialog, "nameEdit").setText(name);
        child<QComboBox>(dialog, "transparencyBox").setEditText(transparency);
        child<QPushButton>(dialog, "okButton").click();
        QCOMPARE(m_host->log(),
            message.isEmpty() ? QStringList() : QStringList{"message|" + message + "||0"});
        QCOMPARE(root->HasKey("ltransResultNewEditLayer"), message.isEmpty());
        QCOMPARE(dialog->widget()->isVisible(), !message.isEmpty());
    }

private:
    ModuleFixture m_module;
    std::unique_ptr<RecordingHost> m_host;
};

QTEST_MAIN(TestLaytransForms)

#include "tst_laytransforms.moc"
