#include "findings.h"

#include "drawing.h"
#include "filecause.h"
#include "filestamp.h"
#include "texts.h"

#include <QFile>

#include <algorithm>

namespace layertool {

namespace {

/// Converts file offsets to lines and counts every section of the file only once.
class LineCounter
{
public:
    explicit LineCounter(const QString& path) : m_file(path)
    {
        if (m_file.open(QIODevice::ReadOnly) && m_file.size() > 0)
            m_bytes = reinterpret_cast<const char*>(m_file.map(0, m_file.size()));
    }
    /// The line of an offset, counted from 1. Offsets must not decrease.
    int lineOf(qint64 offset)
    {
        if (!m_bytes)
            return 0;
        const qint64 end = std::min(offset, m_file.size());
        // Some files end their lines with a CR only.
        if (m_lineEnd == 0)
            m_lineEnd = std::find(m_bytes, m_bytes + end, '\n') == m_bytes + end ? '\r' : '\n';
        m_line += static_cast<int>(std::count(m_bytes + m_at, m_bytes + end, m_lineEnd));
        m_at = end;
        return m_line;
    }

private:
    QFile m_file;
    const char* m_bytes = nullptr;
    char m_lineEnd = 0;
    qint64 m_at = 0;
    int m_line = 1;
};

QString fingerprintOf(const Result& result, const Finding& finding)
{
    const QStringList parts{
        QLatin1String(finding.rule), result.name, finding.layer, finding.property};
    return QString::fromLatin1(hashOf(parts.join(QLatin1Char('\n')).toUtf8()));
}

/// The position of each layer's record, by layer id.
QHash<int, QJsonObject> placesOf(
    const std::vector<Finding>& findings, const drawing::Drawing& drawing, const QString& path)
{
    std::vector<std::pair<drawing::ByteRange, int>> ranges;
    QSet<int> known;
    for (const Finding& finding : findings) {
        const int id = static_cast<int>(finding.id);
        if (finding.id == drawing::LayerId::None || known.contains(id))
            continue;
        known.insert(id);
        if (const auto range = drawing.recordRange(finding.id); !range.isNull())
            ranges.emplace_back(range, id);
    }
    std::sort(ranges.begin(), ranges.end(),
        [](const auto& a, const auto& b) { return a.first.begin < b.first.begin; });
    QHash<int, QJsonObject> places;
    LineCounter lines(path);
    for (const auto& [range, id] : ranges) {
        QJsonObject place{{QStringLiteral("offset"), static_cast<double>(range.begin)},
            {QStringLiteral("length"), static_cast<double>(range.end - range.begin)}};
        if (!drawing.isBinary()) {
            place.insert(QStringLiteral("line"), lines.lineOf(range.begin));
            place.insert(QStringLiteral("end-line"), lines.lineOf(range.end) - 1);
        }
        places.insert(id, place);
    }
    return places;
}

} // namespace

void addFindings(
    const std::vector<Finding>& findings, const drawing::Drawing& drawing, Result& result)
{
    const auto places = placesOf(findings, drawing, result.input);
    for (const Finding& finding : findings) {
        QJsonObject json = places.value(static_cast<int>(finding.id));
        json.insert(QStringLiteral("rule"), QLatin1String(finding.rule));
        json.insert(QStringLiteral("level"), QLatin1String(levelWord(finding.level)));
        json.insert(QStringLiteral("layer"), finding.layer);
        json.insert(QStringLiteral("property"), finding.property);
        json.insert(QStringLiteral("expected"), finding.expected);
        json.insert(QStringLiteral("actual"), finding.actual);
        json.insert(QStringLiteral("count"), finding.count);
        json.insert(QStringLiteral("text"), finding.text);
        json.insert(QStringLiteral("fingerprint"), fingerprintOf(result, finding));
        result.data.append(json);
    }
}

drawing::Expected<void> Baseline::read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tl::make_unexpected(
            drawing::Error{Texts::tr("无法读取基线“%1”：%2。").arg(path, causeOf(file))});
    for (const QByteArray& line : file.readAll().split('\n')) {
        const QByteArray word = line.trimmed().split(' ').value(0);
        if (!word.isEmpty() && !word.startsWith('#'))
            m_fingerprints.insert(QString::fromLatin1(word));
    }
    return {};
}

bool Baseline::knows(const QJsonObject& finding) const
{
    return m_fingerprints.contains(finding.value(QLatin1String("fingerprint")).toString());
}

} // namespace layertool
