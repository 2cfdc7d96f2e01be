#pragma once

#include "drawingdata.h"

namespace drawing {

/// The object a dictionary holds under `key`, as the file was read; null when there is none.
const ObjectPlace* dictionaryEntry(
    DrawingData& data, const ObjectPlace* dictionary, std::string_view key);

/// An entry of a dictionary; the object is null when the file lacks it.
struct DictionaryEntry
{
    std::string_view key;
    const ObjectPlace* object = nullptr;
};

/// The entries of a dictionary in their order, as the file was read; none of a null dictionary.
std::vector<DictionaryEntry> dictionaryEntries(DrawingData& data, const ObjectPlace* dictionary);

/// The objects a dictionary holds, as the file was read; none of a null dictionary.
std::vector<const ObjectPlace*> dictionaryObjects(DrawingData& data, const ObjectPlace* dictionary);

/// Handle of the extension dictionary of a record, object or table head; 0 when it has none.
quint64 extensionDictionary(TagReader tags);

/// Handle of a record, object or entity itself; 0 when it has none.
quint64 ownHandle(TagReader tags);

/// The linetypes by their handles.
QHash<quint64, QString> linetypeNames(const DrawingData& data);

/// The lowest handle that is surely free in the file as read, by what it uses and by its seed.
quint64 firstFreeHandle(const DrawingData& data);

} // namespace drawing
