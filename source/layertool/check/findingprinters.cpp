#include "findingprinters.h"

#include "rules.h"
#include "texts.h"

#include <QDateTime>
#include <QDir>
#include <QJsonDocument>
#include <QSet>
#include <QUrl>
#include <QXmlStreamWriter>

#include <utility>

namespace layertool {

namespace {

QString valueOf(const QJsonObject& json, const char* key)
{
    return json.value(QLatin1String(key)).toString();
}

bool isKnown(const QJsonObject& finding)
{
    return finding.value(QLatin1String("known")).toBool();
}

QByteArray linesText(const QStringList& lines)
{
    return lines.isEmpty() ? QByteArray() : lines.join(QLatin1Char('\n')).toUtf8() + '\n';
}

/// Prints one line per finding in the style of compilers.
class LinePrinter : public Printer
{
public:
    QByteArray textOf(const Result& result) const override
    {
        QStringList lines;
        if (result.status == Result::Status::Failed)
            lines += Texts::tr("%1: 失败: %2").arg(result.name, result.text);
        for (const QJsonValue& value : result.data) {
            const QJsonObject finding = value.toObject();
            if (!isKnown(finding))
                lines += QStringLiteral("%1:%2: %3: %4")
                             .arg(result.name, valueOf(finding, "layer"), valueOf(finding, "rule"),
                                 valueOf(finding, "text"));
        }
        return linesText(lines);
    }
};

/// Prints one sorted fingerprint per line, for --baseline.
class BaselinePrinter : public Printer
{
public:
    QByteArray textOf(const Result& result) const override
    {
        QStringList lines;
        for (const QJsonValue& value : result.data) {
            const QJsonObject finding = value.toObject();
            lines += QStringLiteral("%1 %2 %3 %4")
                         .arg(valueOf(finding, "fingerprint"), valueOf(finding, "rule"),
                             result.name, valueOf(finding, "layer"));
        }
        return linesText(lines);
    }
    QByteArray added(const Result&, const QByteArray& text) override
    {
        m_lines += QString::fromUtf8(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        return {};
    }
    QByteArray end() override
    {
        m_lines.sort();
        m_lines.removeDuplicates();
        return linesText(m_lines);
    }

private:
    QStringList m_lines;
};

/// Prints SARIF 2.1.0 with errata 01: one run with one result per finding and a region for the
/// layer's record.
class SarifPrinter : public Printer
{
public:
    explicit SarifPrinter(const Printing& printing) : m_printing(printing) {}

    QByteArray begin() override;
    QByteArray textOf(const Result& result) const override;
    QByteArray added(const Result& result, const QByteArray& text) override;
    QByteArray end() override;

private:
    static QJsonObject message(const QString& text) { return {{QStringLiteral("text"), text}}; }
    QJsonObject artifactLocation(const Result& result) const;
    QJsonArray ruleDescriptions() const;
    QJsonObject resultOf(const Result& result, const QJsonObject& finding) const;
    QJsonObject invocation() const;

