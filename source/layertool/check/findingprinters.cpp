#include "findingprinters.h"

#include "rules.h"
#include "texts.h"

#include <QDateTime>
#include <QDir>
#include <QJsonDocument>
#include <QSet>
#include <QUrl>
#include <QXmlStreamWriter>

namespace layertool {

namespace {

QString textOf(const QJsonObject& json, const char* key)
{
    return json.value(QLatin1String(key)).toString();
}

bool isKnown(const QJsonObject& finding)
{
    return finding.value(QLatin1String("known")).toBool();
}

/// A line a finding, as compilers have it.
class LinePrinter : public Printer
{
public:
    using Printer::Printer;

    void add(const Result& result) override
    {
        if (result.status == Result::Status::Failed)
            line(Texts::tr("%1: 失败: %2").arg(result.name, result.text));
        for (const QJsonValue& value : result.data) {
            const QJsonObject finding = value.toObject();
            if (!isKnown(finding))
                line(QStringLiteral("%1:%2: %3: %4")
                         .arg(result.name, textOf(finding, "layer"), textOf(finding, "rule"),
                             textOf(finding, "text")));
        }
    }

private:
    void line(const QString& text) { m_out.write(text.toUtf8() + '\n'); }
};

/// A fingerprint a line, sorted, for --baseline.
class BaselinePrinter : public Printer
{
public:
    using Printer::Printer;

    void add(const Result& result) override
    {
        for (const QJsonValue& value : result.data) {
            const QJsonObject finding = value.toObject();
            m_lines += QStringLiteral("%1 %2 %3 %4")
                           .arg(textOf(finding, "fingerprint"), textOf(finding, "rule"),
                               result.name, textOf(finding, "layer"));
        }
    }
    void end() override
    {
        m_lines.sort();
        m_lines.removeDuplicates();
        for (const QString& line : m_lines)
            m_out.write(line.toUtf8() + '\n');
    }

private:
    QStringList m_lines;
};

/// SARIF 2.1.0 with errata 01: one run; a result a finding; a region for the layer's record.
class SarifPrinter : public Printer
{
public:
    SarifPrinter(const Printing& printing, QIODevice& out) : Printer(out), m_printing(printing) {}

    void begin() override { m_begun = QDateTime::currentDateTimeUtc(); }
    void add(const Result& result) override;
    void end() override;

private:
    static QJsonObject message(const QString& text) { return {{QStringLiteral("text"), text}}; }
    QJsonObject artifactLocation(const Result& result) const;
    QJsonArray ruleDescriptions() const;
    QJsonObject resultOf(const Result& result, const QJsonObject& finding) const;
    QJsonObject invocation() const;

    Printing m_printing;
    QDateTime m_begun;
    QJsonArray m_results;
    QJsonArray m_faults;
};

/// Relative to the root as all names are; a drawing elsewhere by its absolute address.
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
    if (const QString layer = textOf(finding, "layer"); !layer.isEmpty())
        location.insert(QStringLiteral("logicalLocations"),
            QJsonArray{QJsonObject{{QStringLiteral("name"), layer},
                {QStringLiteral("fullyQualifiedName"), QStringLiteral("LAYER/") + layer}}});
    const QString fingerprint = textOf(finding, "fingerprint");
    QJsonArray suppressions;
    if (isKnown(finding))
        suppressions.append(QJsonObject{{QStringLiteral("kind"), QStringLiteral("external")},
            {QStringLiteral("status"), QStringLiteral("accepted")}});
    return {{QStringLiteral("ruleId"), textOf(finding, "rule")},
        {QStringLiteral("level"), textOf(finding, "level")},
        {QStringLiteral("message"), message(textOf(finding, "text"))},
        {QStringLiteral("locations"), QJsonArray{location}},
        {QStringLiteral("suppressions"), suppressions},
        {QStringLiteral("partialFingerprints"),
            QJsonObject{{QStringLiteral("layerFinding/v1"), fingerprint},
                {QStringLiteral("primaryLocationLineHash"), fingerprint}}}};
}

void SarifPrinter::add(const Result& result)
{
    if (result.status == Result::Status::Failed)
        m_faults.append(QJsonObject{{QStringLiteral("level"), QStringLiteral("error")},
            {QStringLiteral("message"), message(result.text)},
            {QStringLiteral("locations"),
                QJsonArray{QJsonObject{{QStringLiteral("physicalLocation"),
                    QJsonObject{
                        {QStringLiteral("artifactLocation"), artifactLocation(result)}}}}}}});
    for (const QJsonValue& finding : result.data)
        m_results.append(resultOf(result, finding.toObject()));
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

void SarifPrinter::end()
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
            QJsonObject{{QStringLiteral("SRCROOT"), QJsonObject{{QStringLiteral("uri"), base}}}}},
        {QStringLiteral("results"), m_results}};
    const QJsonObject log{
        {QStringLiteral("$schema"),
            QStringLiteral("https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/"
                           "sarif-schema-2.1.0.json")},
        {QStringLiteral("version"), QStringLiteral("2.1.0")},
        {QStringLiteral("runs"), QJsonArray{run}}};
    m_out.write(QJsonDocument(log).toJson());
}

