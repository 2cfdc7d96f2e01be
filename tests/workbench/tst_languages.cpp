#include "dialogsamples.h"
#include "language.h"
#include "languagemenu.h"
#include "mainwindow.h"
#include "modulefixture.h"
#include "ownsettings.h"
#include "rows.h"
#include "trees.h"
#include "vnstrings.h"
#include "windowtexts.h"

#include <QHeaderView>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolButton>

namespace {

/// Makes a window and hands it to whoever looks at it.
using Look = std::function<void(QWidget& window)>;
using Show = std::function<void(const Look& look)>;

/// All that a window says but what is in the drawing.
QStringList textsIn(const QWidget& window)
{
    QStringList texts;
    for (const Place& place : placesIn(window))
        texts += place;
    QList<QWidget*> widgets = window.findChildren<QWidget*>();
    widgets.append(const_cast<QWidget*>(&window));
    for (const QWidget* widget : widgets)
        texts += {widget->windowTitle(), widget->toolTip(), widget->accessibleName()};
    for (const auto* header : window.findChildren<QHeaderView*>()) {
        for (int i = 0; header->orientation() == Qt::Horizontal && i < header->count(); ++i)
            texts += header->model()->headerData(i, Qt::Horizontal).toString();
    }
    return texts;
}

/// What is narrower than its text.
QStringList cutOff(const QWidget& window)
{
    QStringList cut;
    const auto look = [&cut](const QWidget* widget, QString text) {
        text.remove('&');
        if (widget->isVisible() && widget->width() < widget->fontMetrics().horizontalAdvance(text))
            cut += text;
    };
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        const auto* const tool = qobject_cast<const QToolButton*>(button);
        if (!tool || tool->toolButtonStyle() != Qt::ToolButtonIconOnly)
            look(button, button->text());
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (!label->wordWrap() && !Qt::mightBeRichText(label->text()))
            look(label, label->text());
    }
    for (const auto* header : window.findChildren<QHeaderView*>()) {
        for (int i = 0; header->orientation() == Qt::Horizontal && i < header->count(); ++i) {
            const QString text = header->model()->headerData(i, Qt::Horizontal).toString();
            if (header->isVisible() && !header->isSectionHidden(i) &&
                header->sectionSize(i) < header->fontMetrics().horizontalAdvance(text))
                cut += text;
        }
    }
    return cut;
}

} // namespace

Q_DECLARE_METATYPE(Show)

class LanguagesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_settings.clear(); }
    void cleanup() { LanguageMenu::useLanguage(QStringLiteral("zh")); }

    void windows_data()
    {
        // The letters that the agreed Chinese texts of a window have twice.
        const QHash<QString, QString> shared{
            {"Dialog/CmdLayerState", "FPTV"}, {"Dialog/CmdLaytrans", "R"}};
        const Rows<QString, Show, QString> row("code", "show", "shared");
        const auto add = [&](const QString& name, const Show& show) {
            for (const QString& code : QString(language::kCodes).split(' '))
                row(qPrintable(name + " in " + code), code, show,
                    code == "zh" ? shared.value(name) : QString());
        };
        add("main window", [](const Look& look) {
            MainWindow window;
            look(window);
        });
        for (const char* name : {"ColorDialog", "Dialog/CmdsUI/ReNameDlg"})
            add(name, [=](const Look& look) {
                const bool isColor = qstrcmp(name, "ColorDialog") == 0;
                const host::WatchedDialog dialog(isColor ? L"Dialog/Common" : L"Dialog/CmdsUI",
                    vnsi::vnutQStringToOdString(QString::fromLatin1(name)));
                dialog->setData(tree("{}"), {});
                look(*dialog.window());
            });
        for (const DialogSample& sample : dialogSamples())
            add(sample.name, [=](const Look& look) {
                const host::WatchedDialog dialog =
                    m_module.createDialog(sample.name, tree(sample.tree));
                look(*dialog.window());
            });
    }

    void windows()
    {
        QFETCH(QString, code);
        QFETCH(Show, show);
        LanguageMenu::useLanguage(code);
        show([&](QWidget& window) {
            window.show();
            if (auto* const unfold = window.findChild<QAbstractButton*>("extendButton"))
                unfold->click();
            auto* const pages = window.findChild<QTabWidget*>();
            for (int page = 0; page < (pages ? pages->count() : 1); ++page) {
                if (pages)
                    pages->setCurrentIndex(page);
                QCoreApplication::processEvents();
                QTEST(sharedLetters(window), "shared");
                if (code == "zh")
                    continue;
                const QRegularExpression chinese("[\\x{4e00}-\\x{9fff}]");
                QCOMPARE(textsIn(window).filter(chinese).join('|').remove("中文(&Z)"), QString());
                QCOMPARE(cutOff(window).join('|'), QString());
            }
        });
    }

    void helpKey_data() { windows_data(); }

    void helpKey()
    {
        QFETCH(QString, code);
        QFETCH(Show, show);
        LanguageMenu::useLanguage(code);
        show([&](QWidget& window) {
            window.show();
            QTest::keyClick(&window, Qt::Key_F1);
            const auto* const page = window.findChild<QTextBrowser*>("helpText");
            QVERIFY(page && page->source().path().startsWith("/manual/" + code + '/'));
            QVERIFY2(!page->source().path().endsWith("index.md"), qPrintable(window.objectName()));
            QVERIFY(page->document()->blockCount() > 1);
        });
    }

    void theMenuKeepsTheChoice()
    {
        MainWindow window;
        window.findChild<QAction*>("language_en")->trigger();
        LanguageMenu::useLanguage({});
        const MainWindow english;
        QVERIFY(english.findChild<QAction*>("language_en")->isChecked());
        QCOMPARE(english.findChild<QAction*>("SAVE")->toolTip(), "Save (SAVE)");
        LanguageMenu::useLanguage(QStringLiteral("zh"));
        QCOMPARE(MainWindow().findChild<QAction*>("SAVE")->toolTip(), "保存 (SAVE)");
    }

    void widthsKeptInChineseSuitEnglish()
    {
        LanguageMenu::useLanguage(QStringLiteral("zh"));
        std::make_unique<MainWindow>().reset();
        LanguageMenu::useLanguage(QStringLiteral("en"));
        MainWindow english;
        english.show();
        QCOMPARE(cutOff(english).join('|'), QString());
    }

private:
    const OwnSettings m_settings;
    ModuleFixture m_module;
};

QTEST_MAIN(LanguagesTest)
#include "tst_languages.moc"
