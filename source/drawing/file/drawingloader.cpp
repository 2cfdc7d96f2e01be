#include "drawingloader.h"

#include "codepages.h"
#include "drawingindexer.h"
#include "drawingtexts.h"
#include "handles.h"

#include <algorithm>

namespace drawing {

namespace {

/// The line at an offset, from 1; 0 in files without lines.
qint64 lineOf(const DrawingData& data, qint64 offset)
{
    const char lineEnd = data.spelling == Spelling::OldText ? '\r' : '\n';
    return isBinary(data.spelling)
               ? 0
               : 1 + std::count(data.bytes.begin(), data.bytes.begin() + offset, lineEnd);
}

QString placeText(qint64 line, qint64 offset)
{
    return line > 0 ? Texts::tr("第 %1 行").arg(line) : Texts::tr("第 %1 字节").arg(offset + 1);
}

QString shown(std::string_view text)
{
    constexpr size_t kMost = 40;
    const std::string_view part = trimmedView(text.substr(0, kMost));
    return QString::fromUtf8(part.data(), static_cast<int>(part.size()));
}

Error faultError(const DrawingData& data, const IndexFault& fault, const QString& fileName)
{
    Error error;
    // Of a line that is too long it is known where its group begins, a line above.
    error.line = lineOf(data, fault.offset);
    if (error.line > 0 && fault.kind == IndexFaultKind::TooLong)
        ++error.line;
    const QString place = placeText(error.line, fault.offset);
    const QString section = shown(fault.section);
    switch (fault.kind) {
    case IndexFaultKind::Cancelled:
        error.cancelled = true;
        error.text = Texts::tr("已取消打开文件“%1”。").arg(fileName);
        break;
    case IndexFaultKind::NotTagged:
        error.text =
            Texts::tr("文件“%1”不是 DXF 图形：它不以 SECTION 段开头（%2）。").arg(fileName, place);
        break;
    case IndexFaultKind::BadCode:
        error.text =
            isBinary(data.spelling)
                ? Texts::tr("文件“%1”%2的组码不存在。").arg(fileName, place)
                : Texts::tr("文件“%1”%2的组码“%3”不是数字。")
                      .arg(fileName, place, shown(data.view(data.valueRange(fault.offset))));
        break;
    case IndexFaultKind::TooLong:
        error.text = Texts::tr("文件“%1”%2太长，超过 %3 MB，不能读取。")
                         .arg(fileName, place)
                         .arg(kLongestLine >> 20);
        break;
    case IndexFaultKind::SectionNotEnded:
        error.text =
            Texts::tr("文件“%1”不完整：%3 段到%2仍没有 ENDSEC。").arg(fileName, place, section);
        break;
    case IndexFaultKind::CutOff:
        error.text = section.isEmpty()
                         ? Texts::tr("文件“%1”不完整：在%2中断，缺少 EOF。").arg(fileName, place)
                         : Texts::tr("文件“%1”不完整：在%2、%3 段中中断，缺少 ENDSEC 和 EOF。")
                               .arg(fileName, place, section);
        break;
    }
    return error;
}

/// What is no tagged text at all is told apart by how it begins.
Expected<void> checkFormat(std::string_view bytes, const QString& fileName)
{
    const auto refusal = [&fileName](const char* text) {
        return tl::make_unexpected(Error{Texts::tr(text).arg(fileName), 1, false});
    };
    if (bytes.empty())
        return refusal(QT_TRANSLATE_NOOP("drawing", "文件“%1”是空的，不是 DXF 图形（第 1 行）。"));
    if (bytes.substr(0, 4) == "AC10")
        return refusal(QT_TRANSLATE_NOOP(
            "drawing", "文件“%1”是 DWG 图形，不能读取；请先另存为 DXF（第 1 行）。"));
    return {};
}

class Loader
{
public:
    explicit Loader(DrawingData& data) : m_data(data) {}

    void loadHeader();
    Expected<void> chooseCodec(const OpenOptions& options);
    void loadSymbols();
    void loadPlotStyles();
    void loadLayerRecords();
    void loadNamedLayers();
    void resolveEntities();
    void nameBlocks();
    void loadLayouts();

private:
    std::string_view variable(HeaderVariable which) const
    {
        return m_data.index.variable(which).trimmed();
    }
    /// Files without a version come from programs that write R12.
    std::string_view version() const
    {
        const std::string_view stated = variable(HeaderVariable::Version);
        return stated.empty() ? "AC1009" : stated;
    }
    TextEvidence textEvidence() const;
    QString symbolName(const ByteRange& record) const;
    LayerId layerNamed(std::string_view spelling);

