#include "drawingloader.h"

#include "entities/drawingindexer.h"
#include "file/codepages.h"
#include "file/drawingtexts.h"
#include "file/symbolname.h"
#include "layers/layertablerecord.h"
#include "wholepart.h"

#include <algorithm>

namespace drawing {

namespace {

/// The line at an offset, counted from 1; 0 in files without lines.
qint64 lineOf(const DrawingFile& file, qint64 offset)
{
    const char lineEnd = file.spelling() == Spelling::OldText ? '\r' : '\n';
    return isBinary(file.spelling())
               ? 0
               : 1 + std::count(file.bytes().begin(), file.bytes().begin() + offset, lineEnd);
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

/// Explains why a file has no tagged sections. Older programs wrote files without sections; these
/// are recognised by the version that they may state, or by their groups.
QString notTagged(const DrawingFile& file, const QString& fileName, const QString& place)
{
    constexpr std::pair<std::string_view, const char*> kOldVersions[] = {
        {"AC1002", "R2.5"}, {"AC1003", "R2.6"}, {"AC1004", "R9"}, {"AC1006", "R10"}};
    constexpr int kMostTags = 1000;
    TagReader tags = file.allTags();
    Tag tag;
    for (int i = 0; i < kMostTags && tags.next(tag); ++i) {
        for (const auto& [version, release] : kOldVersions) {
            if (tag.trimmed() == version)
                return Texts::tr("文件“%1”是 %2 的 DXF，其中没有 SECTION 段，不能读取（%3）。")
                    .arg(fileName, QLatin1String(release), place);
        }
    }
    return Texts::tr("文件“%1”不是 DXF 图形，或者来自 R9 以前的版本：它不以 SECTION 段开头（%2）。")
        .arg(fileName, place);
}

Error faultError(const DrawingFile& file, const IndexFault& fault, const QString& fileName)
{
    Error error;
    // For a line that is too long, the offset is that of its group, which begins one line above.
    error.line = lineOf(file, fault.offset);
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
        error.text = notTagged(file, fileName, place);
        break;
    case IndexFaultKind::BadCode:
        error.text =
            isBinary(file.spelling())
                ? Texts::tr("文件“%1”%2的组码不存在。").arg(fileName, place)
                : Texts::tr("文件“%1”%2的组码“%3”不是数字。")
                      .arg(fileName, place, shown(file.view(file.valueRange(fault.offset))));
        break;
    case IndexFaultKind::TooLong:
        error.text = Texts::tr("文件“%1”%2太长，超过 %3 MB，不能读取。")
                         .arg(fileName, place)
                         .arg(kLongestLine >> 20);
        break;
    case IndexFaultKind::SectionWithoutName:
        error.text = Texts::tr("文件“%1”%2的段没有名称，不能读取。").arg(fileName, place);
        break;
    case IndexFaultKind::OutsideSections:
        error.text = Texts::tr("文件“%1”%2的内容不在任何段中，不能读取。").arg(fileName, place);
        break;
    case IndexFaultKind::TableWithoutName:
        error.text = Texts::tr("文件“%1”%2的表没有名称，不能读取。").arg(fileName, place);
        break;
    case IndexFaultKind::OutsideTables:
        error.text = Texts::tr("文件“%1”%2的记录不在任何表中，不能读取。").arg(fileName, place);
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
    error.hasWholePart = hasWholePart(fault);
    return error;
}

/// Refuses a file that is not tagged text at all, with a message that depends on how it begins.
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
    Loader(DrawingData& data, FileIndex index, EntityIndex entities)
        : m_data(data),
          m_index(std::move(index)),
          m_entities(std::move(entities))
    {
    }

    Expected<void> run(const OpenOptions& options);

private:
    Expected<TextCodec> chosenCodec(const OpenOptions& options);
    TextEvidence textEvidence() const;
    void loadLayerRecords();
    void loadNamedLayers();
    void loadEntities();
    std::vector<LayerNamePlace> namePlaces() const;
    void nameBlocks();

    std::string_view variable(HeaderVariable which) const
    {
        return m_index.header[which].trimmed();
    }
    /// A file without a version comes from a program that writes R12.
    std::string_view version() const
    {
        const std::string_view stated = variable(HeaderVariable::Version);
        return stated.empty() ? "AC1009" : stated;
    }
    LayerId layerNamed(std::string_view spelling);
    LayerId layerOf(LayerId spelling) const;

    DrawingData& m_data;
    FileIndex m_index; // Moved into the file later.
    EntityIndex m_entities;
    std::vector<LayerId> m_layerOfSpelling;
};

Expected<void> Loader::run(const OpenOptions& options)
{
    auto codec = chosenCodec(options);
    if (!codec)
        return tl::make_unexpected(codec.error());
    if (isBinary(m_data.file.spelling()))
        codec->setControls(TextCodec::Controls::Raw);
    const std::string_view current = variable(HeaderVariable::CurrentLayer);
    const FormatLimits limits = FormatLimits::of(version());
    m_data.file.setIndex(std::move(m_index), *codec, limits);
    m_data.linetypes.load();
    m_data.plotStyles.load();
    loadLayerRecords();
    loadNamedLayers();
    m_data.layers.setCurrent(current.empty() ? m_data.layers.zero() : layerNamed(current));
    loadEntities();
    m_data.layouts.load(m_data.file, m_data.entities);
    return {};
}

/// The requested code page, else the file's own. Texts that are clearly UTF-8 are read as such,
/// whatever an old file declares. Guesses are recorded as notices.
Expected<TextCodec> Loader::chosenCodec(const OpenOptions& options)
{
    const std::string_view named = variable(HeaderVariable::CodePage);
    if (!options.codePage.isEmpty()) {
        const auto wanted = TextCodec::ofCodePage(
            {options.codePage.constData(), static_cast<size_t>(options.codePage.size())});
        if (!wanted)
            return refusal(Texts::tr("没有代码页“%1”。").arg(QString::fromUtf8(options.codePage)));
        return *wanted;
    }
    TextCodec codec(version(), named);
    if (codec == TextCodec::utf8())
        return codec;
    const bool isKnown = TextCodec::ofCodePage(named).has_value();
    const TextEvidence evidence = textEvidence();
    if (evidence.speaksForUtf8(codec))
        return TextCodec::utf8();
    if (!isKnown && !isNoCodePage(named))
        m_data.openingNotices += Texts::tr("图形声明的代码页“%1”无法识别，文字按 %2 读取；"
                                           "可以用其他代码页重新打开。")
                                     .arg(shown(named), codec.title());
    else if (!isKnown && !evidence.isAscii())
        m_data.openingNotices += Texts::tr("图形没有说明文字的代码页，按 %1 读取；"
                                           "可以用其他代码页重新打开。")
                                     .arg(codec.title());
    return codec;
}

TextEvidence Loader::textEvidence() const
{
    TextEvidence evidence;
    if (!isBinary(m_data.file.spelling())) {
        evidence.add(m_data.file.bytes());
        return evidence;
    }
    TagReader tags = m_data.file.allTags();
    Tag tag;
    while (tags.next(tag))
        evidence.add(tag.text());
    return evidence;
}

void Loader::loadLayerRecords()
{
    const std::vector<ByteRange>& records = m_data.file.table(TableKind::Layer).records;
    LayerRecordReader reader(m_data.file.codec());
    m_data.layers.reserve(records.size());
    for (const ByteRange& range : records) {
        const LayerRecord record = reader.read(m_data.file.tags(range));
        // Nothing can be on a layer without a name, because entities that name no layer are on
        // layer 0.
        if (record.properties.name.isEmpty())
            continue;
        LayerEntry entry;
        entry.layer.properties = record.properties;
        LayerProperties& p = entry.layer.properties;
        p.plotStyle = m_data.plotStyles.name(p.colorIndex, record.plotStyle);
        entry.layer.dependsOnReference =
            record.dependsOnReference || p.name.contains(QLatin1Char('|'));
        entry.place = {range.begin};
        entry.end = range.end;
        entry.handle = record.handle;
        entry.plotStyle = record.plotStyle;
        entry.extension = record.extension;
        entry.hasRecord = true;
        entry.present = true;
        m_data.layers.load(entry);
    }
}

/// A layer that only entities name is a layer too; it has the default properties.
LayerId Loader::layerNamed(std::string_view spelling)
{
    QString name = m_data.file.decoded(trimmedView(spelling));
    if (name.isEmpty())
        name = QStringLiteral("0");
    if (const Layer* layer = m_data.layers.find(name))
        return layer->id;
    LayerEntry entry;
    LayerProperties& p = entry.layer.properties;
    p.name = name;
    p.plotStyle = m_data.plotStyles.name(p.colorIndex, 0);
    entry.layer.dependsOnReference = name.contains(QLatin1Char('|'));
    entry.present = true;
    return m_data.layers.load(entry);
}

void Loader::loadNamedLayers()
{
    layerNamed("0");
    for (const std::string_view spelling : m_entities.layerSpellings.names())
        m_layerOfSpelling.push_back(layerNamed(spelling));
}

LayerId Loader::layerOf(LayerId spelling) const
{
    return spelling == LayerId::None ? m_data.layers.zero()
                                     : m_layerOfSpelling[static_cast<size_t>(spelling)];
}

void Loader::loadEntities()
{
    std::vector<int> counts(static_cast<size_t>(m_data.layers.entryCount()));
    const LayerId zero = m_data.layers.zero();
    for (Entity& entity : m_entities.entities) {
        entity.layer = entity.layer == LayerId::None ? zero : layerOf(entity.layer);
        if (!entity.subEntity)
            ++counts[static_cast<size_t>(entity.layer)];
    }
    for (int i = 0; i < m_data.layers.entryCount(); ++i)
        m_data.layers.setEntityCount(static_cast<LayerId>(i), counts[static_cast<size_t>(i)]);
    nameBlocks();
    std::vector<LayerNamePlace> places = namePlaces();
    m_data.entities.load(std::move(m_entities.entities), std::move(m_entities.layerNameAt),
        std::move(m_entities.blocks), std::move(places));
}

std::vector<LayerNamePlace> Loader::namePlaces() const
{
    std::vector<LayerNamePlace> places;
    for (const LayerNamePlace& place : m_entities.blockLayers)
        places.push_back({place.value, layerOf(place.layer)});
    // XDATA may name layers that no longer exist, so it does not create layers.
    const DrawingFile& file = m_data.file;
    for (const qint64 value : m_entities.xdataNames) {
        const QString name = file.decoded(trimmedView(file.view(file.valueRange(value))));
        if (const Layer* layer = m_data.layers.find(name))
            places.push_back({value, layer->id});
    }
    return places;
}

void Loader::nameBlocks()
{
    for (size_t i = 0; i < m_entities.blocks.size(); ++i) {
        Block& block = m_entities.blocks[i];
        block.name = m_data.file.decoded(m_entities.blockNames[i].trimmed());
        const QString name = foldedName(block.name);
        block.layout = name.startsWith(QLatin1String("*model_space")) ||
                       name.startsWith(QLatin1String("*paper_space")) ||
                       name == QLatin1String("$model_space") ||
                       name == QLatin1String("$paper_space");
    }
}

} // namespace

Expected<void> loadDrawing(
    DrawingData& data, const QString& fileName, const OpenOptions& options, Progress* progress)
{
    const DrawingFile& file = data.file;
    if (auto known = checkFormat(file.bytes(), fileName); !known)
        return known;
    FileIndex index;
    EntityIndex entities;
    auto fault = DrawingIndexer(file.allTags(), progress).run(index, entities);
    if (fault && options.wholePart && hasWholePart(*fault)) {
        const Error cut = faultError(file, *fault, fileName);
        data.wholePart = wholePart(file, *fault, index, entities);
        data.file.setBytes(viewOf(data.wholePart));
        index = {};
        entities = {};
        fault = DrawingIndexer(file.allTags(), progress).run(index, entities);
        data.openingNotices +=
            Texts::tr("%1此后的内容没有读入；只能另存为其他文件。").arg(cut.text);
    }
    if (fault)
        return tl::make_unexpected(faultError(file, *fault, fileName));
    return Loader(data, std::move(index), std::move(entities)).run(options);
}

} // namespace drawing
