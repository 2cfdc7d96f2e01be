#pragma once

#include "drawingindex.h"
#include "editjournal.h"
#include "handleindex.h"
#include "layerrecord.h"
#include "layerstatetable.h"
#include "layertable.h"
#include "layouts.h"
#include "linetypedefinition.h"
#include "taglist.h"
#include "tagreader.h"
#include "textcodec.h"

#include <QSet>
#include <QStringList>

#include <array>
#include <memory>
#include <optional>

namespace drawing {

/// What changes as a whole with a step, besides the layers and the bytes.
struct DocumentState
{
    LayerId current = LayerId::None;
    quint64 handlesTaken = 0;                     ///< New handles given out.
    quint32 recordsMade = 0;                      ///< LAYER records ever inserted.
    int layerRecordsAdded = 0;                    ///< Those inserted less those removed.
    QSet<QString> newAppIds;                      ///< Added to the APPID table.
    QHash<QString, LinetypePointer> newLinetypes; ///< Added to the LTYPE table, by folded name.
    QHash<QString, quint64> newStyles;            ///< Added to the STYLE table, see `StyleIndex`.
    bool modelSpace = true;                       ///< What is shown: TILEMODE.
    int layout = 0;                               ///< The one shown, or shown last.
    std::shared_ptr<const LayerStateTable> layerStates = {}; ///< Null: as the file was read.
};

inline bool operator==(const DocumentState& a, const DocumentState& b)
{
    return a.current == b.current && a.handlesTaken == b.handlesTaken &&
           a.recordsMade == b.recordsMade && a.layerRecordsAdded == b.layerRecordsAdded &&
           a.newAppIds == b.newAppIds && a.newLinetypes == b.newLinetypes &&
           a.newStyles == b.newStyles && a.modelSpace == b.modelSpace && a.layout == b.layout &&
           a.layerStates == b.layerStates;
}

/// An entity that changed its layer, lost its own colour, or went.
struct EntityChange
{
    struct State
    {
        LayerId layer = LayerId::None;
        bool removed = false;
        bool colorByLayer = false;
    };

    int entity = 0;
    State before;
    State after;
};

/// What edits had to leave out because the file's version has no place for it.
class LeftOut
{
public:
    enum Kind { PlotFlag, Lineweight, TrueColor, LinetypeParts, LinetypeStyles, KindCount };

    /// Notes the layer or linetype it concerns.
    void note(Kind kind, const QString& name);
    /// A sentence for each kind.
    QStringList sentences() const;

private:
    struct Note
    {
        QString name; ///< The first one; empty when there is none.
        bool more = false;
    };

    std::array<Note, KindCount> m_notes;
};

/// A linetype of the file.
struct LinetypeEntry
{
    QString name; ///< As the file spells it.
    ByteRange record;
};

/// The STYLE records of the file.
struct StyleIndex
{
    QHash<quint64, ByteRange> records; ///< By handle.
    QHash<QString, quint64> handles;   ///< By folded name; shape files by their font's.
};

/// The inside of a drawing, shared by what reads and what edits it.
struct DrawingData
{
    std::string_view bytes; ///< The file as mapped.
    Spelling spelling = Spelling::Text;
    size_t firstTag = 0; ///< What stands in front of it is no part of the drawing.
    DrawingIndex index;
    TextCodec codec;
    LayerRecordLimits limits;
    QHash<QString, int> blockByName;         ///< By folded name.
    QHash<QString, LinetypeEntry> linetypes; ///< By folded name.
    std::optional<StyleIndex> styles;        ///< Made when a linetype asks for it.
    QSet<QString> appIds;                    ///< Folded names.
    QHash<quint64, QString> plotStyles;      ///< Names by handle; unused where styles go by colour.
    bool plotStylesByColor = true;
    std::optional<HandleIndex> handles;
    quint64 freeHandle = 0; ///< The first one to give out; 0 until it is needed.
    /// Where layers are named outside the entities' own group: BLOCK, ENDBLK and XDATA.
    std::vector<LayerNamePlace> namePlaces;
    std::vector<Layout> layouts;                         ///< One at least.
    std::shared_ptr<const LayerStateTable> loadedStates; ///< Null until they are asked for.
    QStringList openingNotices; ///< What had to be guessed or left out when it was read.
    QString statesPath;         ///< Where a format without objects keeps layer states.
    QString statesFault;        ///< Why these could not be read.

    EditJournal journal;
    LayerTable layers;
    DocumentState state;
    std::vector<EntityChange> entityChanges; ///< Of the open step.
    LeftOut leftOut;

    std::string_view view(const ByteRange& range) const
    {
        return range.isNull() ? std::string_view()
                              : bytes.substr(static_cast<size_t>(range.begin),
                                    static_cast<size_t>(range.end - range.begin));
    }
    TagReader tags(const ByteRange& range) const
    {
        return TagReader(view(range), range.isNull() ? 0 : range.begin, spelling);
    }
    TagReader allTags() const;
    TagList tagList(const QByteArray& tags) const { return TagList(tags, spelling); }
    /// How the tags there are written.
    TagStyle styleOf(const ByteRange& range) const { return TagStyle::of(view(range), spelling); }
    /// The range of the text value that begins at this offset.
    ByteRange valueRange(qint64 offset) const;
    /// Puts an entity on `layer`, or marks it as gone, as part of the open step.
    void changeEntity(size_t entity, LayerId layer, bool removed);
    /// Marks an entity as having the colour of its layer, as part of the open step.
    void dropColor(size_t entity);
    /// The linetype's name as the drawing spells it; null when it has none of that folded name.
    QString linetypeName(const QString& key) const;
    /// Null when there is no such object. The index of handles is made at the first call.
    const ObjectPlace* objectByHandle(quint64 handle);
    /// Name of the plot style of a layer with this colour index, 1..255, and plot style handle.
    QString plotStyleName(int colorIndex, quint64 handle) const;
};

} // namespace drawing
