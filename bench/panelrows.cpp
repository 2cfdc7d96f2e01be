#include "drawing.h"
#include "layercolumns.h"
#include "layerpanel.h"
#include "layerview.h"
#include "rows.h"
#include "stopwatch.h"
#include "windowsession.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>

#include <algorithm>

namespace bench {

namespace {

constexpr int kLayers = 100000;
constexpr int kEdited = 1000;         ///< The number of layers that are switched at once.
constexpr double kMostSeconds = 0.05; ///< The time for which the window may be blocked.

/// Writes layers of all colours with a line on each; a tenth of them has a description.
bool writeLayers(const QString& path)
{
    QByteArray lines;
    QByteArray text = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1021\n0\nENDSEC\n"
                      "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n1\n";
    for (int i = 0; i < kLayers; ++i) {
        const QByteArray number = QByteArray::number(qint64(i) * 7919 % 100003);
        text += "0\nLAYER\n2\nA-WALL-" + number + "\n70\n0\n62\n" +
                QByteArray::number(i % 255 + 1) + "\n6\nContinuous\n";
        if (i % 10 == 0)
            text += "1001\nAcAecLayerStandard\n1000\n\n1000\nPart " + number + "\n";
        lines += "0\nLINE\n8\nA-WALL-" + number + "\n10\n" + QByteArray::number(i % 317) +
                 "\n20\n" + QByteArray::number(i / 317) + "\n11\n" +
                 QByteArray::number(i % 317 + 1) + "\n21\n" + QByteArray::number(i / 317 + 1) +
                 "\n";
    }
    text += "0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + lines + "0\nENDSEC\n0\nEOF\n";
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

/// The panel in a window. Every measurement is the longest time for which the window is blocked
/// until its rows are complete.
struct ShownPanel
{
    explicit ShownPanel(std::unique_ptr<drawing::Drawing> opened) : drawing(std::move(opened))
    {
        panel.resize(900, 700);
        panel.show();
        QApplication::processEvents();
    }

    double longestStall(const std::function<void()>& act)
    {
        double longest = timed(Clock::Wall, act);
        bool isDone = false;
        while (!isDone) {
            isDone = panel.model()->isSettled();
            longest = std::max(longest, timed(Clock::Wall, [] { QApplication::processEvents(); }));
        }
        return longest;
    }

    double open()
    {
        panel.setDrawing(nullptr);
        return longestStall([this] { panel.setDrawing(drawing.get()); });
    }
    /// Types the next letter of a search, which starts again when it is complete.
    double type()
    {
        typed = (typed + 1) % 9;
        auto* const line = panel.findChild<QLineEdit*>(QStringLiteral("layerSearch"));
        return longestStall([&] { line->setText(QStringLiteral("WALL-777").left(typed)); });
    }
    double searchByExpression()
    {
        typed = (typed + 1) % 9;
        auto* const line = panel.findChild<QLineEdit*>(QStringLiteral("layerSearch"));
        return longestStall([&] { line->setText(QStringLiteral("/l+-.*%1$/").arg(typed)); });
    }
    double sort()
    {
        static constexpr const char* kBy[] = {"name", "color", "description", "count"};
        typed = (typed + 1) % 4;
        return longestStall([&] {
            panel.view()->sortByColumn(
                LayerColumns::find(QLatin1String(kBy[typed])), Qt::DescendingOrder);
        });
    }

    std::unique_ptr<drawing::Drawing> drawing;
    LayerPanel panel;
    int typed = 0;
};

tl::expected<QString, QString> layersIn(const QString& folder)
{
    const QString path = folder + QStringLiteral("/panel.dxf");
    if (!QFile::exists(path) && !writeLayers(path))
        return tl::make_unexpected(QStringLiteral("cannot write %1").arg(path));
    return path;
}

tl::expected<Sides, QString> stall(const QString& path, double (ShownPanel::*work)())
{
    auto opened = drawing::Drawing::open(path);
    if (!opened)
        return tl::make_unexpected(opened.error().text);
    const auto panel = std::make_shared<ShownPanel>(std::move(*opened));
    (void)panel->open();
    return Sides{[panel, work] { return ((*panel).*work)(); }, [] { return kMostSeconds; },
        QStringLiteral("50 ms")};
}

/// Selects layers in the panel of the main window and clicks a flag of one of them.
void switchLayers(Session& session)
{
    LayerView* const view = session.window.findChild<LayerView*>();
    std::vector<drawing::LayerId> layers;
    for (int row = kEdited; row < 2 * kEdited; ++row)
        layers.push_back(static_cast<LayerModel*>(view->model())->idAt(row));
    view->select(layers);
    emit view->toggled(layers.front(), LayerColumns::On);
    session.finishPicture();
}

/// The longest stall of the main window while layers are switched off or on, or while that is
/// undone.
tl::expected<Sides, QString> editStall(const QString& path, bool isUndone)
{
    const auto session = std::make_shared<Session>(path);
    if (!session->open())
        return tl::make_unexpected(QStringLiteral("cannot open %1").arg(path));
    return Sides{[session, isUndone] {
                     if (isUndone)
                         switchLayers(*session);
                     session->heart.reset();
                     isUndone ? session->undo() : switchLayers(*session);
                     return session->heart.longest();
                 },
        [] { return kMostSeconds; }, QStringLiteral("50 ms")};
}

} // namespace

std::vector<Row> panelRows(const QString& folder)
{
    using Sided = tl::expected<Sides, QString>;
    struct Work
    {
        const char* name;
        const char* what;
        Sided (*measure)(const QString& path);
    };
    static constexpr Work kWorks[] = {
        {"panel/open", "opening", [](const QString& p) { return stall(p, &ShownPanel::open); }},
        {"panel/filter", "a letter typed",
            [](const QString& p) { return stall(p, &ShownPanel::type); }},
        {"panel/expression", "a regular expression",
            [](const QString& p) { return stall(p, &ShownPanel::searchByExpression); }},
        {"panel/sort", "sorting by names, numbers, texts",
            [](const QString& p) { return stall(p, &ShownPanel::sort); }},
        {"panel/edit", "switching 1,000 layers",
            [](const QString& p) { return editStall(p, false); }},
        {"panel/undo", "undoing that", [](const QString& p) { return editStall(p, true); }},
    };
    std::vector<Row> rows;
    for (const Work& work : kWorks)
        rows.push_back({work.name,
            QStringLiteral("layer panel, 100,000 layers, longest stall: %1")
                .arg(QLatin1String(work.what)),
            Measure::Wall, {Budget::Kind::AtMostTimes, 1}, 16, 8,
            [folder, run = work.measure] { return layersIn(folder).and_then(run); }});
    return rows;
}

} // namespace bench