    DrawingData& m_data;
    std::vector<LayerId> m_layerOfSpelling;
};

void Loader::loadHeader()
{
    m_data.limits = LayerRecordLimits::of(version());
    m_data.plotStylesByColor =
        m_data.index.variable(HeaderVariable::PlotStyleMode).printed() != "0";
    m_data.state.modelSpace = m_data.index.variable(HeaderVariable::TileMode).printed() != "0";
}

/// The code page wanted, else the file's own; texts that are plainly UTF-8 are read so, whatever an
/// old file says. What had to be guessed is noted.
Expected<void> Loader::chooseCodec(const OpenOptions& options)
{
    const std::string_view named = variable(HeaderVariable::CodePage);
    if (!options.codePage.isEmpty()) {
        const auto wanted = TextCodec::ofCodePage(
            {options.codePage.constData(), static_cast<size_t>(options.codePage.size())});
        if (!wanted)
            return tl::make_unexpected(Error{
                Texts::tr("没有代码页“%1”。").arg(QString::fromUtf8(options.codePage)), 0, false});
        m_data.codec = *wanted;
        return {};
    }
    m_data.codec = TextCodec(version(), named);
    if (m_data.codec == TextCodec::utf8())
        return {};
    const bool isKnown = TextCodec::ofCodePage(named).has_value();
    const TextEvidence evidence = textEvidence();
    if (evidence.speaksForUtf8(m_data.codec))
        m_data.codec = TextCodec::utf8();
    else if (!isKnown && !isNoCodePage(named))
        m_data.openingNotices += Texts::tr("图形声明的代码页“%1”无法识别，文字按 %2 读取；"
                                           "可以用其他代码页重新打开。")
                                     .arg(shown(named), m_data.codec.title());
    else if (!isKnown && !evidence.isAscii())
        m_data.openingNotices += Texts::tr("图形没有说明文字的代码页，按 %1 读取；"
                                           "可以用其他代码页重新打开。")
                                     .arg(m_data.codec.title());
    return {};
}

TextEvidence Loader::textEvidence() const
{
    TextEvidence evidence;
    if (!isBinary(m_data.spelling)) {
        evidence.add(m_data.bytes);
        return evidence;
    }
    TagReader tags = m_data.allTags();
    Tag tag;
    while (tags.next(tag))
        evidence.add(tag.text());
    return evidence;
}

QString Loader::symbolName(const ByteRange& record) const
{
    TagReader tags = m_data.tags(record);
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 2)
            return m_data.codec.decode(tag.trimmed());
    }
    return {};
}

void Loader::loadSymbols()
{
    for (const ByteRange& record : m_data.index.table(TableKind::Linetype).records) {
        const QString name = symbolName(record);
        m_data.linetypes.insert(name.toCaseFolded(), {name, record});
    }
    for (const ByteRange& record : m_data.index.table(TableKind::AppId).records)
        m_data.appIds.insert(symbolName(record).toCaseFolded());
}

void Loader::loadPlotStyles()
{
    if (m_data.plotStylesByColor)
        return;
    const ObjectPlace* root =
        m_data.index.objects.empty() ? nullptr : &m_data.index.objects.front();
    const ObjectPlace* names = dictionaryEntry(m_data, root, "ACAD_PLOTSTYLENAME");
    if (!names)
        return;
    TagReader tags = m_data.tags(names->range);
    std::string_view name;
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 3)
            name = tag.text();
        else if (tag.code == 350 || tag.code == 360)
            m_data.plotStyles.insert(tag.handle(), m_data.codec.decode(name));
    }
}

void Loader::loadLayerRecords()
{
    LayerRecordReader reader(m_data.codec);
    m_data.layers.reserve(m_data.index.table(TableKind::Layer).records.size());
    for (const ByteRange& range : m_data.index.table(TableKind::Layer).records) {
        const LayerRecord record = reader.read(m_data.tags(range));
        // Nothing can be on it: entities that name no layer are on layer 0.
        if (record.properties.name.isEmpty())
            continue;
        LayerEntry entry;
        entry.layer.properties = record.properties;
        LayerProperties& p = entry.layer.properties;
        p.plotStyle = m_data.plotStyleName(p.colorIndex, record.plotStyle);
        entry.layer.dependsOnReference =
            record.dependsOnReference || p.name.contains(QLatin1Char('|'));
        entry.place = {range.begin};
        entry.end = range.end;
        entry.handle = record.handle;
        entry.plotStyle = record.plotStyle;
        entry.hasRecord = true;
        entry.present = true;
        m_data.layers.load(entry);
    }
}

