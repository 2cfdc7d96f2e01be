#include "commandtable.h"

#include "commands/laydelcommand.h"
#include "commands/layercommand.h"
#include "commands/layerstatecommand.h"
#include "commands/laymchcommand.h"
#include "commands/laymrgcommand.h"
#include "commands/laytranscommand.h"
#include "commands/laywalkcommand.h"

#include <algorithm>
#include <iterator>

namespace {

template <class T>
std::unique_ptr<LayerCommand> make()
{
    return std::make_unique<T>();
}

constexpr CommandRow kRows[] = {
    {"LAYER", QT_TRANSLATE_NOOP("Commands", "图层特性"), "layer", make<LayerPropertiesCommand>},
    {"LAYERSTATE", QT_TRANSLATE_NOOP("Commands", "图层状态"), "layer-states",
        make<LayerStateCommand>},
    {"LAYDEL", QT_TRANSLATE_NOOP("Commands", "删除图层"), "layer-delete", make<LayerDeleteCommand>},
    {"LAYMCH", QT_TRANSLATE_NOOP("Commands", "更改到图层"), "layer-change",
        make<LayerChangeCommand>},
    {"LAYMRG", QT_TRANSLATE_NOOP("Commands", "合并图层"), "layer-merge", make<LayerMergeCommand>},
    {"LAYWALK", QT_TRANSLATE_NOOP("Commands", "图层漫游"), "layer-walk", make<LayerWalkCommand>},
    {"LAYTRANS", QT_TRANSLATE_NOOP("Commands", "图层转换器"), "layer-translate",
        make<LayerTranslateCommand>},
};

} // namespace

const CommandRow* CommandTable::begin() const
{
    return std::begin(kRows);
}

const CommandRow* CommandTable::end() const
{
    return std::end(kRows);
}

const CommandRow* CommandTable::find(const QString& word) const
{
    const QString wanted = word.trimmed();
    const auto found = std::find_if(begin(), end(), [&wanted](const CommandRow& row) {
        return wanted.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0;
    });
    return found == end() ? nullptr : found;
}
