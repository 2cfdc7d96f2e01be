#include "canvas.h"
#include "commandfixture.h"
#include "rows.h"
#include "sheets.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QToolButton>

using drawing::Layer;

/// LAYWALK through the real windows, down to the saved file.
class LayerWalkCommandTest : public CommandFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        start({"Dialog/CmdLaywalk", "Dialog/CmdLaywalk/Verify", "Dialog/CmdLayerStateNew"});
    }
    void cleanup() { stop(); }
    void restoresEveryByte_data();
    void restoresEveryByte();
    void selectsWhatIsSeen_data();
    void selectsWhatIsSeen();
    void goingOnIsOneStep();
    void currentLayerFollows_data();
    void currentLayerFollows();
    void purgesVerifiesAndSavesAState();
    void refusesToPurgeWhatIsUsed();
    void picksFromTheCanvas_data();
    void picksFromTheCanvas();

private:
    /// Runs the command; after the acts the dialog is closed by its button.
    void walk(bool restores, const std::function<void(QDialog& dialog)>& acts)
    {
        if (!restores)
            m_host->answer(0);
        run(QStringLiteral("laywalk"), {[&](QDialog& dialog) {
            child<QCheckBox>(dialog, "restoreBox")->setChecked(restores);
            acts(dialog);
            press(dialog, "closeButton");
        }});
    }
    template <class T>
    static T* child(const QDialog& dialog, const char* name)
    {
        return ModuleFixture::child<T>(&dialog, name);
    }
    static QListWidget& list(const QDialog& dialog)
    {
        return *child<QListWidget>(dialog, "layerList");
    }
    static void trigger(const QDialog& dialog, const QString& action)
    {
        dialog.findChild<QAction*>(action + "Action")->trigger();
    }
    static void click(
        const QDialog& dialog, const QString& name, Qt::KeyboardModifiers modifiers = {})
    {
        QListWidget& rows = list(dialog);
        QListWidgetItem* const item = rows.findItems("  " + name, Qt::MatchExactly).value(0);
        QVERIFY2(item, qPrintable(name));
        rows.scrollToItem(item);
        QTest::mouseClick(
            rows.viewport(), Qt::LeftButton, modifiers, rows.visualItemRect(item).center());
    }
    /// Names of the layers that are on, in the order of the file.
    QStringList shown() const
    {
        QStringList names;
        for (const Layer& layer : drawing().layers()) {
            if (!layer.properties.off)
                names.append(layer.properties.name);
        }
        return names;
    }
    QString current() const { return drawing().layer(drawing().currentLayer())->properties.name; }
    /// Something else than a reference's layer, with as much on it as on any.
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

void LayerWalkCommandTest::restoresEveryByte_data()
{
    const Rows<QString> row("path");
    for (const char* folder : {SAMPLES, SHARED_DRAWINGS}) {
        const QDir files(QString::fromUtf8(folder));
        for (const QString& name : files.entryList({"*.dxf"}, QDir::Files))
            row(qPrintable(name), files.filePath(name));
    }
}

void LayerWalkCommandTest::restoresEveryByte()
{
    QFETCH(QString, path);
    open(path);
    const QStringList before = shown();
    const auto wasCurrent = drawing().currentLayer();
    walk(true, [&](QDialog& dialog) {
        trigger(dialog, "selectAll");
        trigger(dialog, "clearAll");
        QVERIFY(shown().isEmpty() && drawing().isModified());
        const QImage empty = m_window->canvas()->grab().toImage();
        const QString name = fullest().properties.name;
        click(dialog, name);
        QCOMPARE(shown(), QStringList{name});
        if (QFileInfo(path).fileName().contains("floor"))
            QVERIFY(m_window->canvas()->grab().toImage() != empty);
        trigger(dialog, "keep");
        trigger(dialog, "reverse");
        QVERIFY(shown().contains(name));
        child<QComboBox>(dialog, "filterCombo")->setEditText("~*[a-f]*");
        QTest::keyClick(child<QComboBox>(dialog, "filterCombo"), Qt::Key_Return);
    });
    QCOMPARE(shown(), before);
    QCOMPARE(drawing().currentLayer(), wasCurrent);
    QVERIFY(!drawing().canUndo() && !drawing().isModified());
    QVERIFY(savedBytes() == m_original);
}

void LayerWalkCommandTest::selectsWhatIsSeen_data()
{
    const Rows<int, bool> row("layout", "isSelected");
    row("model space", -1, true);
    row("frozen in the viewport", 0, false);
    row("frozen in another one", 1, true);
}

/// What new viewports do with a layer does not count.
void LayerWalkCommandTest::selectsWhatIsSeen()
{
    QFETCH(int, layout);
    QFile sheets(m_folder.filePath("sheets.dxf"));
    QVERIFY(sheets.open(QIODevice::WriteOnly) && sheets.write(sheetsDrawing()) > 0);
    sheets.close();
    open(sheets.fileName());
    drawing().beginStep("freeze");
    Layer door = *drawing().findLayer("Door");
    door.properties.frozenInNewViewports = true;
    QVERIFY(drawing().setLayerProperties(door.id, door.properties));
    if (layout >= 0)
        QVERIFY(drawing().showLayout(layout));
    drawing().commitStep();
    walk(true, [](QDialog& dialog) {
        QTEST(list(dialog).findItems("  Door", Qt::MatchExactly).value(0)->isSelected(),
            "isSelected");
    });
}