/// What XML 1.0 cannot hold, which layer names may, is shown as the replacement character.
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

/// A suite a drawing, a case a finding; a drawing without findings has one case that passes.
class JUnitPrinter : public Printer
{
public:
    explicit JUnitPrinter(QIODevice& out) : Printer(out), m_xml(&out) {}

    void begin() override
    {
        m_xml.setAutoFormatting(true);
        m_xml.writeStartDocument();
        m_xml.writeStartElement(QStringLiteral("testsuites"));
    }
    void add(const Result& result) override;
    void end() override
    {
        m_xml.writeEndElement();
        m_xml.writeEndDocument();
    }

private:
    void beginCase(const Result& result, const QString& name, const QJsonObject& finding);
    void addFinding(const Result& result, const QJsonObject& finding);

    QXmlStreamWriter m_xml;
};

void JUnitPrinter::beginCase(const Result& result, const QString& name, const QJsonObject& finding)
{
    m_xml.writeStartElement(QStringLiteral("testcase"));
    m_xml.writeAttribute(QStringLiteral("name"), xmlText(name));
    m_xml.writeAttribute(QStringLiteral("classname"), xmlText(result.name));
    m_xml.writeAttribute(QStringLiteral("file"), xmlText(result.name));
    if (finding.contains(QLatin1String("line")))
        m_xml.writeAttribute(
            QStringLiteral("line"), QString::number(finding.value(QLatin1String("line")).toInt()));
}

void JUnitPrinter::addFinding(const Result& result, const QJsonObject& finding)
{
    QStringList name{
        textOf(finding, "rule"), textOf(finding, "layer"), textOf(finding, "property")};
    name.removeAll(QString());
    beginCase(result, name.join(QLatin1Char(' ')), finding);
    if (isKnown(finding)) {
        m_xml.writeEmptyElement(QStringLiteral("skipped"));
    } else {
        m_xml.writeStartElement(QStringLiteral("failure"));
        m_xml.writeAttribute(QStringLiteral("message"), xmlText(textOf(finding, "text")));
        m_xml.writeAttribute(QStringLiteral("type"), textOf(finding, "rule"));
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
}

void JUnitPrinter::add(const Result& result)
{
    int known = 0;
    for (const QJsonValue& finding : result.data)
        known += isKnown(finding.toObject()) ? 1 : 0;
    const bool isBroken = result.status == Result::Status::Failed;
    const bool isClean = result.data.isEmpty();
    m_xml.writeStartElement(QStringLiteral("testsuite"));
    m_xml.writeAttribute(QStringLiteral("name"), xmlText(result.name));
    const std::pair<const char*, int> counts[] = {{"tests", isClean ? 1 : result.data.size()},
        {"failures", result.data.size() - known}, {"errors", isBroken ? 1 : 0}, {"skipped", known}};
    for (const auto& [key, count] : counts)
        m_xml.writeAttribute(QLatin1String(key), QString::number(count));
    m_xml.writeAttribute(QStringLiteral("time"), QString::number(result.seconds, 'f', 3));
    for (const QJsonValue& finding : result.data)
        addFinding(result, finding.toObject());
    if (isClean) {
        beginCase(result, QStringLiteral("check"), {});
        if (isBroken) {
            m_xml.writeStartElement(QStringLiteral("error"));
            m_xml.writeAttribute(QStringLiteral("message"), xmlText(result.text));
            m_xml.writeEndElement();
        }
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
}

} // namespace

std::unique_ptr<Printer> makeFindingPrinter(
    const QString& format, const Printing& printing, QIODevice& out)
{
    if (format == QLatin1String("text"))
        return std::make_unique<LinePrinter>(out);
    if (format == QLatin1String("sarif"))
        return std::make_unique<SarifPrinter>(printing, out);
    if (format == QLatin1String("junit"))
        return std::make_unique<JUnitPrinter>(out);
    if (format == QLatin1String("baseline"))
        return std::make_unique<BaselinePrinter>(out);
    return nullptr;
}

} // namespace layertool
