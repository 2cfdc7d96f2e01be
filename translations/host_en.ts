<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>host</name>
    <message>
        <source>红</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>黄</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>绿</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>青</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>蓝</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>洋红</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>白</source>
        <translation>White</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>对话框“%1”出错: %2</source>
        <translation>The dialog “%1” failed: %2</translation>
    </message>
    <message>
        <source>无法加载模块“%1”: %2</source>
        <translation>Cannot load the module “%1”: %2</translation>
    </message>
    <message>
        <source>文件不存在</source>
        <translation>there is no such file</translation>
    </message>
    <message>
        <source>是(&amp;Y)</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>否(&amp;N)</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>zh</source>
        <extracomment>The folder of the manual&apos;s pages in this language.</extracomment>
        <translation>en</translation>
    </message>
    <message>
        <source>DXF 图形 (*.dxf)</source>
        <translation>DXF drawings (*.dxf)</translation>
    </message>
</context>
<context>
    <name>host::ColorDialog</name>
    <message>
        <source>选择颜色</source>
        <translation>Select Color</translation>
    </message>
    <message>
        <source>索引颜色(&amp;I)</source>
        <translation>&amp;Index Color</translation>
    </message>
    <message>
        <source>真彩色(&amp;T)</source>
        <translation>&amp;True Color</translation>
    </message>
</context>
<context>
    <name>host::ColorPreview</name>
    <message>
        <source>左上: 新颜色，右下: 原颜色</source>
        <translation>Upper left: the new color, lower right: the old one</translation>
    </message>
    <message>
        <source>颜色预览</source>
        <translation>Color preview</translation>
    </message>
</context>
<context>
    <name>host::FileDialog</name>
    <message>
        <source>选择文件</source>
        <translation>Select File</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>文件名(&amp;N):</source>
        <translation>File &amp;name:</translation>
    </message>
    <message>
        <source>文件类型:</source>
        <translation>Files of type:</translation>
    </message>
    <message>
        <source>查找范围:</source>
        <translation>Look in:</translation>
    </message>
    <message>
        <source>打开(&amp;O)</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>保存(&amp;S)</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>All files (*)</translation>
    </message>
</context>
<context>
    <name>host::HelpWindow</name>
    <message>
        <source>关闭(&amp;C)</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>帮助 - %1</source>
        <translation>Help - %1</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>host::IndexColorPage</name>
    <message>
        <source>ByLayer(&amp;L)</source>
        <translation>By&amp;Layer</translation>
    </message>
    <message>
        <source>ByBlock(&amp;K)</source>
        <translation>ByBloc&amp;k</translation>
    </message>
    <message>
        <source>颜色(&amp;C):</source>
        <translation>&amp;Color:</translation>
    </message>
    <message>
        <source>索引颜色:</source>
        <translation>Index colors:</translation>
    </message>
    <message>
        <source>索引: -    红,绿,蓝: -</source>
        <translation>Index: -    Red, green, blue: -</translation>
    </message>
    <message>
        <source>索引: %1    红,绿,蓝: %2,%3,%4</source>
        <translation>Index: %1    Red, green, blue: %2,%3,%4</translation>
    </message>
    <message>
        <source>索引颜色 10 至 249</source>
        <translation>Index colors 10 to 249</translation>
    </message>
    <message>
        <source>标准颜色</source>
        <translation>Standard colors</translation>
    </message>
    <message>
        <source>灰度</source>
        <translation>Grays</translation>
    </message>
</context>
<context>
    <name>host::RenameDialog</name>
    <message>
        <source>名称(&amp;N):</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>重命名</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Description</translation>
    </message>
</context>
<context>
    <name>vnsi::VnColorComboBox</name>
    <message>
        <source>选择颜色...</source>
        <translation>Select Color...</translation>
    </message>
</context>
<context>
    <name>vnsi::VnLineWidthComboBox</name>
    <message>
        <source>随层</source>
        <translation>ByLayer</translation>
    </message>
    <message>
        <source>随块</source>
        <translation>ByBlock</translation>
    </message>
    <message>
        <source>默认</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
</context>
</TS>