void LayerWalkCommandTest::goingOnIsOneStep()
{
    const QString wasCurrent = current();
    walk(false, [](QDialog& dialog) {
        click(dialog, "0");
        click(dialog, "A-WALL");
        trigger(dialog, "releaseAll");
    });
    QCOMPARE(shown(), QStringList{"A-WALL"});
    QCOMPARE(drawing().undoName(), QStringLiteral("图层漫游"));
    QCOMPARE(current(), QStringLiteral("A-WALL"));
    drawing().undo();
    QVERIFY(!drawing().canUndo());
    QCOMPARE(current(), wasCurrent);
    QVERIFY(savedBytes() == m_original);
}

void LayerWalkCommandTest::currentLayerFollows_data()
{
    const Rows<QStringList, QString> row("acts", "current"); // + selects besides, others act.
    const QString old = QStringLiteral("墙体-隔墙");
    row("a click that hides it", {"A-WALL"}, "A-WALL");
    row("the layer clicked last", {"A-WALL", "+A-DOOR"}, "A-DOOR");
    row("what is left", {"A-WALL", "+A-DOOR", "+A-DOOR"}, "A-WALL");
    row("a click that shows it again", {"A-WALL", "+" + old}, old);
    row("whatever shows it again", {"A-WALL", "=selectAll"}, old);
    row("a click beside it", {old, "+A-WALL"}, old);
    row("hidden, but not by a click", {"=clearAll"}, old);
}

/// The current layer is one that is shown as long as a click hides the old one.
void LayerWalkCommandTest::currentLayerFollows()
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

void LayerWalkCommandTest::purgesVerifiesAndSavesAState()
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
        QCOMPARE(list(dialog).findItems("* " + pinned, Qt::MatchExactly).size(), 1);
        trigger(dialog, "saveState");
        child<QCheckBox>(dialog, "restoreBox")->setChecked(true);
        dialog.close();
    };
    const auto readCounts = [&](QDialog& report) {
        for (const QLineEdit* edit : report.findChildren<QLineEdit*>())
            counts.append(edit->text());
        report.close();
    };
    const auto nameState = [](QDialog& naming) {
        child<QComboBox>(naming, "nameBox")->setEditText(QStringLiteral("只看墙"));
        press(naming, "okButton");
    };
    run(QStringLiteral("laywalk"), {acts, readCounts, nameState});
    QCOMPARE(counts, (QStringList{QString::number(count), "1", QString::number(entities)}));
    // Layers without an entity stay where they are current or a reference's.
    const auto left = drawing().layers().size();
    QVERIFY(left < count && left + static_cast<std::size_t>(unused) >= count);
    const auto state = drawing().layerState(QStringLiteral("只看墙"));
    QVERIFY(state.has_value());
    for (const drawing::LayerStateLayer& layer : state->layers)
        QCOMPARE(layer.properties.off, layer.properties.name != pinned);
    QVERIFY(shown().size() > 1);
    drawing().undo();
    QVERIFY(savedBytes() == m_original);
}

void LayerWalkCommandTest::refusesToPurgeWhatIsUsed()
{
    walk(true, [](QDialog& dialog) {
        click(dialog, "A-WALL");
        press(dialog, "purgeButton");
        QVERIFY(!list(dialog).findItems("  A-WALL", Qt::MatchExactly).isEmpty());
    });
    const QStringList messages = m_host->log().filter("message|");
    QCOMPARE(messages.size(), 1);
    QVERIFY(messages.first().contains("A-WALL") && messages.first().contains("没有清除"));
}

void LayerWalkCommandTest::picksFromTheCanvas_data()
{
    const Rows<int, int> row("key", "selected");
    row("ENTER", Qt::Key_Return, 1);
    row("right button", 0, 1);
    row("Esc", Qt::Key_Escape, -1); // As it was.
}

void LayerWalkCommandTest::picksFromTheCanvas()
{
    QFETCH(int, key);
    QFETCH(int, selected);
    Canvas& canvas = *m_window->canvas();
    const auto picking = [&](QDialog& dialog) {
        trigger(dialog, "selectAll");
        if (selected < 0)
            selected = list(dialog).count();
        QTimer::singleShot(0, &canvas, [&] {
            // Something of each kind lies along the middle.
            for (int x = 0; canvas.selection().empty() && x < canvas.width(); x += 3)
                QTest::mouseClick(&canvas, Qt::LeftButton, {}, QPoint(x, canvas.height() / 2));
            QVERIFY(!dialog.isVisible() && !canvas.selection().empty());
            if (key)
                QTest::keyClick(&canvas, Qt::Key(key));
            else
                QTest::mouseClick(&canvas, Qt::RightButton);
        });
        child<QToolButton>(dialog, "pickButton")->click();
        QVERIFY(canvas.selection().empty());
    };
    const auto picked = [&](QDialog& dialog) {
        QCOMPARE(list(dialog).selectedItems().size(), selected);
        QCOMPARE(shown().size(), selected);
        dialog.close();
    };
    run(QStringLiteral("laywalk"), {picking, picked});
}

QTEST_MAIN(LayerWalkCommandTest)

#include "tst_laywalkcommand.moc"
