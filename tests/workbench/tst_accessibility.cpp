#include "drawing.h"
#include "gallery/gallery.h"
#include "mainwindow.h"
#include "modaldriver.h"
#include "modulefixture.h"
#include "ownsettings.h"
#include "vndialogs.h"
#include "vnmessages.h"
#include "windowtexts.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QTabWidget>
#include <QThread>
#include <QtTest>

namespace {

QString nameOf(const QWidget& widget)
{
    auto* const shown =
        QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget)); // Takes no const.
    return shown ? shown->text(QAccessible::Name).trimmed() : QString();
}

bool takesFocus(const QWidget& widget)
{
    return widget.isVisible() && widget.focusPolicy() != Qt::NoFocus && !widget.focusProxy();
}

/// Controls that nobody who hears the window could tell from each other.
QStringList unnamedControls(const QWidget& window)
{
    QStringList faults;
    QSet<QString> names;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!takesFocus(*widget))
            continue;
        const QString what =
            QString("%1 %2").arg(widget->metaObject()->className(), widget->objectName());
        const QString name = nameOf(*widget);
        if (name.isEmpty())
            faults += what + " has no name";
        else if (names.contains(name))
            faults += what + " is the second called " + name;
        names.insert(name);
    }
    return faults;
}

/// Cells that show a picture or a check mark but say nothing.
QStringList silentCells(const QWidget& window)
{
    QStringList faults;
    for (const QAbstractItemView* view : window.findChildren<QAbstractItemView*>()) {
        auto* const shown =
            QAccessible::queryAccessibleInterface(const_cast<QAbstractItemView*>(view));
        QAccessibleTableInterface* const cells = shown ? shown->tableInterface() : nullptr;
        if (!cells || !view->isVisible())
            continue;
        for (int row = 0; row < qMin(cells->rowCount(), 20); ++row) {
            for (int column = 0; column < cells->columnCount(); ++column) {
                const QModelIndex index = view->model()->index(row, column, view->rootIndex());
                const bool hasPicture = index.data(Qt::DecorationRole).isValid() ||
                                        index.data(Qt::CheckStateRole).isValid();
                QAccessibleInterface* const cell = cells->cellAt(row, column);
                if (hasPicture && (!cell || cell->text(QAccessible::Name).isEmpty()))
                    faults += QString("%1: cell %2, %3 says nothing")
                                  .arg(view->objectName())
                                  .arg(row)
                                  .arg(column);
            }
        }
    }
    return faults;
}

} // namespace

class AccessibilityTest : public QObject
{
    Q_OBJECT

private slots:
    /// Who hears a window instead of seeing it finds every control and every cell in it, and no two
    /// controls share a key.
    void everythingCanBeHeardAndReached()
    {
        MainWindow window;
        auto file =
            drawing::Drawing::open(SAMPLES "/office-floor.dxf", nullptr, QThread::currentThread());
        QVERIFY(file.has_value());
        window.setFile(std::move(*file));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        showEveryDialog(window, SAMPLES "/office-standard.dxf",
            [this](const QString& name, QWidget& shown) { look(name, shown); });
        lookAtHostDialogs();
        QCOMPARE(m_faults.join('\n'), QString());
        QVERIFY2(m_seen.size() > 20, qPrintable(m_seen.join(' ')));
    }

private:
    void look(const QString& name, const QWidget& window)
    {
        m_seen += name;
        auto* const pages = window.findChild<QTabWidget*>();
        for (int page = 0; page < (pages ? pages->count() : 1); ++page) {
            if (pages)
                pages->setCurrentIndex(page);
            lookAtPage(name, window);
        }
    }

    void lookAtPage(const QString& name, const QWidget& window)
    {
        QStringList faults = unnamedControls(window) + silentCells(window);
        // Their letters are agreed, and some stand twice among them.
        const bool isAgreed =
            QStringList{"Dialog_CmdLayerState", "Dialog_CmdLaytrans"}.contains(window.objectName());
        const QString shared = isAgreed ? QString() : sharedLetters(window);
        if (!shared.isEmpty())
            faults += "shares letters: " + shared;
        for (const QString& fault : qAsConst(faults))
            m_faults += name + ": " + fault;
    }

    void lookAtHostDialogs()
    {
        ModalDriver user;
        const auto lookAt = [&](const char* name) {
            user.then([this, name](QDialog& dialog) {
                look(name, dialog);
                dialog.reject();
            });
        };
        lookAt("file");
        vnsi::vnuiShowModelDialog(L"Dialog/Common", L"FileDialogBox", {});
        lookAt("message");
        vnsi::vnuiMessageBox(L"?", L"!", 4);
    }

    const OwnSettings m_settings;
    ModuleFixture m_module;
    QStringList m_seen;
    QStringList m_faults;
};

QTEST_MAIN(AccessibilityTest)
#include "tst_accessibility.moc"
