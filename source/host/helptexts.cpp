#include "helptexts.h"

#include <QCoreApplication>

namespace host {

namespace {

struct HelpRow
{
    const char* dialogName;
    const char* title;
    const char* body;
};

/// The first row is the start page.
constexpr HelpRow kTexts[] = {
    {"", "图层工具",
        "<p>图层命令在对话框中显示图形的图层，单击“确定”或“应用”后修改图形。"
        "在任一对话框中单击“帮助”，可查看该对话框的说明。</p>"
        "<ul><li>图层特性管理器: 新建、删除、重命名图层，修改特性</li>"
        "<li>图层状态管理器: 保存和恢复图层设置</li>"
        "<li>删除、更改、合并: 整理图层</li>"
        "<li>图层漫游: 逐层查看图形</li>"
        "<li>图层转换器: 将图层转换为标准图层</li></ul>"},
    {"Dialog_CmdLayer", "图层特性管理器",
        "<p>列出图形中的所有图层及其特性。</p>"
        "<ul><li>单击“开”“冻结”“锁定”“打印”等列的图标，切换该特性。</li>"
        "<li>单击颜色、线型、线宽、透明度等单元格，在对话框中修改。</li>"
        "<li>双击状态图标，将图层置为当前。</li>"
        "<li>“新建”添加图层；“删除”标记图层，再次单击取消标记。"
        "图层 0、Defpoints、当前图层、被使用的图层和外部参照的图层不能删除。</li>"
        "<li>“应用”立即修改图形并保持对话框打开。</li></ul>"},
    {"Dialog_CmdLayerState", "图层状态管理器",
        "<p>保存图层的设置，以后再恢复。</p>"
        "<ul><li>“新建”以当前设置保存一个状态；“保存”覆盖所选状态。</li>"
        "<li>“恢复”应用所选状态；右侧选项决定恢复哪些特性。</li>"
        "<li>“输入”“输出”与图层状态文件 (*.las) 交换状态。</li></ul>"},
    {"Dialog_CmdLayerStateNew", "要保存的新图层状态",
        "<p>输入新图层状态的名称和说明。名称不能为空，也不能包含 "
        "\\ &lt; &gt; / \" : ; ? * | , = ` 。</p>"},
    {"Dialog_CmdLayerStateEdit", "编辑图层状态",
        "<p>修改所选状态中保存的图层特性。单击单元格修改，可添加或删除图层。</p>"},
    {"Dialog_CmdLayerStateAddNewLayer", "选择要添加到图层状态的图层",
        "<p>列出图形中尚未包含在此状态中的图层。选择一个或多个，单击“确定”。</p>"},
    {"Dialog_CmdLaydel", "删除图层",
        "<p>选择要删除的图层。图层上的对象将一并删除，使用该图层的块也会被重定义。</p>"},
    {"Dialog_CmdLaymch", "更改到图层",
        "<p>选择目标图层，或输入新图层的名称。所选对象将移到该图层。</p>"},
    {"Dialog_CmdLaymrg", "合并图层",
        "<p>选择要合并的图层或目标图层。被合并图层上的对象移到目标图层，然后删除被合并的图层。"
        "</p>"},
    {"Dialog_CmdLaywalk", "图层漫游",
        "<p>只显示列表中所选图层上的对象。</p>"
        "<ul><li>双击图层使其始终显示，名称前显示星号。</li>"
        "<li>过滤器中可使用通配符: * 任意字符，? 一个字符，# 数字，@ 字母，"
        "[...] 其中之一，~ 除外。</li>"
        "<li>“清除”删除没有被使用的图层。</li>"
        "<li>“退出时恢复”在关闭时恢复原来的显示。</li></ul>"},
    {"Dialog_CmdLaywalk_Verify", "检验",
        "<p>列出图形中的图层数、选定的图层数，以及选定图层上的图元数（包括块中的图元）。</p>"},
    {"Dialog_CmdLaytrans", "图层转换器",
        "<p>将“转换自”列表中的图层映射为“转换为”列表中的标准图层，然后单击“转换”。</p>"
        "<ul><li>“加载”从其他图形读取标准图层；“新建”自行定义。</li>"
        "<li>“映射”映射所选图层；“映射相同”映射所有同名图层。</li>"
        "<li>“设置”决定转换时改变哪些内容。</li></ul>"},
    {"Dialog_CmdLaytransNewEdit", "新建或编辑图层",
        "<p>输入标准图层的名称和特性。透明度是 0 至 90 的整数。</p>"},
    {"Dialog_CmdLaytransSetting", "图层转换器设置", "<p>决定转换图层时改变对象的哪些特性。</p>"},
    {"ColorDialog", "选择颜色",
        "<p>在“索引颜色”页选择 1 至 255 号颜色、ByLayer 或 ByBlock；"
        "在“真彩色”页按红、绿、蓝选择任意颜色。方向键在色块间移动，双击色块即确定。</p>"},
    {"Dialog_CmdsUI_ReNameDlg", "重命名", "<p>输入新的名称或说明，单击“确定”。</p>"},
};

} // namespace

HelpText helpText(const QString& dialogName)
{
    const HelpRow* found = kTexts;
    for (const HelpRow& row : kTexts) {
        if (dialogName == QLatin1String(row.dialogName))
            found = &row;
    }
    const auto tr = [](const char* text) { return QCoreApplication::translate("HelpTexts", text); };
    const QString title = tr(found->title);
    return {title, QStringLiteral("<h3>%1</h3>%2").arg(title, tr(found->body))};
}

} // namespace host
