#include "commandfixture.h"
#include "drawings.h"
#include "plan.h"

#include <QAction>
#include <QToolButton>

using drawing::Layer;

/// Tests LAYWALK with the real windows, including the saved file.
class LayerWalkCommandTest : public CommandFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        start({"Dialog/CmdLaywalk", "Dialog/CmdLaywalk/Verify", "Dialog/CmdLayerStateNew"});
    }
    void cleanup() { stop(); }

    void restoresEveryByte_data() { everyDrawing(); }
    void restoresEveryByte()
    {
        QFETCH(QString, path);
        open(path);
        const QStringList before = shown();
        const auto wasCurrent = drawing().currentLayer();
        walk(true, [&](QDialog& dialog) {
            trigger(dialog, "selectAll");
            trigger(dialog, "clearAll");
            QVERIFY(shown().isEmpty() && drawing().isModified());
            const QImage empty = picture();
            const QString name = fullest().properties.name;
            click(dialog, name);
            QCOMPARE(shown(), QStringList{name});
            if (QFileInfo(path).fileName().contains("floor"))
                QVERIFY(picture() != empty);
            trigger(dialog, "keep");
            trigger(dialog, "reverse");
            QVERIFY(shown().contains(name));
            auto& filters = child<QComboBox>(dialog, "filterCombo");
            filters.setEditText("~*[a-f]*");
            QTest::keyClick(&filters, Qt::Key_Return);
        });
        QCOMPARE(shown(), before);
        QCOMPARE(drawing().currentLayer(), wasCurrent);
        QVERIFY(!drawing().canUndo() && !drawing().isModified());
        QVERIFY(savedBytes() == m_original);
    }

    void selectsWhatIsSeen_data()
    {
        const Rows<int, bool> row("layout", "isSelected");
        row("model space", -1, true);
        row("frozen in the viewport", 0, false);
        row("frozen in another one", 1, true);
    }

    /// Freezing in new viewports does not matter.
    void selectsWhatIsSeen()
    {
        QFETCH(int, layout);
        open("sheets.dxf", sheetsDrawing());
        QCOMPARE(edit(drawing(), "Door", [](auto& door) { door.frozenInNewViewports = true; }), "");
        if (layout >= 0)
            QVERIFY(inStep(drawing(), [&] { return drawing().showLayout(layout); }));
        walk(true, [](QDialog& dialog) {
            QTEST(itemOf(list(dialog), "  Door")->isSelected(), "isSelected");
        });
    }

    void goingOnIsOneStep()
    {
        const QString wasCurrent = current();
        walk(false, [](QDialog& dialog) {
            click(dialog, "0");
            click(dialog, "A-WALL");
            trigger(dialog, "releaseAll");
        });
        QCOMPARE(shown(), QStringList{"A-WALL"});
        QCOMPARE(drawing().undoName(), "图层漫游");
        QCOMPARE(current(), "A-WALL");
        drawing().undo();
        QVERIFY(!drawing().canUndo());
        QCOMPARE(current(), wasCurrent);
        QVERIFY(savedBytes() == m_original);
    }

    void currentLayerFollows_data()
    {
        // + adds to the selection, other entries are clicks.
        const Rows<QStringList, QString> row("acts", "current");
        const QString old = "墙体-隔墙";
        row("a click that hides it", {"A-WALL"}, "A-WALL");
        row("the layer clicked last", {"A-WALL", "+A-DOOR"}, "A-DOOR");
        row("what is left", {"A-WALL", "+A-DOOR", "+A-DOOR"}, "A-WALL");
        row("a click that shows it again", {"A-WALL", "+" + old}, old);
        row("whatever shows it again", {"A-WALL", "=selectAll"}, old);
        row("a click beside it", {old, "+A-WALL"}, old);
        row("hidden, but not by a click", {"=clearAll"}, old);
    }

    /// When a click hides the current layer, a visible layer becomes current.
    void currentLayerFollows()
    {
        QFETCH(QStringList, acts);
        const QString old = current();
        walk(true, [&](QDialog& dialog) {
            for (const QString& act : acts) {
                if (act.startsWith('='))
                    trigger(dialog, act.mid(1));
                else if (act.startsWith('+'))
                    click(dialog, act.mid(1), Qt::ControlModifier);
                else
                    click(dialog, act);
            }
            QTEST(current(), "current");
        });
        QCOMPARE(current(), old);
    }

    void purgesVerifiesAndSavesAState()
    {
        int unused = 0;
        for (const Layer& layer : drawing().layers())
            unused += layer.used() ? 0 : 1;
        const int entities = fullest().entityCount;
        const QString pinned = fullest().properties.name;
        const std::size_t count = drawing().layers().size();
        QStringList counts;
        const auto acts = [&](QDialog& dialog) {
            click(dialog, pinned);
            trigger(dialog, "keep");
            trigger(dialog, "verify");
            trigger(dialog, "selectUnused");
            press(dialog, "purgeButton");
            QVERIFY(itemOf(list(dialog), "* " + pinned));
            trigger(dialog, "saveState");
            child<QCheckBox>(dialog, "restoreBox").setChecked(true);
            dialog.close();
        };
        const auto readCounts = [&](QDialog& report) {
            for (const QLineEdit* edit : report.findChildren<QLineEdit*>())
                counts.append(edit->text());
            report.close();
        };
        const auto nameState = [](QDialog& naming) {
            child<QComboBox>(naming, "nameBox").setEditText("只看墙");
            press(naming, "okButton");
        };
        run("laywalk", {acts, readCounts, nameState});
        QCOMPARE(counts, (QStringList{QString::number(count), "1", QString::number(entities)}));
        // Layers without entities stay if they are current or belong to an external reference.
        const auto left = drawing().layers().size();
        QVERIFY(left < count && left + static_cast<std::size_t>(unused) >= count);
        const auto state = drawing().layerState("只看墙");
        QVERIFY(state.has_value());
        for (const drawing::LayerStateLayer& layer : state->layers)
            QCOMPARE(layer.properties.off, layer.properties.name != pinned);
        QVERIFY(shown().size() > 1);
        drawing().undo();
        QVERIFY(savedBytes() == m_original);
    }

    void refusesToPurgeWhatIsUsed()
    {
        walk(true, [](QDialog& dialog) {
            click(dialog, "A-WALL");
            press(dialog, "purgeButton");
            QVERIFY(itemOf(list(dialog), "  A-WALL"));
        });
        QCOMPARE(messages().size(), 1);
        QVERIFY(messages().first().contains("A-WALL") && messages().first().contains("没有清除"));
    }

    void picksFromTheCanvas_data()
    {
        const Rows<QString, int, int> row("before", "key", "selected");
        row("ENTER", "selectAll", Qt::Key_Return, 1);
        row("right button", "selectAll", 0, 1);
        row("what is hidden, too", "clearAll", Qt::Key_Return, 1);
        row("Esc", "selectAll", Qt::Key_Escape, -1); // The selection stays as it was.
    }

    void picksFromTheCanvas()
    {
        QFETCH(QString, before);
        QFETCH(int, key);
        QFETCH(int, selected);
        Canvas& canvas = *m_window->canvas();
        const auto picking = [&](QDialog& dialog) {
            trigger(dialog, before);
            if (selected < 0)
                selected = list(dialog).count();
            QTimer::singleShot(0, &canvas, [&] {
                // There are entities of every kind along the middle.
                for (int x = 0; canvas.selection().empty() && x < canvas.width(); x += 3)
                    QTest::mouseClick(&canvas, Qt::LeftButton, {}, QPoint(x, canvas.height() / 2));
                QVERIFY(!dialog.isVisible() && !canvas.selection().empty());
                if (key)
                    QTest::keyClick(&canvas, Qt::Key(key));
                else
                    QTest::mouseClick(&canvas, Qt::RightButton);
            });
            child<QToolButton>(dialog, "pickButton").click();
            QVERIFY(canvas.selection().empty());
        };
        const auto picked = [&](QDialog& dialog) {
            QCOMPARE(list(dialog).selectedItems().size(), selected);
            QCOMPARE(shown().size(), selected);
            dialog.close();
        };
        run("laywalk", {picking, picked});
    }

