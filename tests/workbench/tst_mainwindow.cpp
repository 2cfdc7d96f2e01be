#include "boxanswerer.h"
#include "canvas.h"
#include "commandline.h"
#include "mainwindow.h"
#include "ownsettings.h"
#include "recentfiles.h"
#include "rows.h"
#include "sketch.h"
#include "steps.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QToolButton>

namespace {

const QByteArray kLine = "0 LINE 8 A 10 0 20 0 11 1 21 0 ";

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_settings.clear();
        m_window.reset();
        m_sketch = std::make_unique<Sketch>();
        m_window = std::make_unique<MainWindow>();
        m_window->show();
    }

    void typedWords_data()
    {
        const Rows<QString, QString> row("typed", "answer");
        row("unknown", "frobnicate", "未知命令“frobnicate”");
        row("part of a name is no name", "LAYE", "未知命令“LAYE”");
        row("any case, blanks around", "  LayDel ", "请先打开一个图形");
        row("the window's own, not now", "save", "命令“SAVE”现在不可用");
    }

    void typedWords()
    {
        QFETCH(QString, typed);
        QFETCH(QString, answer);
        QTest::keyClicks(input(), typed);
        QTest::keyClick(input(), Qt::Key_Return);
        QVERIFY2(echo().section('\n', -1).contains(answer), qPrintable(echo()));
        QVERIFY(input()->text().isEmpty());
    }

    /// Whatever has the focus, what is typed is a command; but fields keep it, and lists the keys
    /// they have a use for.
    void typingGoesToTheLine_data()
    {
        const Rows<QString, QString, QString> row("focus", "typed", "line");
        row("canvas", "canvas", "zo", "zo");
        row("list", "layerPanelTable", "zo", "zo");
        row("space in a list", "layerPanelTable", " ", "");
        row("field", "layerSearch", "zo", "");
    }

    void typingGoesToTheLine()
    {
        QFETCH(QString, focus);
        QFETCH(QString, typed);
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        auto* const widget = find<QWidget>(qPrintable(focus));
        widget->setFocus();
        for (const QChar key : typed)
            QTest::keyClick(QApplication::focusWidget(), key.toLatin1());
        QTEST(input()->text(), "line");
    }

    void emptyLineRepeats_data()
    {
        const Rows<QString, Qt::Key, QString> row("before", "key", "said");
        row("nothing to repeat", "", Qt::Key_Return, "");
        row("ENTER after a command", "LAYER", Qt::Key_Return, "命令: LAYER");
        row("space", "layer", Qt::Key_Space, "命令: LAYER");
    }

    void emptyLineRepeats()
    {
        QFETCH(QString, before);
        QFETCH(Qt::Key, key);
        QVERIFY(open(kLine));
        m_window->runCommand(before);
        const int lines = echo().count('\n');
        QTest::keyClick(input(), key);
        QTEST(echo().section('\n', lines + 1, lines + 1), "said");
    }

    /// Esc on the empty line gives up what is selected; the place of the window is kept.
    void givesUpAndComesBack()
    {
        QVERIFY(open(kLine));
        m_window->waitForPicture();
        m_window->canvas()->setSelection({2, 3});
        QTest::keyClick(input(), Qt::Key_Escape);
        QVERIFY(m_window->canvas()->selection().empty());
        const QRect place(30, 40, 720, 480);
        m_window->setGeometry(place);
        m_window->close();
        MainWindow again;
        QCOMPARE(again.geometry(), place);
    }

    void completionOffersButDoesNotChoose()
    {
        const auto* const line = m_window->findChild<CommandLine*>();
        QSignalSpy entered(line, &CommandLine::entered);
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTest::keyClicks(input(), "layer");
        QCompleter* const completer = input()->completer();
        QVERIFY(completer->popup()->isVisible());
        // A command that picks on the canvas runs while the key is still being handled.
        connect(line, &CommandLine::entered, completer,
            [completer] { QVERIFY(!completer->popup()->isVisible()); });
        QStringList offered;
        for (int i = 0; completer->setCurrentRow(i); ++i)
            offered.append(completer->currentCompletion());
        QCOMPARE(offered, QStringList({"LAYER", "LAYERP", "LAYERSTATE"}));
        QTest::keyClick(input(), Qt::Key_Return);
        QCOMPARE(entered.value(0).value(0).toString(), "layer");
    }

    void historyWalks_data()
    {
        const Rows<QVector<int>, QString> row("keys", "shown");
        row("last one first", {Qt::Key_Up}, "two");
        row("stops at the first", {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up}, "one");
        row("and back to the empty line",
            {Qt::Key_Up, Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down}, "");
        row("escape clears", {Qt::Key_Up, Qt::Key_Escape}, "");
    }

    void historyWalks()
    {
        QFETCH(QVector<int>, keys);
        for (const char* word : {"one", "two", "two"}) {
            QTest::keyClicks(input(), QLatin1String(word));
            QTest::keyClick(input(), Qt::Key_Return);
        }
        for (const int key : keys)
            QTest::keyClick(input(), static_cast<Qt::Key>(key));
        QTEST(input()->text(), "shown");
    }

    void openingShowsTheDrawing()
    {
        QVERIFY(open(kLine));
        QCOMPARE(m_window->windowTitle(), "图层工作台 - sketch.dxf[*]");
        QCOMPARE(find<QLabel>("layerCountField")->text(), "3 个图层");
        QCOMPARE(find<QLabel>("currentLayerField")->text(), "当前图层: 0");
        QVERIFY(!find<QToolButton>("workCancel")->isVisible());
        QVERIFY(!action("SAVE")->isEnabled());
        QVERIFY(action("SAVEAS")->isEnabled());
        QVERIFY(!m_window->canvas()->extents().isEmpty());
    }

    void badFileIsNamedAndTheDrawingStays()
    {
        QVERIFY(open(kLine));
        const QByteArray content = "0\nSECTION\n2\nHEADER\nxx\n$ACADVER\n0\nENDSEC\n0\nEOF\n";
        const QString path = writtenFile(m_sketch->path("broken.dxf"), content);
        BoxAnswerer answerer({"取消"});
        m_window->openFile(path);
        QVERIFY(answerer.waitForAll());
        QVERIFY(answerer.texts()[0].contains("broken.dxf"));
        QVERIFY(answerer.texts()[0].contains(QRegularExpression("第 \\d+ 行")));
        QVERIFY(m_window->drawing()->path().endsWith("sketch.dxf"));
        QCOMPARE(contentOf(path), content);
        QVERIFY(action("OPEN")->isEnabled());
    }

    void reopensInAnotherCodePage()
    {
        QVERIFY(open("0 LINE 8 \xd1"));
        QVERIFY(m_window->drawing()->findLayer("�D1"));
        QTimer timer;
        QStringList typed{"ANSI_1251", "MARTIAN"};
        connect(&timer, &QTimer::timeout, this, [&typed] {
            auto* const dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            if (!dialog || typed.isEmpty())
                return;
            dialog->setTextValue(typed.takeLast());
            dialog->accept();
        });
        timer.start(2);
        BoxAnswerer answerer({"确定"});
        QSignalSpy opened(m_window.get(), &MainWindow::fileOpened);
        action("REOPEN")->trigger();
        QVERIFY(answerer.texts().value(0).contains("MARTIAN"));
        QVERIFY(opened.wait());
        QVERIFY(m_window->drawing()->findLayer("С"));
    }

    void whatIsWholeOfACutFileIsOffered()
    {
        const QString path = m_sketch->write(kLine + kLine);
        const QByteArray whole = contentOf(path);
        QVERIFY(QFile::resize(path, whole.size() - 20));
        const QByteArray content = contentOf(path);
        BoxAnswerer answerer({"打开完整的部分", "确定"});
        QSignalSpy opened(m_window.get(), &MainWindow::fileOpened);
        m_window->openFile(path);
        QVERIFY(opened.wait());
        QVERIFY(answerer.texts()[0].contains("sketch.dxf"));
        QVERIFY(m_window->windowTitle().contains("不完整"));
        turnOff();
        action("SAVE")->trigger();
        QVERIFY(answerer.waitForAll());
        QVERIFY(answerer.texts()[1].contains("另存"));
        QCOMPARE(contentOf(path), content);
    }

    void cancelledOpeningLeavesNothing()
    {
        QSignalSpy opened(m_window.get(), &MainWindow::fileOpened);
        m_window->openFile(m_sketch->write(kLine.repeated(20000)));
        QVERIFY(find<QToolButton>("workCancel")->isVisible());
        QVERIFY(!action("OPEN")->isEnabled());
        find<QToolButton>("workCancel")->click();
        QTRY_VERIFY(echo().contains("已取消"));
        QVERIFY(!m_window->drawing());
        QVERIFY(opened.isEmpty());
        QVERIFY(m_window->findChild<RecentFiles*>()->paths().isEmpty());
        QVERIFY(action("OPEN")->isEnabled());
    }

    void droppedFileOpens()
    {
        QMimeData data;
        data.setUrls(
            {QUrl("https://example.org/a.dxf"), QUrl::fromLocalFile(m_sketch->write(kLine))});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &enter);
        QVERIFY(enter.isAccepted());
        QSignalSpy opened(m_window.get(), &MainWindow::fileOpened);
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &drop);
        QVERIFY(opened.wait());

        QMimeData text;
        text.setText("no file");
        QDragEnterEvent other({5, 5}, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        other.ignore();
        QCoreApplication::sendEvent(m_window.get(), &other);
        QVERIFY(!other.isAccepted());
    }

    void recentFilesComeLatestFirst()
    {
        auto* const recent = m_window->findChild<RecentFiles*>();
        for (int i = 0; i < 12; ++i)
            recent->add(m_sketch->path(QStringLiteral("%1.dxf").arg(i)));
        recent->add(m_sketch->path("5.dxf"));
        QCOMPARE(recent->paths().size(), 9);
        QCOMPARE(recent->paths()[0], m_sketch->path("5.dxf"));
        QCOMPARE(recent->paths().count(m_sketch->path("5.dxf")), 1);
        QCOMPARE(RecentFiles().paths(), recent->paths());

        // The first file does not exist, so it is reported and removed from the menu.
        BoxAnswerer answerer({"确定"});
        recent->actions().first()->trigger();
        QVERIFY(answerer.waitForAll());
        QVERIFY(!recent->paths().contains(m_sketch->path("5.dxf")));
    }

    void undoNamesItsStep()
    {
        QVERIFY(open(kLine));
        turnOff();
        QVERIFY(m_window->isWindowModified());
        QVERIFY(action("UNDO")->text().startsWith("撤销 step"));
        QVERIFY(!action("REDO")->isEnabled());
        action("UNDO")->trigger();
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(action("REDO")->text().startsWith("重做 step"));
        QVERIFY(!m_window->drawing()->findLayer("A")->properties.off);
    }

    void layerChangeReachesTheCanvas()
    {
        QVERIFY(open("0 SOLID 8 A 10 0 20 0 11 9 21 0 12 0 22 9 13 9 23 9 "));
        Canvas* const canvas = m_window->canvas();
        const auto pixel = [canvas] {
            return canvas->grab().toImage().pixelColor(canvas->view().toScreen({4, 4}).toPoint());
        };
        QCOMPARE(pixel(), QColor(255, 0, 0));
        turnOff();
        QCOMPARE(pixel(), QColor(Qt::black));
        action("UNDO")->trigger();
        QCOMPARE(pixel(), QColor(255, 0, 0));
    }

    void closingAsks_data()
    {
        // An empty answer stands for Esc.
        const Rows<QString, bool, bool> row("answer", "closes", "writes");
        row("save", "保存", true, true);
        row("discard", "不保存", true, false);
        row("cancel", "取消", false, false);
        row("escape", "", false, false);
    }

    void closingAsks()
    {
        QFETCH(QString, answer);
        QFETCH(bool, writes);
        QVERIFY(open(kLine));
        const QString path = m_window->drawing()->path();
        const QByteArray before = contentOf(path);
        turnOff();
        BoxAnswerer answerer({answer});
        QTEST(m_window->close(), "closes");
        QVERIFY(answerer.waitForAll());
        QVERIFY(answerer.texts()[0].contains("sketch.dxf"));
        QCOMPARE(contentOf(path) != before, writes);
        QCOMPARE(m_window->isWindowModified(), !writes);
    }

    void openingAnotherAsks()
    {
        QVERIFY(open(kLine));
        turnOff();
        BoxAnswerer answerer({"取消"});
        m_window->openFile(m_sketch->write(kLine, "other.dxf"));
        QVERIFY(answerer.waitForAll());
        QVERIFY(m_window->isWindowModified());
        QVERIFY(action("OPEN")->isEnabled());
    }

    void failedSaveKeepsTheDrawing()
    {
        QVERIFY(open(kLine));
        turnOff();
        QVERIFY(QFileInfo(m_window->drawing()->path()).dir().removeRecursively());
        // Closing with "save" must not close the window when saving fails.
        BoxAnswerer answerer({"保存", "确定"});
        QVERIFY(!m_window->close() && answerer.waitForAll());
        QVERIFY(answerer.texts()[1].contains("sketch.dxf"));
        QVERIFY(m_window->isWindowModified());
        QVERIFY(m_window->drawing()->findLayer("A")->properties.off);
        QVERIFY(action("SAVE")->isEnabled());
    }

private:
    bool open(const QByteArray& entities)
    {
        QSignalSpy opened(m_window.get(), &MainWindow::fileOpened);
        m_window->openFile(m_sketch->write(entities));
        return opened.wait();
    }

    void turnOff()
    {
        QCOMPARE(edit(*m_window->drawing(), "A", [](auto& layer) { layer.off = true; }), "");
    }

    QString echo() const { return m_window->findChild<CommandLine*>()->echo(); }
    QLineEdit* input() const { return find<QLineEdit>("commandInput"); }
    QAction* action(const char* name) const { return find<QAction>(name); }
    template <class T>
    T* find(const char* name) const
    {
        return m_window->findChild<T*>(QLatin1String(name));
    }

    const OwnSettings m_settings;
    std::unique_ptr<Sketch> m_sketch;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(MainWindowTest)
#include "tst_mainwindow.moc"
