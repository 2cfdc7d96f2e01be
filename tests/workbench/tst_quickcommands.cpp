#include "boxanswerer.h"
#include "commandtable.h"
#include "layermemory.h"
#include "ownsettings.h"
#include "rows.h"
#include "sketch.h"
#include "steps.h"

using drawing::LayerId;

namespace {

constexpr char kLayers[] = "A 62 1;B 62 5;C 62 3";
// The entities on A, B and C.
constexpr char kEntities[] = "0 LINE 8 A 10 0 20 0 11 1 21 0 0 LINE 8 B 10 0 20 0 11 1 21 0 "
                             "0 LINE 8 C 10 0 20 0 11 1 21 0 ";

} // namespace

/// Runs the layer commands without a dialog one after the other on one drawing.
class QuickCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_settings.clear();
        m_sketch.layers = kLayers;
        m_drawing = m_sketch.open(kEntities);
        QVERIFY(m_drawing);
        m_memory = std::make_unique<LayerMemory>();
        m_memory->history.setDrawing(m_drawing.get());
        m_said.clear();
        m_picks = 0;
    }

    void commands_data()
    {
        const Rows<QString, QString> row("commands", "layers");
        // A layer is its name followed by - off, * frozen, ! locked, > current.
        row("nothing yet", "", "0> A B C");
        row("freeze", "LAYFRZ:AC", "0> A* B C*");
        row("what is picked", "LAYFRZ:?B", "0> A B* C");
        row("nothing picked", "LAYFRZ:?", "0> A B C");
        row("off", "LAYOFF:AB", "0> A- B- C");
        row("lock and unlock", "LAYLCK:AB LAYULK:A", "0> A B! C");
        row("all on and thawed", "LAYOFF:AB LAYFRZ:BC LAYON LAYTHW", "0> A B C");
        row("current", "LAYMCUR:B", "0 A B> C");
        row("isolate", "LAYISO:A", "0- A> B- C-");
        row("restore", "LAYOFF:B LAYISO:A LAYUNISO", "0> A B- C");
        row("isolate anew", "LAYISO:A LAYISO:B LAYUNISO", "0> A B C");
        row("isolate with the current one", "LAYMCUR:A LAYISO:AB", "0- A> B C-");
        row("what is turned on meanwhile stays so", "LAYISO:A LAYON LAYUNISO", "0> A B C");
        row("lock the others", "lock LAYISO:A", "0! A> B! C!");
        row("unlock them again", "LAYLCK:B lock LAYISO:A LAYUNISO", "0> A B! C");
        row("undone", "LAYISO:A undo", "0> A B C");
        row("undone, then restored", "LAYISO:A undo LAYUNISO", "0> A B C");
        row("previous state", "LAYFRZ:A LAYOFF:B LAYERP", "0> A* B C");
        row("and the one before", "LAYFRZ:A LAYOFF:B LAYERP LAYERP", "0> A B C");
        row("previous state, undone", "LAYFRZ:A LAYOFF:B LAYERP undo", "0> A* B- C");
        row("undo is no state", "LAYFRZ:A LAYOFF:B undo LAYERP", "0> A B C");
        row("names stay", "LAYOFF:A rename LAYERP", "0> New B C");
        row("the current layer as well", "LAYMCUR:C LAYERP", "0> A B C");
        row("no previous state", "LAYERP", "0> A B C");
    }

    void commands()
    {
        QFETCH(QString, commands);
        for (const QString& command : commands.split(' ', Qt::SkipEmptyParts))
            run(command);
        QTEST(states(), "layers");
        QVERIFY(m_picks == (commands.contains('?') ? 1 : 0));
    }

    /// What cannot be done is reported, and the rest is done.
    void refusals()
    {
        run("LAYMCUR:A");
        BoxAnswerer answers({""});
        run("LAYFRZ:AB");
        QVERIFY(answers.waitForAll());
        QVERIFY(answers.texts().front().contains("不能冻结当前图层“A”"));
        QCOMPARE(states(), "0 A> B* C");
        run("LAYUNISO");
        QCOMPARE(m_said.last(), "没有隔离的图层。");
    }

    void movesToTheCurrentLayer()
    {
        run("LAYLCK:C");
        run("LAYMCUR:A");
        BoxAnswerer answers({""});
        run("LAYCUR:BC");
        QVERIFY(answers.waitForAll());
        QVERIFY(answers.texts().front().contains("1 个对象在锁定的图层上"));
        QCOMPARE(m_drawing->findLayer("A")->entityCount, 2);
        QCOMPARE(m_drawing->findLayer("C")->entityCount, 1);
        QCOMPARE(m_drawing->undoName(), "更改到当前图层");
    }

    /// The other layers are faded while isolation keeps them locked.
    void fades()
    {
        run("lock");
        run("LAYISO:A");
        const auto transparency = [this](int at) {
            return m_memory->isolation.shown(m_drawing->layers())[std::size_t(at)]
                .properties.transparency;
        };
        QCOMPARE(transparency(1), 0);
        QVERIFY(transparency(2) > 50);
        run("LAYULK:B");
        QCOMPARE(transparency(2), 0);
        QVERIFY(transparency(3) > 50);
    }

private:
    /// Runs "COMMAND:layers of the selected objects" (a "?" before the layers means that they are
    /// picked), "undo", "rename" (of A), or "lock" (isolates by locking).
    void run(const QString& word)
    {
        if (word == "undo")
            return m_drawing->undo();
        if (word == "lock")
            return QSettings().setValue("panel/isolateByLock", true);
        if (word == "rename") {
            edit(*m_drawing, "A", [](auto& layer) { layer.name = "New"; });
            return;
        }
        const CommandRow* const row = CommandTable().find(word.section(':', 0, 0));
        drawing::DrawingStep step(*m_drawing, row->displayTitle());
        run(*row, word.section(':', 1));
        step.commit();
    }

    void run(const CommandRow& row, const QString& layers)
    {
        std::vector<int> entities;
        for (int i = 0; i < 3; ++i) {
            if (layers.contains(QStringLiteral("ABC")[i]))
                entities.push_back(i);
        }
        CommandContext context{
            *m_drawing, nullptr, [this](const QString& text) { m_said += text; }, [] {}};
        context.memory = m_memory.get();
        if (!layers.startsWith('?'))
            context.selection = entities;
        context.pick = [this, entities] {
            ++m_picks;
            return entities;
        };
        row.create()->run(context);
    }

    QString states() const
    {
        QStringList states;
        for (const drawing::Layer& layer : m_drawing->layers()) {
            const drawing::LayerProperties& p = layer.properties;
            states += p.name + (p.off ? "-" : "") + (p.frozen ? "*" : "") + (p.locked ? "!" : "") +
                      (layer.id == m_drawing->currentLayer() ? ">" : "");
        }
        return states.join(' ');
    }

    const OwnSettings m_settings;
    Sketch m_sketch;
    std::unique_ptr<drawing::Drawing> m_drawing;
    std::unique_ptr<LayerMemory> m_memory;
    QStringList m_said;
    int m_picks = 0;
};

QTEST_MAIN(QuickCommandsTest)
#include "tst_quickcommands.moc"
