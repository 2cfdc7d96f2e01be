#include "options.h"

#include "texts.h"

namespace layertool {

namespace {

constexpr OptionRow kDrawing[] = {
    {"list", OptionKind::Path,
        QT_TRANSLATE_NOOP("layertool",
            "从文件读入图形的路径，每行一个；空行和以 # 开头的行不算，“-”为标准输入。"),
        "", true, false},
    {"root", OptionKind::Folder,
        QT_TRANSLATE_NOOP("layertool", "输出的相对路径从哪个文件夹算起；不给时为当前文件夹。"), "",
        false, false},
    {"output", OptionKind::Path,
        QT_TRANSLATE_NOOP("layertool", "结果写入哪个文件；不给时写到标准输出。"), "", false, false},
    {"report", OptionKind::Path,
        QT_TRANSLATE_NOOP("layertool", "把每个图形的结果写成一行 CSV 的报告文件。"), "", false,
        false},
    {"out", OptionKind::Folder,
        QT_TRANSLATE_NOOP("layertool",
            "输出文件夹，其中的相对路径与输入相同，并记有日志；没有时新建。原图形从不改动。"),
        "", false, false},
    {"force", OptionKind::Flag, QT_TRANSLATE_NOOP("layertool", "也重做日志表明已经完成的图形。"),
        "", false, false},
    {"wait", OptionKind::Flag,
        QT_TRANSLATE_NOOP("layertool", "输出文件夹正被另一次运行使用时等它结束。"), "", false,
        false},
    {"jobs", OptionKind::Count,
        QT_TRANSLATE_NOOP("layertool", "同时运行的进程数；不给时为处理器的个数。"), "", false,
        false},
    {"shard", OptionKind::Text,
        QT_TRANSLATE_NOOP("layertool", "K/N：只处理全部图形 N 份中的第 K 份（K 从 1 起）。"), "",
        false, false},
    {"time-limit", OptionKind::Number,
        QT_TRANSLATE_NOOP("layertool", "每个图形至多用多少秒；不给或为 0 时不限。"), "", false,
        false},
    {"memory-limit", OptionKind::Number,
        QT_TRANSLATE_NOOP("layertool", "每个进程至多用多少 MB 内存；不给或为 0 时不限。"), "",
        false, false},
    {"keep-going", OptionKind::Flag,
        QT_TRANSLATE_NOOP("layertool", "有图形失败时继续处理其余的（默认如此）。"), "", false,
        false},
    {"fail-fast", OptionKind::Flag,
        QT_TRANSLATE_NOOP("layertool", "有图形失败时不再开始新的图形。"), "", false, false},
    {"encoding", OptionKind::Text,
        QT_TRANSLATE_NOOP("layertool", "图形文字的代码页，例如 GBK；不给时依图形所述。")},
    {"quiet", OptionKind::Flag, QT_TRANSLATE_NOOP("layertool", "不显示进度和总计。"), "", false,
        false},
};

constexpr OptionRow kEditing[] = {
    {"in-place", OptionKind::Flag,
        QT_TRANSLATE_NOOP("layertool", "改动写回原图形（先写临时文件，完整后才替换）。"), "", false,
        false},
    {"backup", OptionKind::Flag,
        QT_TRANSLATE_NOOP(
            "layertool", "与 --in-place 一起：替换之前把原图形留为同名的 .bak 文件。"),
        "", false, false},
    {"dry-run", OptionKind::Flag,
        QT_TRANSLATE_NOOP("layertool", "只显示会改动什么，不写任何图形。")},
};

} // namespace

QString valueText(const OptionRow& row)
{
    switch (row.kind) {
    case OptionKind::Flag:
        break;
    case OptionKind::Text:
        return Texts::tr("文字").toUpper();
    case OptionKind::File:
    case OptionKind::Path:
        return Texts::tr("文件").toUpper();
    case OptionKind::Folder:
        return Texts::tr("文件夹").toUpper();
    case OptionKind::Number:
    case OptionKind::Count:
        return Texts::tr("数").toUpper();
    case OptionKind::Choice:
        return wordsOf(row.choices).join(QLatin1Char('|'));
    }
    return {};
}

OptionText optionText(const OptionRow& row)
{
    return {row, valueText(row), Texts::tr(row.text)};
}

std::vector<OptionText> optionTexts(const std::vector<OptionRow>& rows)
{
    std::vector<OptionText> texts;
    texts.reserve(rows.size());
    for (const OptionRow& row : rows)
        texts.push_back(optionText(row));
    return texts;
}

std::vector<OptionRow> joined(OptionRows first, OptionRows second)
{
    std::vector<OptionRow> all(first.begin(), first.end());
    all.insert(all.end(), second.begin(), second.end());
    return all;
}

OptionRows drawingOptions()
{
    return OptionRows::of(kDrawing);
}

OptionRows editingOptions()
{
    return OptionRows::of(kEditing);
}

OptionRow formatOption(const char* formats)
{
    return {"format", OptionKind::Choice,
        QT_TRANSLATE_NOOP("layertool", "结果的格式；不给时为 text。"), formats, false, false};
}

OptionRow languageOption()
{
    return {"language", OptionKind::Choice,
        QT_TRANSLATE_NOOP("layertool", "显示的语言；不给时依区域设置。"), language::kCodes, false,
        false};
}

OptionRow mergeOption()
{
    return {"merge", OptionKind::Flag,
        QT_TRANSLATE_NOOP("layertool", "新名已被占用时合并到那个图层；不给时拒绝。")};
}

} // namespace layertool
