#include "hoststart.h"
#include "linetypes.h"
#include "modaldriver.h"
#include "recordinghost.h"
#include "rows.h"
#include "trees.h"
#include "useracts.h"
#include "vncolortext.h"
#include "vnpickers.h"
#include "vnstrings.h"

#include <QColorDialog>
#include <QTabWidget>

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

/// Clicks in the middle of the cell at `column` and `row` of a grid with `columns` columns.
ModalDriver::Step cell(const char* grid, int column, int row, int columns)
{
    return [=](QDialog& dialog) {
        auto* const widget = dialog.findChild<QWidget*>(grid);
        const int step = widget->width() / columns;
        const QPoint middle(column * step + step / 2, row * step + step / 2);
        QTest::mouseClick(widget, Qt::LeftButton, {}, middle);
    };
}

const char* const kIndexKeys = R"({"clrMethod":195,"selectClr":3})";

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
        const Rows<QString, ModalDriver::Step, QString> row("keys", "step", "answer");
        const QString index = kIndexKeys;
        const auto nothing = [](QDialog&) {};
        row("index kept", index, nothing, "1: 195 3");
        row("true colour kept, red low", R"({"clrMethod":194,"selectClr":1122867})", nothing,
            "1: 194 1122867");
        row("by layer kept", R"({"clrMethod":192})", nothing, "1: 192 256");
        row("nothing given", "{}", nothing, "1: 195 7");
        row("index out of range", R"({"clrMethod":195,"selectClr":-4})", nothing, "1: 195 7");
        row("keys of other types", R"({"clrMethod":"a","selectClr":[]})", nothing, "1: 195 7");
        row("named", index, cell("namedGrid", 5, 0, 9), "1: 195 6");
        row("first row, first hue", index, cell("hueGrid", 0, 0, 24), "1: 195 18");
        row("last row, last hue", index, cell("hueGrid", 23, 9, 24), "1: 195 249");
        row("grey", index, cell("greyGrid", 5, 0, 6), "1: 195 255");
        const auto cancel = [](QDialog& dialog) {
            cell("namedGrid", 0, 0, 9)(dialog);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        };
        row("cancelled", index, cancel, "2: 195 3");
        const auto walk = [](QDialog& dialog) {
            cell("hueGrid", 0, 0, 24)(dialog); // Index 18.
            for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Left, Qt::Key_Right, Qt::Key_Down})
                QTest::keyClick(dialog.findChild<QWidget*>("hueGrid"), key);
        };
        row("walked to by keys", index, walk, "1: 195 26");
        const auto type = [](QDialog& dialog) {
            auto* const text = dialog.findChild<QLineEdit*>("colorText");
            text->clear();
            QTest::keyClicks(text, "123");
            QTest::keyClick(text, Qt::Key_Return);
        };
        row("typed", index, type, "1: 195 123");
        const auto mix = [](QDialog& dialog) {
            dialog.findChild<QTabWidget*>("tabs")->setCurrentIndex(1);
            dialog.findChild<QColorDialog*>("truePage")->setCurrentColor(QColor(3, 2, 1));
        };
        row("true instead of index", index, mix, "1: 194 66051");
        const auto block = [](QDialog& dialog) { press(dialog, "byBlock"); };
        row("by block", R"({"isByLayerEnable":0,"isByBLockEnable":1})", block, "1: 193 0");
    }

    void choosesColors()
    {
        QFETCH(QString, keys);
        QFETCH(ModalDriver::Step, step);
        ModalDriver driver;
        driver.then([&](QDialog& dialog) {
            step(dialog);
            if (dialog.isVisible())
                press(dialog, "ok");
        });
        QTEST(showColors(keys), "answer");
    }

    void refusesLogicalColors()
    {
        ModalDriver driver;
        driver.then([](QDialog& dialog) {
            QVERIFY(!child<QPushButton>(dialog, "byLayer").isEnabled());
            QVERIFY(!child<QPushButton>(dialog, "byBlock").isEnabled());
            auto& text = child<QLineEdit>(dialog, "colorText");
            for (const char* refused : {"ByLayer", "0", "256", "x"}) {
                text.clear();
                QTest::keyClicks(&text, refused);
                QVERIFY2(!child<QPushButton>(dialog, "ok").isEnabled(), refused);
            }
            QTest::keyClick(&dialog, Qt::Key_Return);
            QVERIFY(dialog.isVisible());
            dialog.reject();
        });
        showColors(R"({"clrMethod":195,"selectClr":3,"isByLayerEnable":0,"isByBLockEnable":0})");
    }

    void picksColors()
    {
        vnsi::VnColorComboBox box;
        QCOMPARE(box.GetCurrentColorEx().colorMethod(), OdCmEntityColor::kByLayer);
        QCOMPARE(box.FindColor(indexColor(33)), -1);
        const int row = box.AppendColorItem(indexColor(33));
        QCOMPARE(box.AppendColorItem(indexColor(33)), row);
        box.setCurrentIndex(row);
        QCOMPARE(box.GetCurrentColorEx().colorIndex(), OdInt16(33));

        RecordingHost user;
        const auto openDialog = [&box] {
            box.setCurrentIndex(box.count() - 1);
            emit box.activated(box.count() - 1);
        };
        user.answer(1, R"({"clrMethod":194,"selectClr":66051})");
        openDialog();
        QVERIFY(user.takeLog().last().contains(R"("isByLayerEnable":1)"));
        QCOMPARE(box.currentText(), "3,2,1");
        // Entries that were removed from the list cannot be chosen in the dialog either.
        for (const int index : {0, 256})
            box.removeItem(box.FindColor(indexColor(index)));
        user.answer(2);
        openDialog();
        QVERIFY(user.log().last().contains(R"("isByBLockEnable":0,"isByLayerEnable":0)"));
        QCOMPARE(box.currentText(), "3,2,1");
    }

    void picksLineTypes()
    {
        host::setLineTypes({{L"Continuous", OdDbObjectId(0x16)}, {L"虚线", OdDbObjectId(0x20)},
            {L"bylayer", OdDbObjectId(0x15)}});
        vnsi::VnLineTypeComboBox box;
        QCOMPARE(textsOf(box), (QStringList{"ByLayer", "ByBlock", "Continuous", "虚线"}));
        box.setCurrentIndex(2);
        QVERIFY(box.getCurrentLineTypeString() == OdString(L"Continuous"));
        QCOMPARE(box.getCurrentLineType().getHandle(), std::uint64_t(0x16));
        box.addItem("missing");
        box.setCurrentText("missing");
        QVERIFY(box.getCurrentLineTypeString() == OdString(L"missing"));
        QVERIFY(box.getCurrentLineType().isNull());
    }

    void picksLineWeights()
    {
        vnsi::VnLineWidthComboBox box;
        QCOMPARE(box.findText("随层"), 0);
        QCOMPARE(box.findText("随块"), 1);
        box.setCurrentText("2.11 mm");
        QCOMPARE(box.GetCurrentLineWeight(), 211);
        box.setCurrentText("默认");
        QCOMPARE(box.GetCurrentLineWeight(), -3);
    }

private:
    host::Host m_host;
};

QTEST_MAIN(TestColors)
#include "tst_colors.moc"
