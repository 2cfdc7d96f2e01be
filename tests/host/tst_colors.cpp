#include "hoststart.h"
#include "linetypes.h"
#include "modaldriver.h"
#include "recordinghost.h"
#include "rows.h"
#include "trees.h"
#include "vndocument.h"
#include "vnpickers.h"
#include "vnstrings.h"

#include <QColorDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

Q_DECLARE_METATYPE(ModalDriver::Step)

namespace {

OdCmColor indexColor(int index)
{
    OdCmColor color;
    color.setColorIndex(static_cast<OdInt16>(index));
    return color;
}

QString showColors(const QString& keys)
{
    const vnsi::VnJsonPtr answer =
        vnsi::vnuiShowModelDialog(L"Dialog/Common", L"ColorDialog", tree(keys));
    return QStringLiteral("%1: %2 %3")
        .arg(answer->GetDataI("result"))
        .arg(answer->GetDataI("clrMethod", -1))
        .arg(answer->GetDataL("selectClr", -1));
}

/// Clicks the middle of the cell at `column` and `row` of a grid of cells `step` pixels apart.
void clickCell(QDialog& dialog, const char* grid, int column, int row, int columns)
{
    auto* const widget = dialog.findChild<QWidget*>(grid);
    const int step = widget->width() / columns;
    const QPoint middle(column * step + step / 2, row * step + step / 2);
    QTest::mouseClick(widget, Qt::LeftButton, {}, middle);
}

void press(QDialog& dialog, const char* button)
{
    QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
}

const char* const kIndexKeys = "{\"clrMethod\":195,\"selectClr\":3}";

} // namespace

class TestColors : public QObject
{
    Q_OBJECT

private slots:
    void namesColors_data()
    {
        const Rows<int, int, QString> row("method", "value", "name");
        row("red", 195, 1, "红");
        row("white", 195, 7, "白");
        row("first without a name", 195, 8, "8");
        row("last", 195, 255, "255");
        row("by layer", 195, 256, "ByLayer");
        row("by block", 195, 0, "ByBlock");
        row("red is low", 194, 0x030201, "1,2,3");
    }

    void namesColors()
    {
        QFETCH(int, method);
        QFETCH(int, value);
        OdCmColor color = indexColor(value);
        if (method == OdCmEntityColor::kByColor)
            color.setRGB(static_cast<OdUInt8>(value), static_cast<OdUInt8>(value >> 8),
                static_cast<OdUInt8>(value >> 16));
        QTEST(vnsi::vnutOdStringToQString(vnsi::formatColor(color, {}, {})), "name");
    }

    void choosesColors_data()
    {
        const Rows<QString, ModalDriver::Step, QString> rows("keys", "step", "answer");
        const auto row = [&](const char* name, const char* keys, const char* answer,
                             ModalDriver::Step step) { rows(name, keys, std::move(step), answer); };
        const auto ok = [](QDialog& dialog) { press(dialog, "ok"); };
        row("index kept", kIndexKeys, "1: 195 3", ok);
        row("true colour kept, red low", "{\"clrMethod\":194,\"selectClr\":1122867}",
            "1: 194 1122867", ok);
        row("nothing given", "{}", "1: 195 7", ok);
        row("index out of range", "{\"clrMethod\":195,\"selectClr\":-4}", "1: 195 7", ok);
        row("keys of other types", "{\"clrMethod\":\"a\",\"selectClr\":[]}", "1: 195 7", ok);
        row("cancelled", kIndexKeys, "2: 195 3", [](QDialog& dialog) {
            clickCell(dialog, "namedGrid", 0, 0, 9);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        row("named", kIndexKeys, "1: 195 6", [](QDialog& dialog) {
            clickCell(dialog, "namedGrid", 5, 0, 9);
            press(dialog, "ok");
        });
        row("first row, first hue", kIndexKeys, "1: 195 18", [](QDialog& dialog) {
            clickCell(dialog, "hueGrid", 0, 0, 24);
            press(dialog, "ok");
        });
        row("last row, last hue", kIndexKeys, "1: 195 249", [](QDialog& dialog) {
            clickCell(dialog, "hueGrid", 23, 9, 24);
            press(dialog, "ok");
        });
        row("grey", kIndexKeys, "1: 195 255", [](QDialog& dialog) {
            clickCell(dialog, "greyGrid", 5, 0, 6);
            press(dialog, "ok");
        });
        row("typed", kIndexKeys, "1: 195 123", [](QDialog& dialog) {
            auto* const text = dialog.findChild<QLineEdit*>("colorText");
            text->clear();
            QTest::keyClicks(text, "123");
            QTest::keyClick(text, Qt::Key_Return);
        });
        row("true instead of index", kIndexKeys, "1: 194 66051", [](QDialog& dialog) {
            dialog.findChild<QTabWidget*>("tabs")->setCurrentIndex(1);
            dialog.findChild<QColorDialog*>("truePage")->setCurrentColor(QColor(3, 2, 1));
            press(dialog, "ok");
        });
    }

    void choosesColors()
    {
        QFETCH(QString, keys);
        QFETCH(ModalDriver::Step, step);
        ModalDriver driver;
        driver.then(step);
        QTEST(showColors(keys), "answer");
    }

    void allowsLogicalColors()
    {
        ModalDriver driver;
        driver.then([](QDialog& dialog) {
            QVERIFY(!dialog.findChild<QPushButton*>("byLayer")->isEnabled());
            QVERIFY(!dialog.findChild<QPushButton*>("byBlock")->isEnabled());
            auto* const text = dialog.findChild<QLineEdit*>("colorText");
            for (const char* refused : {"ByLayer", "0", "256", "x"}) {
                text->clear();
                QTest::keyClicks(text, refused);
                QVERIFY2(!dialog.findChild<QPushButton*>("ok")->isEnabled(), refused);
            }
            QTest::keyClick(&dialog, Qt::Key_Return);
            QVERIFY(dialog.isVisible());
            dialog.reject();
        });
        showColors(
            "{\"clrMethod\":195,\"selectClr\":3,\"isByLayerEnable\":0,\"isByBLockEnable\":0}");
        driver.then([](QDialog& dialog) {
            press(dialog, "byBlock");
            press(dialog, "ok");
        });
        QCOMPARE(showColors("{\"isByLayerEnable\":0,\"isByBLockEnable\":1}"), QString("1: 193 0"));
        driver.then([](QDialog& dialog) { press(dialog, "ok"); });
        QCOMPARE(showColors("{\"clrMethod\":192}"), QString("1: 192 256"));
    }

    void walksThePaletteByKeys()
    {
        ModalDriver driver;
        driver.then([](QDialog& dialog) {
            auto* const grid = dialog.findChild<QWidget*>("hueGrid");
            clickCell(dialog, "hueGrid", 0, 0, 24); // 18
            for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Left, Qt::Key_Right, Qt::Key_Down})
                QTest::keyClick(grid, key);
            press(dialog, "ok");
        });
        QCOMPARE(showColors(kIndexKeys), QString("1: 195 26"));
    }