LayerId Loader::layerNamed(std::string_view spelling)
{
    QString name = m_data.codec.decode(trimmedView(spelling));
    if (name.isEmpty())
        name = QStringLiteral("0");
    if (const Layer* layer = m_data.layers.find(name))
        return layer->id;
    LayerEntry entry;
    entry.layer.properties.name = name;
    entry.layer.properties.plotStyle = m_data.plotStyleName(entry.layer.properties.colorIndex, 0);
    entry.layer.dependsOnReference = name.contains(QLatin1Char('|'));
    entry.present = true;
    return m_data.layers.load(entry);
}

/// Layers that only entities name are layers too, with everything as a plain layer has it.
void Loader::loadNamedLayers()
{
    const LayerId zero = layerNamed("0");
    for (const std::string_view spelling : m_data.index.layerSpellings.names())
        m_layerOfSpelling.push_back(layerNamed(spelling));
    const std::string_view current = variable(HeaderVariable::CurrentLayer);
    m_data.state.current = current.empty() ? zero : layerNamed(current);
}

void Loader::resolveEntities()
{
    const auto layerOf = [this](LayerId spelling) {
        return spelling == LayerId::None ? m_data.layers.find(QStringLiteral("0"))->id
                                         : m_layerOfSpelling[static_cast<size_t>(spelling)];
    };
    std::vector<int> counts(static_cast<size_t>(m_data.layers.entryCount()));
    for (Entity& entity : m_data.index.entities) {
        entity.layer = layerOf(entity.layer);
        if (!entity.subEntity)
            ++counts[static_cast<size_t>(entity.layer)];
    }
    for (const LayerNamePlace& place : m_data.index.blockLayers)
        m_data.namePlaces.push_back({place.value, layerOf(place.layer)});
    // XDATA may name layers that are no more; it brings none about.
    for (const qint64 value : m_data.index.xdataNames) {
        const QString name =
            m_data.codec.decode(trimmedView(m_data.view(m_data.valueRange(value))));
        if (const Layer* layer = m_data.layers.find(name))
            m_data.namePlaces.push_back({value, layer->id});
    }
    for (int i = 0; i < m_data.layers.entryCount(); ++i)
        m_data.layers.setEntityCount(static_cast<LayerId>(i), counts[static_cast<size_t>(i)]);
}

void Loader::nameBlocks()
{
    DrawingIndex& index = m_data.index;
    for (size_t i = 0; i < index.blocks.size(); ++i) {
        Block& block = index.blocks[i];
        block.name = m_data.codec.decode(index.blockNames[i].trimmed());
        const QString name = block.name.toCaseFolded();
        m_data.blockByName.insert(name, static_cast<int>(i));
        block.layout = name.startsWith(QLatin1String("*model_space")) ||
                       name.startsWith(QLatin1String("*paper_space")) ||
                       name == QLatin1String("$model_space") ||
                       name == QLatin1String("$paper_space");
    }
}

/// A layout is shown, if one is, by its active flag.
void Loader::loadLayouts()
{
    m_data.layouts = readLayouts(m_data);
    const auto active = std::find_if(m_data.layouts.begin(), m_data.layouts.end(),
        [](const Layout& layout) { return layout.isActive; });
    if (active != m_data.layouts.end())
        m_data.state.layout = static_cast<int>(active - m_data.layouts.begin());
}

} // namespace

Expected<void> loadDrawing(
    DrawingData& data, const QString& fileName, const OpenOptions& options, Progress* progress)
{
    if (auto known = checkFormat(data.bytes, fileName); !known)
        return known;
    const FileForm form = FileForm::of(data.bytes);
    data.spelling = form.spelling;
    data.firstTag = form.begin;
    DrawingIndexer indexer(data.allTags(), progress);
    if (const auto fault = indexer.run(data.index))
        return tl::make_unexpected(faultError(data, *fault, fileName));
    Loader loader(data);
    loader.loadHeader();
    if (auto chosen = loader.chooseCodec(options); !chosen)
        return chosen;
    if (isBinary(data.spelling))
        data.codec.setControls(TextCodec::Controls::Raw);
    if (data.limits.markers && data.index.table(TableKind::Layer).isNull()) {
        const qint64 offset =
            data.index.tablesEnd < 0 ? data.index.firstBody : data.index.tablesEnd;
        const qint64 line = lineOf(data, offset);
        return tl::make_unexpected(
            Error{Texts::tr("文件“%1”没有图层表（LAYER），到第 %2 行 TABLES 段已结束。")
                      .arg(fileName, QString::number(line)),
                line, false});
    }
    loader.loadSymbols();
    loader.loadPlotStyles();
    loader.loadLayerRecords();
    loader.loadNamedLayers();
    loader.resolveEntities();
    loader.nameBlocks();
    loader.loadLayouts();
    data.journal = EditJournal(data.bytes);
    return {};
}

} // namespace drawing
