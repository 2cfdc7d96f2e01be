#include "../drawing/readback.h"
#include "commandfixture.h"
#include "hostcodes.h"
#include "rows.h"

#include <QRegularExpression>
#include <QStatusBar>

#include <numeric>

using drawing::Layer;
using drawing::LayerId;

/// Tests LAYDEL, LAYMCH and LAYMRG from the command line to the saved file, with the real windows.
class LayerToolsTest : public CommandFixture
{
    Q_OBJECT

private slots:
    void init() { start({"Dialog/CmdLaydel", "Dialog/CmdLaymch", "Dialog/CmdLaymrg"}); }
    void cleanup() { stop(); }

    void deletes_data() { drawings(); }
    void deletes()
    {
        QFETCH(QString, path);
        open(path);
        const QStringList names = used().mid(0, 4);
        const auto before = picture();
        std::vector<LayerId> ids;
        for (const QString& name : names)
            ids.push_back(layer(name)->id);
        const bool inBlocks = drawing().isReferencedInBlocks(ids);
        m_host->answer(vnsi::kVnAnswerOk);
        run("laydel", {[&](QDialog& dialog) {
            const QStringList offered = textsOf(list(dialog));
            QVERIFY(!offered.contains("0") && !offered.contains(current()));
            choose(names)(dialog);
        }});
        const QString question = m_host->log().filter(QRegularExpression("^messageEx")).join('\n');
        QCOMPARE(question.contains("参照的块") || question.contains("重定义"), inBlocks);
        for (const QString& name : names)
            QVERIFY(!layer(name));
        QVERIFY(differentPixels(picture(), before) > 0);
        checkAndUndo(names);
        QCOMPARE(differentPixels(picture(), before), 0.0);
    }

    void changes_data() { drawings(); }
    void changes()
    {
        QFETCH(QString, path);
        open(path);
        selectAll();
        const std::vector<int> selection = m_window->canvas()->selection();
        QCOMPARE(child<QLabel>(*m_window, "selectionField").text(),
            QString("已选择 %1 个对象").arg(selection.size()));
        // The dialog refuses names that contain blanks.
        const QString target = used().filter(QRegularExpression("^\\S+$")).first();
        run("laymch", {choose({target})});
        const LayerId id = layer(target)->id;
        for (const int index : selection) {
            const LayerId found = drawing().entities()[static_cast<std::size_t>(index)].layer;
            QVERIFY(found == id || drawing().layer(found)->properties.locked);
        }
        QVERIFY2(statusText().contains(target), qPrintable(statusText()));
        checkAndUndo({});
    }

    void merges_data() { drawings(); }
    void merges()
    {
        QFETCH(QString, path);
        open(path);
        const QStringList names = used().mid(1, 3);
        const QString target = used().first();
        int together = layer(target)->entityCount;
        for (const QString& name : names)
            together += layer(name)->entityCount;
        m_host->answer(vnsi::kVnAnswerYes);
        run("laymrg", {choose(names), choose({target})});
        for (const QString& name : names)
            QVERIFY(!layer(name));
        QCOMPARE(layer(target)->entityCount, together);
        const QString log = m_host->log().join('\n');
        QVERIFY2(log.contains("将要把 3 个图层合并到图层 " + target), qPrintable(log));
        checkAndUndo(names);
    }

    void asksForObjects_data()
    {
        const Rows<Qt::Key, QString> row("end", "told");
        row("given up", Qt::Key_Escape, "没有选择对象");
        row("ended", Qt::Key_Return, "已更改到图层");
    }

    void asksForObjects()
    {
        QFETCH(Qt::Key, end);
        QFETCH(QString, told);
        Canvas& canvas = *m_window->canvas();
        QTimer::singleShot(0, &canvas, [&] {
            QTest::mouseClick(&canvas, Qt::LeftButton, {}, canvas.rect().center());
            for (int x = 0; canvas.selection().empty() && x < canvas.width(); x += 3)
                QTest::mouseClick(&canvas, Qt::LeftButton, {}, QPoint(x, canvas.height() / 2));
            QTest::keyClick(&canvas, end);
        });
        const QString target = used().filter(QRegularExpression("^\\S+$")).first();
        using Steps = std::vector<ModalDriver::Step>;
        run("laymch", end == Qt::Key_Return ? Steps{choose({target})} : Steps{});
        QVERIFY2(statusText().contains(told), qPrintable(statusText()));
    }

    /// The layers of what is selected are selected rows.
    void beginsWithTheSelection()
    {
        selectAll();
        QStringList names;
        for (const int index : m_window->canvas()->selection()) {
            const LayerId id = drawing().entities()[static_cast<std::size_t>(index)].layer;
            names += drawing().layer(id)->properties.name;
        }
        for (const char* command : {"laydel", "laymrg"}) {
            run(command, {closing([&](QDialog& dialog) {
                for (const QString& name : textsOf(list(dialog)))
                    QCOMPARE(selectedTexts(list(dialog)).contains(name), names.contains(name));
            })});
        }
        // And once more, by the empty line.
        ModalDriver user;
        user.then([](QDialog& dialog) { dialog.close(); });
        QTest::keyClick(&child<QLineEdit>(*m_window, "commandInput"), Qt::Key_Return);
    }

