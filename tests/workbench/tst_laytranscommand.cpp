#include "../drawing/readback.h"
#include "canvas.h"
#include "commandfixture.h"
#include "hostcodes.h"
#include "hostextras.h"
#include "standardsfile.h"
#include "vnsettings.h"

namespace {

const QString kStandard = QStringLiteral(SAMPLES "/office-standard.dxf");

QListWidget& list(QDialog& dialog, const char* name)
{
    return child<QListWidget>(dialog, name);
}

QTableWidget& table(QDialog& dialog)
{
    return child<QTableWidget>(dialog, "mapTable");
}

void selectTarget(QDialog& dialog, const QString& name)
{
    auto& targets = list(dialog, "toList");
    targets.setCurrentItem(itemOf(targets, name));
}

} // namespace

/// Tests LAYTRANS with the real windows, including the saved file.
class LayerTranslateCommandTest : public CommandFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        start({"Dialog/CmdLaytrans", "Dialog/CmdLaytransNewEdit", "Dialog/CmdLaytransSetting"});
        hostextras::removeKey(*vnsi::vn_user_config(L"layertransset_dialog"), "LtransSettingDates");
        open("floor.dxf", m_original); // The log is written beside it.
    }

    void cleanup() { stop(); }

    void everythingInOneRun()
    {
        const QImage whole = picture();
        QHash<QString, QString> targets; // By source, in lower case.
        const auto setOptions = [](QDialog& settings) {
            for (const char* option : {"optionBox0", "optionBox3", "optionBox4", "optionBox5"})
                child<QCheckBox>(settings, option).setChecked(true);
            press(settings, "okButton");
        };
        const auto editLayer = [](QDialog& layer) {
            QCOMPARE(child<QComboBox>(layer, "linetypeBox").currentText(), "FIRE_MAIN");
            child<QComboBox>(layer, "transparencyBox").setEditText("35");
            press(layer, "okButton");
        };
        const auto translate = [&](QDialog& dialog) {
            selectTexts(list(dialog, "fromList"), {"A-EQPM", "墙体-隔墙"});
            press(dialog, "settingButton");
            const QImage two = picture(); // The option shows them immediately.
            load(dialog, {kStandard, kStandard});
            QCOMPARE(list(dialog, "toList").count(), 22);
            QCOMPARE(table(dialog).rowCount(), 18); // The mappings saved in the file.
            press(dialog, "mapSameButton");
            QCOMPARE(table(dialog).rowCount(), 26);
            selectTexts(list(dialog, "fromList"), {"家具-办公桌", "家具-座椅"});
            selectTarget(dialog, "A-FURN");
            press(dialog, "mapButton");

            auto& from = list(dialog, "fromList");
            emit from.itemClicked(itemOf(from, "A-EQPM"));
            const QImage one = picture();
            emit from.itemClicked(itemOf(from, "备用-1"));
            QVERIFY(two != whole && two != one && one != whole && one != picture());

            table(dialog).selectRow(rowOf(table(dialog), "消防-喷淋"));
            press(dialog, "editButton");
            for (int row = 0; row < table(dialog).rowCount(); ++row)
                targets.insert(table(dialog).item(row, 0)->text().toLower(),
                    table(dialog).item(row, 1)->text().toLower());
            answerFiles({inFolder("saved.dxf")});
            press(dialog, "saveButton");
            QVERIFY(!child<QPushButton>(dialog, "saveButton").isEnabled());
            press(dialog, "translateButton");
            QVERIFY(!dialog.isVisible());
        };
        run("laytrans", {closing(translate), setOptions, closing(editLayer)});
        QCOMPARE(messages(), QStringList());
        const auto saved = drawing::readStandard(inFolder("saved.dxf"));
        QVERIFY(saved && saved->mappings.size() == static_cast<std::size_t>(targets.size()));
        QVERIFY(contentOf(inFolder("floor.log")).contains("墙体-隔墙"));

        if (readback::isInstalled()) {
            QVERIFY(drawing().save(inFolder("translated.dxf")));
            const QJsonObject before = readback::seen(m_path);
            const QJsonObject after = readback::seen(inFolder("translated.dxf"));
            QCOMPARE(readback::newErrors(before, after), QStringList());
            QHash<QString, int> expected;
            const QJsonObject counts = before.value("entities").toObject();
            for (const QString& layer : counts.keys())
                expected[targets.value(layer, layer)] += counts.value(layer).toInt();
            const QJsonObject found = after.value("entities").toObject();
            for (auto layer = expected.cbegin(); layer != expected.cend(); ++layer)
                QVERIFY2(
                    found.value(layer.key()).toInt() == layer.value(), qPrintable(layer.key()));
            QCOMPARE(found.size(), expected.size());
            const QJsonObject sprinklers = readback::layers(after).value("F-SPRN");
            QCOMPARE(sprinklers.value("linetype").toString(), "FIRE_MAIN");
            QCOMPARE(sprinklers.value("transparency").toInt(), 35);
        }
        checkUndo();
        QCOMPARE(differentPixels(picture(), whole), 0.0);
    }

    /// Each refusal says what is not possible and why, and the dialog stays open.
    void refusals()
    {
        writtenFile(inFolder("text.dxf"), "text");
        const auto config = vnsi::vn_user_config(L"layertransset_dialog");
        config->SetDataJ("LtransSettingDates", hostextras::createArray(0));
        const auto message = [&] { return m_host->takeLog().filter("message|").join('\n'); };
        const auto acts = [&](QDialog& dialog) {
            load(dialog, {inFolder("text.dxf"), kStandard, inFolder("missing.dwg")});
            const QString unread = message();
            QVERIFY(unread.contains("text.dxf") && unread.contains("missing.dwg"));
            QCOMPARE(list(dialog, "toList").count(), 22); // The other files are loaded.
            QCOMPARE(table(dialog).rowCount(), 18);
            press(dialog, "settingButton");
            QVERIFY(message().contains("不是六项"));
            const auto save = [&](const QString& name, int answer = 0) {
                answerFiles({inFolder(name)});
                if (answer)
                    m_host->answer(answer);
                press(dialog, "saveButton");
            };
            save("floor.dxf");
            QVERIFY(message().contains("正在转换的图形"));
            save("text.dxf");
            QVERIFY(message().contains("text.dxf"));
            for (const char* name : {"new.dws", "new.DWG", "new.dwt", "floor.dws"}) {
                save(name, vnsi::kVnAnswerNo);
                const QString refusal = message();
                // The drawing's own name is not suggested.
                QVERIFY(refusal.contains(name) && refusal.contains(".dxf"));
                QVERIFY(refusal.contains("new.dxf") || refusal.contains("floor-图层标准.dxf"));
                QVERIFY(!QFile::exists(inFolder(name)) && !QFile::exists(inFolder("new.dxf")));
            }
            save("new.dws", vnsi::kVnAnswerYes);
            QVERIFY(QFile::exists(inFolder("new.dxf")) && !message().contains("将被替换"));
            // There is something new to save.
            QMetaObject::invokeMethod(&dialog, "slot_m_pbMapSameClicked");
            save("new.dws", vnsi::kVnAnswerNo);
            QVERIFY(message().contains("将被替换"));
            QMetaObject::invokeMethod(&dialog, "slot_MenuMapListAllDelete");
            save("none.dxf");
            QVERIFY(message().contains("还没有图层映射") && !QFile::exists(inFolder("none.dxf")));
            press(dialog, "translateButton");
            QVERIFY(message().contains("还没有图层映射"));
            QVERIFY(dialog.isVisible());

            // The name is no problem for loading.
            QVERIFY(QFile::copy(kStandard, inFolder("standard.dws")));
            load(dialog, {inFolder("standard.dws"), m_path});
            QCOMPARE(table(dialog).rowCount(), 18); // The deleted mappings are loaded again.
            const auto mark = [&](const char* name) {
                const auto* item = itemOf(list(dialog, "toList"), name);
                return item->icon().pixmap(16).toImage();
            };
            // Depending on whether they are used in the file that they came from.
            QVERIFY(mark("墙体-隔墙") != mark("备用-1"));
        };
        run("laytrans",
            {closing(acts), [](QDialog& settings) { press(settings, "cancelButton"); }});
        QVERIFY(!drawing().canUndo());
        hostextras::removeKey(*config, "LtransSettingDates");
    }

    void purgesInOneStep()
    {
        const auto purge = [&](QDialog& dialog) {
            const int before = list(dialog, "fromList").count();
            QMetaObject::invokeMethod(&dialog, "slot_FromListMenuActionCleanlayer");
            QVERIFY(list(dialog, "fromList").count() < before);
            for (const char* name : {"备用-1", "备用-2"})
                QVERIFY(!itemOf(list(dialog, "fromList"), name));
            press(dialog, "cancelButton");
        };
        run("laytrans", {closing(purge)});
        QVERIFY(!drawing().findLayer("备用-1"));
        drawing().undo();
        QVERIFY(drawing().findLayer("备用-1") && !drawing().canUndo());
    }

private:
    void load(QDialog& dialog, const QStringList& files)
    {
        answerFiles(files);
        press(dialog, "loadButton");
    }
};

QTEST_MAIN(LayerTranslateCommandTest)
#include "tst_laytranscommand.moc"
