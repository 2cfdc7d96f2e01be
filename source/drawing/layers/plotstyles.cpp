#include "plotstyles.h"

#include "handles.h"
#include "objectedits.h"
#include "symboltables.h"

namespace drawing {

void makePlotStyles(DrawingData& data, const QStringList& names)
{
    const Tag& mode = data.index.variable(HeaderVariable::PlotStyleMode);
    const ObjectPlace* dictionary =
        dictionaryEntry(data, &data.index.objects.front(), "ACAD_PLOTSTYLENAME");
    if (mode.isNull() || !dictionary)
        return;
    data.journal.replace(mode.valueRange(), numberInPlace(mode, 0));
    data.plotStylesByColor = false;
    ObjectEdits objects(data);
    const TagStyle style = objects.style();
    TagList tags = data.tagList(data.journal.current(dictionary->range));
    // The second part of the dictionary tells of its default alone.
    const int own = tags.find(100, 0, tags.size());
    int at = tags.find(100, own + 1, tags.size());
    QSet<QString> known;
    for (const DictionaryEntry& entry : dictionaryEntries(data, dictionary)) {
        const QString name = data.codec.decode(entry.key);
        known.insert(name.toCaseFolded());
        if (entry.object)
            data.plotStyles.insert(entry.object->handle, name);
    }
    for (const QString& name : names) {
        if (known.contains(name.toCaseFolded()))
            continue;
        const quint64 handle = SymbolTables(data).takeHandle();
        tags.insert(at++, style.tag(3, data.codec.encode(name)));
        tags.insert(at++, style.handle(350, handle));
        objects.store(handle, style.tag(0, "ACDBPLACEHOLDER") + style.handle(5, handle) +
                                  style.handle(330, dictionary->handle));
        data.plotStyles.insert(handle, name);
    }
    data.journal.replace(dictionary->range, tags.bytes());
}

} // namespace drawing