    Printing m_printing;
    QDateTime m_begun;
    bool m_isFirst = true;
    QJsonArray m_faults;
};

/// The address of a drawing, relative to the root like all names, or absolute for a drawing
/// elsewhere.
QJsonObject SarifPrinter::artifactLocation(const Result& result) const
{
    const QString root =
        QDir(m_printing.arguments.value("root", QDir::currentPath())).canonicalPath();
    if (result.input == QLatin1Char('/') + result.name || root.isEmpty())
        return {{QStringLiteral("uri"),
            QString::fromLatin1(QUrl::fromLocalFile(result.input).toEncoded())}};
    return {{QStringLiteral("uri"), QString::fromLatin1(QUrl::toPercentEncoding(result.name, "/"))},
        {QStringLiteral("uriBaseId"), QStringLiteral("SRCROOT")}};
}

QJsonArray SarifPrinter::ruleDescriptions() const
{
    QJsonArray all;
    for (const Rule& rule : rules())
        all.append(QJsonObject{{QStringLiteral("id"), QLatin1String(rule.id)},
            {QStringLiteral("shortDescription"), message(Texts::tr(rule.text))},
            {QStringLiteral("fullDescription"), message(Texts::tr(rule.text))},
            {QStringLiteral("help"), message(Texts::tr(rule.text))},
            {QStringLiteral("defaultConfiguration"),
                QJsonObject{{QStringLiteral("level"), QLatin1String(levelWord(rule.level))}}}});
    return all;
}

QJsonObject SarifPrinter::resultOf(const Result& result, const QJsonObject& finding) const
{
    QJsonObject physical{{QStringLiteral("artifactLocation"), artifactLocation(result)}};
    QJsonObject region;
    if (finding.contains(QLatin1String("line")))
        region = {{QStringLiteral("startLine"), finding.value(QLatin1String("line"))},
            {QStringLiteral("endLine"), finding.value(QLatin1String("end-line"))}};
    else if (finding.contains(QLatin1String("offset")))
        region = {{QStringLiteral("byteOffset"), finding.value(QLatin1String("offset"))},
            {QStringLiteral("byteLength"), finding.value(QLatin1String("length"))}};
    if (!region.isEmpty())
        physical.insert(QStringLiteral("region"), region);
    QJsonObject location{{QStringLiteral("physicalLocation"), physical}};
    if (const QString layer = valueOf(finding, "layer"); !layer.isEmpty())
        location.insert(QStringLiteral("logicalLocations"),
            QJsonArray{QJsonObject{{QStringLiteral("name"), layer},
                {QStringLiteral("fullyQualifiedName"), QStringLiteral("LAYER/") + layer}}});
    const QString fingerprint = valueOf(finding, "fingerprint");
    QJsonArray suppressions;
    if (isKnown(finding))
        suppressions.append(QJsonObject{{QStringLiteral("kind"), QStringLiteral("external")},
            {QStringLiteral("status"), QStringLiteral("accepted")}});
    return {{QStringLiteral("ruleId"), valueOf(finding, "rule")},
        {QStringLiteral("level"), valueOf(finding, "level")},
        {QStringLiteral("message"), message(valueOf(finding, "text"))},
        {QStringLiteral("locations"), QJsonArray{location}},
        {QStringLiteral("suppressions"), suppressions},
        {QStringLiteral("partialFingerprints"),
            QJsonObject{{QStringLiteral("layerFinding/v1"), fingerprint},
                {QStringLiteral("primaryLocationLineHash"), fingerprint}}}};
}

/// Begins the log. Its members are written in their order, and the results are added one by one.
QByteArray SarifPrinter::begin()
{
    m_begun = QDateTime::currentDateTimeUtc();
    return R"({"$schema":"https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/)"
           R"(sarif-schema-2.1.0.json","version":"2.1.0","runs":[{"results":[)";
}

QByteArray SarifPrinter::textOf(const Result& result) const
{
    QByteArrayList texts;
    for (const QJsonValue& finding : result.data)
        texts += QJsonDocument(resultOf(result, finding.toObject())).toJson(QJsonDocument::Compact);
    return texts.join(",\n");
}

QByteArray SarifPrinter::added(const Result& result, const QByteArray& text)
{
    if (result.status == Result::Status::Failed)
        m_faults.append(QJsonObject{{QStringLiteral("level"), QStringLiteral("error")},
            {QStringLiteral("message"), message(result.text)},
            {QStringLiteral("locations"),
                QJsonArray{QJsonObject{{QStringLiteral("physicalLocation"),
                    QJsonObject{
                        {QStringLiteral("artifactLocation"), artifactLocation(result)}}}}}}});
    if (text.isEmpty())
        return {};
    return (std::exchange(m_isFirst, false) ? "\n" : ",\n") + text;
}

QJsonObject SarifPrinter::invocation() const
{
    QJsonObject json{{QStringLiteral("executionSuccessful"), m_faults.isEmpty()},
        {QStringLiteral("startTimeUtc"), m_begun.toString(Qt::ISODate)},
        {QStringLiteral("endTimeUtc"), QDateTime::currentDateTimeUtc().toString(Qt::ISODate)}};
    if (!m_faults.isEmpty())
        json.insert(QStringLiteral("toolExecutionNotifications"), m_faults);
    return json;
}

QByteArray SarifPrinter::end()
{
    const QDir root(m_printing.arguments.value("root", QDir::currentPath()));
    const QString base = QString::fromLatin1(
        QUrl::fromLocalFile(root.canonicalPath() + QLatin1Char('/')).toEncoded());
    const QJsonObject driver{{QStringLiteral("name"), QStringLiteral("layertool")},
        {QStringLiteral("version"), QCoreApplication::applicationVersion()},
        {QStringLiteral("rules"), ruleDescriptions()}};
    const QJsonObject run{{QStringLiteral("tool"), QJsonObject{{QStringLiteral("driver"), driver}}},
        {QStringLiteral("automationDetails"),
            QJsonObject{{QStringLiteral("id"), QStringLiteral("layertool/check/")}}},
        {QStringLiteral("columnKind"), QStringLiteral("utf16CodeUnits")},
        {QStringLiteral("invocations"), QJsonArray{invocation()}},
        {QStringLiteral("originalUriBaseIds"),
            QJsonObject{{QStringLiteral("SRCROOT"), QJsonObject{{QStringLiteral("uri"), base}}}}}};
    const QByteArray members = QJsonDocument(run).toJson(QJsonDocument::Compact);
    return "\n]," + members.mid(1) + "]}\n";
}

/// Replaces characters that XML 1.0 cannot contain, although layer names may, by U+FFFD.
QString xmlText(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isControl = c.unicode() < 32 && c != QLatin1Char('\t') &&
                               c != QLatin1Char('\n') && c != QLatin1Char('\r');
        const bool isLone =
            (c.isHighSurrogate() && !(i + 1 < text.size() && text.at(i + 1).isLowSurrogate())) ||
            (c.isLowSurrogate() && !(i > 0 && text.at(i - 1).isHighSurrogate()));
        if (isControl || isLone || c.unicode() >= 0xfffe)
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

/// Writes the test suite of one drawing.
class SuiteWriter
{
public:
    SuiteWriter(const Result& result, QByteArray& text) : m_result(result), m_xml(&text)
    {
        m_xml.setAutoFormatting(true);
    }
    void write();

private:
    void beginCase(const QString& name, const QJsonObject& finding);
    void addFinding(const QJsonObject& finding);

    const Result& m_result;
    QXmlStreamWriter m_xml;
};

void SuiteWriter::beginCase(const QString& name, const QJsonObject& finding)
{
    m_xml.writeStartElement(QStringLiteral("testcase"));
    m_xml.writeAttribute(QStringLiteral("name"), xmlText(name));
    m_xml.writeAttribute(QStringLiteral("classname"), xmlText(m_result.name));
    m_xml.writeAttribute(QStringLiteral("file"), xmlText(m_result.name));
    if (finding.contains(QLatin1String("line")))
        m_xml.writeAttribute(
            QStringLiteral("line"), QString::number(finding.value(QLatin1String("line")).toInt()));
}

void SuiteWriter::addFinding(const QJsonObject& finding)
{
    QStringList name{
        valueOf(finding, "rule"), valueOf(finding, "layer"), valueOf(finding, "property")};
    name.removeAll(QString());
    beginCase(name.join(QLatin1Char(' ')), finding);
    if (isKnown(finding)) {
        m_xml.writeEmptyElement(QStringLiteral("skipped"));
    } else {
        m_xml.writeStartElement(QStringLiteral("failure"));
        m_xml.writeAttribute(QStringLiteral("message"), xmlText(valueOf(finding, "text")));
        m_xml.writeAttribute(QStringLiteral("type"), valueOf(finding, "rule"));
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
}

void SuiteWriter::write()
{
    int known = 0;
    for (const QJsonValue& finding : m_result.data)
        known += isKnown(finding.toObject()) ? 1 : 0;
    const bool isBroken = m_result.status == Result::Status::Failed;
    const bool isClean = m_result.data.isEmpty();
    m_xml.writeStartElement(QStringLiteral("testsuite"));
    m_xml.writeAttribute(QStringLiteral("name"), xmlText(m_result.name));
    const std::pair<const char*, int> counts[] = {{"tests", isClean ? 1 : m_result.data.size()},
        {"failures", m_result.data.size() - known}, {"errors", isBroken ? 1 : 0},
        {"skipped", known}};
    for (const auto& [key, count] : counts)
        m_xml.writeAttribute(QLatin1String(key), QString::number(count));
    m_xml.writeAttribute(QStringLiteral("time"), QString::number(m_result.seconds, 'f', 3));
    for (const QJsonValue& finding : m_result.data)
        addFinding(finding.toObject());
    if (isClean) {
        beginCase(QStringLiteral("check"), {});
        if (isBroken) {
            m_xml.writeStartElement(QStringLiteral("error"));
            m_xml.writeAttribute(QStringLiteral("message"), xmlText(m_result.text));
            m_xml.writeEndElement();
        }
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
}

/// Prints one test suite per drawing and one case per finding. A drawing without findings gets one
/// case that passes.
class JUnitPrinter : public Printer
{
public:
    QByteArray begin() override
    {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites>";
    }
    QByteArray textOf(const Result& result) const override
    {
        QByteArray text;
        SuiteWriter(result, text).write();
        return text;
    }
    QByteArray end() override { return "\n</testsuites>\n"; }
};

} // namespace

std::unique_ptr<Printer> makeFindingPrinter(const QString& format, const Printing& printing)
{
    if (format == QLatin1String("text"))
        return std::make_unique<LinePrinter>();
    if (format == QLatin1String("sarif"))
        return std::make_unique<SarifPrinter>(printing);
    if (format == QLatin1String("junit"))
        return std::make_unique<JUnitPrinter>();
    if (format == QLatin1String("baseline"))
        return std::make_unique<BaselinePrinter>();
    return nullptr;
}

} // namespace layertool