private:
    /// Runs the command with these actions and then closes the dialog by its button.
    void walk(bool restores, const std::function<void(QDialog& dialog)>& acts)
    {
        if (!restores)
            m_host->answer(0);
        run("laywalk", {[&](QDialog& dialog) {
            child<QCheckBox>(dialog, "restoreBox").setChecked(restores);
            acts(dialog);
            press(dialog, "closeButton");
        }});
    }
    static QListWidget& list(const QDialog& dialog)
    {
        return child<QListWidget>(dialog, "layerList");
    }
    static void trigger(const QDialog& dialog, const QString& action)
    {
        dialog.findChild<QAction*>(action + "Action")->trigger();
    }
    static void click(
        const QDialog& dialog, const QString& name, Qt::KeyboardModifiers modifiers = {})
    {
        QListWidget& rows = list(dialog);
        QListWidgetItem* const item = itemOf(rows, "  " + name);
        QVERIFY2(item, qPrintable(name));
        rows.scrollToItem(item);
        QTest::mouseClick(
            rows.viewport(), Qt::LeftButton, modifiers, rows.visualItemRect(item).center());
    }
    /// The names of the layers that are on, in file order.
    QStringList shown() const
    {
        QStringList names;
        for (const Layer& layer : drawing().layers()) {
            if (!layer.properties.off)
                names.append(layer.properties.name);
        }
        return names;
    }
    /// The layer with the most entities that does not belong to an external reference.
    const Layer& fullest() const
    {
        const Layer* most = &drawing().layers().front();
        for (const Layer& layer : drawing().layers()) {
            if (layer.entityCount > most->entityCount && !layer.properties.frozen &&
                !layer.properties.name.contains('|'))
                most = &layer;
        }
        return *most;
    }
};

QTEST_MAIN(LayerWalkCommandTest)
#include "tst_laywalkcommand.moc"
