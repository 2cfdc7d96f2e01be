#include "drawing.h"
#include "linesdrawing.h"
#include "rows.h"
#include "stopwatch.h"
#include "windowsession.h"

#include <QFile>

#include <malloc.h>

#include <list>
#include <map>
#include <string>

namespace bench {

namespace {

constexpr int kLayers = 1000;

/// Makes sessions and their drawings once for all rows.
class Sessions
{
public:
    explicit Sessions(const QString& folder) : m_folder(folder) {}

    /// The session with this number of lines; null when its drawing could not be written or opened.
    std::shared_ptr<Session> with(int lines)
    {
        std::shared_ptr<Session>& session = m_sessions[lines];
        if (!session) {
            const QString path = pathOf(lines);
            if (path.isEmpty())
                return nullptr;
            session = std::make_shared<Session>(path);
            if (!session->open())
                session.reset();
        }
        return session;
    }
    /// The path of the drawing with this number of lines; empty when it could not be written.
    QString pathOf(int lines) const
    {
        const QString path = QStringLiteral("%1/lines-%2.dxf").arg(m_folder).arg(lines);
        return QFile::exists(path) || writeLines(path, lines, kLayers) ? path : QString();
    }

private:
    QString m_folder;
    std::map<int, std::shared_ptr<Session>> m_sessions;
};

using SessionsPointer = std::shared_ptr<Sessions>;

tl::expected<Sides, QString> noSession()
{
    return tl::make_unexpected(QStringLiteral("no window with a drawing of lines"));
}

tl::expected<Sides, QString> stall(
    const SessionsPointer& sessions, int lines, void (*prepare)(Session&), void (*act)(Session&))
{
    const auto session = sessions->with(lines);
    if (!session)
        return noSession();
    const auto whole = std::make_shared<double>();
    return Sides{[=] {
                     prepare(*session);
                     session->heart.reset();
                     *whole = timed(Clock::Wall, [&] { act(*session); });
                     return session->heart.longest();
                 },
        [whole] { return *whole; }, QStringLiteral("all of it")};
}

tl::expected<Sides, QString> firstPicture(const SessionsPointer& sessions, int lines)
{
    const auto session = sessions->with(lines);
    if (!session)
        return noSession();
    const QString path = sessions->pathOf(lines);
    return Sides{[session] { return timed(Clock::Wall, [&] { session->open(); }); },
        [path] {
            return timed(
                Clock::Wall, [&path] { const auto opened = drawing::Drawing::open(path); });
        },
        QStringLiteral("opening the file")};
}

tl::expected<Sides, QString> frame(
    const SessionsPointer& sessions, int lines, const std::function<double(Session&)>& act)
{
    const auto session = sessions->with(lines);
    if (!session)
        return noSession();
    return Sides{[=] { return act(*session); },
        [=] {
            const double out = session->zoomed(-1);
            session->showAll();
            return out;
        },
        QStringLiteral("painting all of it anew")};
}

double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// Compares the memory that a line takes in an open drawing with its size in the file.
tl::expected<Sides, QString> memory(const SessionsPointer& sessions, int lines)
{
    const QString path = sessions->pathOf(lines);
    if (path.isEmpty())
        return noSession();
    return Sides{[=] {
                     const double before = bytesInUse();
                     Session session(path);
                     session.open();
                     return (bytesInUse() - before) / lines;
                 },
        [=] {
            const double before = bytesInUse();
            const auto opened = drawing::Drawing::open(path);
            return (bytesInUse() - before) / lines;
        },
        QStringLiteral("the drawing without its picture")};
}

} // namespace

std::vector<Row> stallRows(const QString& folder)
{
    using Kind = Budget::Kind;
    const auto sessions = std::make_shared<Sessions>(folder);
    constexpr int kMillion = 1'000'000;
    std::vector<Row> rows{
        {"picture/first", QStringLiteral("first picture of 1,000,000 lines"), Measure::Wall,
            {Kind::AtMostTimes, 6}, 7, 3, [=] { return firstPicture(sessions, kMillion); }},
        {"picture/pan", QStringLiteral("a frame while panning, 1,000,000 lines"), Measure::Wall, {},
            15, 5,
            [=] { return frame(sessions, kMillion, [](Session& s) { return s.panned(); }); }},
        {"picture/zoom", QStringLiteral("a frame while zooming in, 1,000,000 lines"), Measure::Wall,
            {}, 15, 5,
            [=] { return frame(sessions, kMillion, [](Session& s) { return s.zoomed(8); }); }},
        {"memory/line", QStringLiteral("a line in an open drawing"), Measure::Memory, {}, 1, 1,
            [=] { return memory(sessions, kMillion); }},
    };
    struct Act
    {
        const char* name;
        const char* what;
        void (*prepare)(Session&);
        void (*act)(Session&);
    };
    static constexpr auto kNothing = [](Session&) {};
    static constexpr Act kActs[] = {
        {"open", "opening", kNothing, [](Session& s) { s.open(); }},
        {"pan", "panning and zooming", kNothing,
            [](Session& s) {
                s.pan();
                s.zoom();
            }},
        {"walk", "walking through layers", kNothing, [](Session& s) { s.walk(); }},
        {"change", "changing 141,000 objects to a layer", [](Session& s) { s.undo(); },
            [](Session& s) { s.changeTo(); }},
        {"undo", "undoing that", [](Session& s) { s.changeTo(); }, [](Session& s) { s.undo(); }},
    };
    struct Size
    {
        int lines;
        const char* shown;
        double seconds;
    };
    static constexpr Size kSizes[] = {{200'000, "200,000", 0.05}, {kMillion, "1,000,000", 0.1}};
    static std::list<std::string> names; // Rows only keep pointers to their names.
    for (const Size& size : kSizes) {
        for (const Act& act : kActs) {
            names.push_back(std::string("stall/") + act.name + '/' + size.shown);
            rows.push_back({names.back().c_str(),
                QStringLiteral("longest stall, %1, %2 lines")
                    .arg(QLatin1String(act.what), QLatin1String(size.shown)),
                Measure::Wall, {Kind::AtMostSeconds, size.seconds}, 5, 3,
                [=] { return stall(sessions, size.lines, act.prepare, act.act); }});
        }
    }
    return rows;
}

} // namespace bench