    void newLayerIsMadeAndLockedStays()
    {
        const QString locked = used().first();
        QCOMPARE(edit(drawing(), locked, [](auto& layer) { layer.locked = true; }), "");
        const int before = layer(locked)->entityCount;
        selectAll();
        m_host->answer(vnsi::kVnAnswerYes);
        run("laymch", {closing([](QDialog& dialog) {
            child<QLineEdit>(dialog, "layerNameEdit").setText("全新");
            press(dialog, "okButton");
        })});
        QVERIFY(layer("全新")->used());
        QCOMPARE(layer(locked)->entityCount, before);
        QVERIFY2(statusText().contains("锁定"), qPrintable(statusText()));
        drawing().undo();
        QVERIFY(!layer("全新"));
    }

    void sourceIsNoTarget()
    {
        const QString source = used().first();
        m_host->answer(vnsi::kVnAnswerYes);
        run("laymrg", {choose({source}), choose({source}), choose({source}, "cancelButton")});
        QVERIFY(m_host->log().join('\n').contains("不能作为目标图层"));
        QVERIFY(!drawing().canUndo());
    }

    /// A target keeps its mark when the question is declined. The command must not mistake it for
    /// the accepted one.
    void declinedTargetIsAskedAbout()
    {
        const QStringList names = used();
        m_host->answer(vnsi::kVnAnswerNo);
        m_host->answer(vnsi::kVnAnswerYes);
        int asked = 0;
        m_host->answer([&](const vnsi::VnJsonPtr&) { return ++asked, 2; });
        run("laymrg", {choose({names[0]}), [&](QDialog& dialog) {
                           for (const QString& target : {names[1], names[2]}) {
                               list(dialog).setCurrentItem(itemOf(list(dialog), target));
                               press(dialog, "okButton");
                           }
                       }});
        QCOMPARE(asked, 1);
        QVERIFY(!drawing().canUndo());
    }

    void vanishedLayersAreNamed()
    {
        const QStringList names = used().mid(0, 2);
        m_host->answer(vnsi::kVnAnswerOk);
        run("laydel", {[&](QDialog& dialog) {
            QVERIFY(drawing().deleteLayers({layer(names[0])->id}));
            choose(names)(dialog);
        }});
        QVERIFY2(statusText().contains("“" + names[0] + "”"), qPrintable(statusText()));
        QVERIFY(!layer(names[1]));
        checkAndUndo(names);
    }

private:
    static void drawings()
    {
        const Rows<QString> row("path");
        for (const char* path : {SAMPLES "/office-floor.dxf", SAMPLES "/workshop-gbk.dxf",
                 SHARED_DRAWINGS "/floorplan.dxf"})
            row(path, path);
    }

    /// The layers that hold entities and may be deleted.
    QStringList used() const
    {
        QStringList names;
        for (const Layer& layer : drawing().layers()) {
            if (layer.used() && layer.properties.name != "0" &&
                layer.id != drawing().currentLayer() && !layer.dependsOnReference)
                names += layer.properties.name;
        }
        return names;
    }
    static QListWidget& list(const QDialog& dialog)
    {
        return child<QListWidget>(dialog, "layerList");
    }
    QString statusText() const { return m_window->statusBar()->currentMessage(); }

    /// Selects the items with these names and presses OK.
    static ModalDriver::Step choose(const QStringList& names, const char* button = "okButton")
    {
        return closing([names, button](QDialog& dialog) {
            list(dialog).clearSelection();
            for (const QString& name : names)
                list(dialog).setCurrentItem(itemOf(list(dialog), name),
                    names.size() == 1 ? QItemSelectionModel::ClearAndSelect
                                      : QItemSelectionModel::Select);
            press(dialog, button);
        });
    }

    void selectAll()
    {
        std::vector<int> all(drawing().entities().size());
        std::iota(all.begin(), all.end(), 0);
        m_window->canvas()->setSelection(all);
    }

    /// An independent reader must find no entity on these layers and no new error; then undo must
    /// restore every byte.
    void checkAndUndo(const QStringList& gone)
    {
        if (readback::isInstalled()) {
            QVERIFY(drawing().save(inFolder("edited.dxf")));
            const QJsonObject after = readback::seen(inFolder("edited.dxf"));
            QCOMPARE(readback::newErrors(readback::original(m_path), after), QStringList());
            const QJsonObject counts = after.value("entities").toObject();
            for (const QString& name : gone)
                QVERIFY2(!counts.contains(name.toLower()), qPrintable(name));
        }
        checkUndo();
    }
};

QTEST_MAIN(LayerToolsTest)
#include "tst_layertools.moc"
