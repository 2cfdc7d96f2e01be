#include "commandtable.h"

#include "commands/laydelcommand.h"
#include "commands/layercommand.h"
#include "commands/layerstatecommand.h"
#include "commands/laymchcommand.h"
#include "commands/laymrgcommand.h"
#include "commands/laytranscommand.h"
#include "commands/laywalkcommand.h"
#include "commands/quickcommands.h"

#include <algorithm>
#include <iterator>

namespace {

template <class T>
std::unique_ptr<LayerCommand> make(const char*)
{
    return std::make_unique<T>();
}

constexpr CommandRow kRows[] = {
    {"LAYER", QT_TRANSLATE_NOOP("workbench", "图层特性"), "layer", make<LayerPropertiesCommand>},
    {"LAYERSTATE", QT_TRANSLATE_NOOP("workbench", "图层状态"), "layer-states",
        make<LayerStateCommand>},
    {"LAYDEL", QT_TRANSLATE_NOOP("workbench", "删除图层"), "layer-delete",
        make<LayerDeleteCommand>},
    {"LAYMCH", QT_TRANSLATE_NOOP("workbench", "更改到图层"), "layer-change",
        make<LayerChangeCommand>},
    {"LAYMRG", QT_TRANSLATE_NOOP("workbench", "合并图层"), "layer-merge", make<LayerMergeCommand>},
    {"LAYWALK", QT_TRANSLATE_NOOP("workbench", "图层漫游"), "layer-walk", make<LayerWalkCommand>},
    {"LAYTRANS", QT_TRANSLATE_NOOP("workbench", "图层转换器"), "layer-translate",
        make<LayerTranslateCommand>},
    {"LAYISO", QT_TRANSLATE_NOOP("workbench", "隔离图层"), nullptr, quickcommands::make},
    {"LAYUNISO", QT_TRANSLATE_NOOP("workbench", "取消隔离图层"), nullptr, quickcommands::make},
    {"LAYFRZ", QT_TRANSLATE_NOOP("workbench", "冻结图层"), nullptr, quickcommands::make},
    {"LAYTHW", QT_TRANSLATE_NOOP("workbench", "解冻图层"), nullptr, quickcommands::make},
    {"LAYOFF", QT_TRANSLATE_NOOP("workbench", "关闭图层"), nullptr, quickcommands::make},
    {"LAYON", QT_TRANSLATE_NOOP("workbench", "打开图层"), nullptr, quickcommands::make},
    {"LAYLCK", QT_TRANSLATE_NOOP("workbench", "锁定图层"), nullptr, quickcommands::make},
    {"LAYULK", QT_TRANSLATE_NOOP("workbench", "解锁图层"), nullptr, quickcommands::make},
    {"LAYCUR", QT_TRANSLATE_NOOP("workbench", "更改到当前图层"), nullptr, quickcommands::make},
    {"LAYMCUR", QT_TRANSLATE_NOOP("workbench", "置为当前图层"), nullptr, quickcommands::make},
    {"LAYERP", QT_TRANSLATE_NOOP("workbench", "上一个图层状态"), nullptr, quickcommands::make},
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