    void picksColors()
    {
        vnsi::VnColorComboBox box;
        QSignalSpy changed(&box, &vnsi::VnColorComboBox::colorChanged);
        QCOMPARE(box.color().colorMethod(), OdCmEntityColor::kByLayer);
        QCOMPARE(box.FindColor(indexColor(33)), -1);
        const int row = box.AppendColorItem(indexColor(33));
        QCOMPARE(box.AppendColorItem(indexColor(33)), row);
        box.setCurrentIndex(row);
        QCOMPARE(box.GetCurrentColorEx().colorIndex(), OdInt16(33));
        QCOMPARE(changed.count(), 1);

        RecordingHost user;
        user.answer(1, "{\"clrMethod\":194,\"selectClr\":66051}");
        user.answer(2);
        const auto openDialog = [&box] {
            box.setCurrentIndex(box.count() - 1);
            emit box.activated(box.count() - 1);
        };
        openDialog();
        QCOMPARE(box.currentText(), QString("3,2,1"));
        openDialog();
        QCOMPARE(box.currentText(), QString("3,2,1"));
        QCOMPARE(changed.count(), 2);
        box.setColor(indexColor(0));
        box.setLogicalColorsEnabled(false);
        QCOMPARE(box.currentText(), QStringLiteral("白"));
        QCOMPARE(box.FindColor(indexColor(256)), -1);
    }

    void picksLineTypes()
    {
        host::setLineTypes({{L"Continuous", OdDbObjectId(0x16)}, {L"虚线", OdDbObjectId(0x20)},
            {L"bylayer", OdDbObjectId(0x15)}});
        vnsi::VnLineTypeComboBox box;
        QStringList names;
        for (int i = 0; i < box.count(); ++i)
            names.append(box.itemText(i));
        QCOMPARE(names, (QStringList{"ByLayer", "ByBlock", "Continuous", "虚线"}));
        box.setLineType(L"CONTINUOUS");
        QVERIFY(box.getCurrentLineTypeString() == OdString(L"Continuous"));
        QCOMPARE(box.getCurrentLineType().getHandle(), std::uint64_t(0x16));
        box.setLineType(L"missing");
        QVERIFY(box.lineType() == OdString(L"missing"));
        QVERIFY(box.getCurrentLineType().isNull());
    }

    void picksLineWeights()
    {
        vnsi::VnLineWidthComboBox box;
        QCOMPARE(box.findText("随层"), 0);
        QCOMPARE(box.findText("随块"), 1);
        for (const int weight : {-1, -2, -3, 0, 25, 211}) {
            box.setLineWidth(weight);
            QCOMPARE(box.GetCurrentLineWeight(), weight);
        }
        QCOMPARE(box.currentText(), QString("2.11 mm"));
        box.setLineWidth(26);
        QCOMPARE(box.currentText(), QStringLiteral("默认"));
    }

private:
    host::Host m_host;
};

QTEST_MAIN(TestColors)
#include "tst_colors.moc"
