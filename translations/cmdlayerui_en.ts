<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>cmdlayerui</name>
    <message>
        <source>名称包含不支持的字符。
 不支持以下字符：
  \&lt;&gt;/?&quot;:;*|,=`</source>
        <translation>The name contains unsupported characters.
 These characters are not supported:
  \&lt;&gt;/?&quot;:;*|,=`</translation>
    </message>
    <message>
        <source>图层状态 - 不支持的字符</source>
        <translation>Layer States - Unsupported Characters</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>在所有视口中冻结</source>
        <translation>Freeze in All Viewports</translation>
    </message>
    <message>
        <source>图层 - 删除图层状态</source>
        <translation>Layer - Delete Layer State</translation>
    </message>
    <message>
        <source>图层状态(*.las)</source>
        <translation>Layer state (*.las)</translation>
    </message>
    <message>
        <source>图形(*.dwg);;标准(*.dws);;图形样板(*.dwt);;图层状态(*.las)</source>
        <translation>Drawing (*.dwg);;Standards (*.dws);;Drawing template (*.dwt);;Layer state (*.las)</translation>
    </message>
    <message>
        <source>
名称 包含不支持的字符。


不支持以下字符:
  \&lt;&gt;/&quot;:;?*|,=`</source>
        <translation>
The name contains unsupported characters.


These characters are not supported:
  \&lt;&gt;/&quot;:;?*|,=`</translation>
    </message>
    <message>
        <source>图层-不支持的字符</source>
        <translation>Layer - Unsupported Characters</translation>
    </message>
    <message>
        <source>
图层名至少必须包含一个字符。</source>
        <translation>
A layer name must contain at least one character.</translation>
    </message>
    <message>
        <source>图层名无效</source>
        <translation>Invalid layer name</translation>
    </message>
    <message>
        <source>
图层名最多只能包含 255 个字符。</source>
        <translation>
A layer name may contain 255 characters at most.</translation>
    </message>
    <message>
        <source>图形(*.dwg)</source>
        <translation>Drawing (*.dwg)</translation>
    </message>
    <message>
        <source>标准(*.dws)</source>
        <translation>Standards (*.dws)</translation>
    </message>
    <message>
        <source>图形(*.dwg);;标准(*.dws);;图形样板(*.dwt)</source>
        <translation>Drawing (*.dwg);;Standards (*.dws);;Drawing template (*.dwt)</translation>
    </message>
    <message>
        <source>图形(*.dwg);;标准(*.dws)</source>
        <translation>Drawing (*.dwg);;Standards (*.dws)</translation>
    </message>
    <message>
        <source>关闭对话框时某些图层状态可能会发生更改。希望执行什么操
作？
您可以通过选择&quot;退出时恢复&quot;选项保留以前的图层状态设置。</source>
        <translation>Some layers may change when the dialog is closed.
What do you want to do?
The option &quot;Restore on Exit&quot; keeps the layers as they were before.</translation>
    </message>
    <message>
        <source>图层 - 图层状态更改</source>
        <translation>Layer - Layer State Changes</translation>
    </message>
    <message>
        <source>继续</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>开</source>
        <translation>On</translation>
    </message>
    <message>
        <source>锁定</source>
        <translation>Lock</translation>
    </message>
    <message>
        <source>颜色</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>线型</source>
        <translation>Linetype</translation>
    </message>
    <message>
        <source>线宽</source>
        <translation>Lineweight</translation>
    </message>
    <message>
        <source>透明度</source>
        <translation>Transparency</translation>
    </message>
    <message>
        <source>打印样式</source>
        <translation>Plot Style</translation>
    </message>
    <message>
        <source>打印</source>
        <translation>Plot</translation>
    </message>
    <message>
        <source>新视口冻结</source>
        <translation>New VP Freeze</translation>
    </message>
    <message>
        <source>当前图层将被关闭。
是否要使当前图层保持打开状态?
</source>
        <translation>The current layer will be turned off.
Do you want to keep the current layer on?
</translation>
    </message>
    <message>
        <source>不能冻结当前图层
</source>
        <translation>The current layer cannot be frozen
</translation>
    </message>
    <message>
        <source>名称 的长度必须至少为一个字符</source>
        <translation>The name must be at least one character long</translation>
    </message>
    <message>
        <source>图层 - 文字长度</source>
        <translation>Layer - Text Length</translation>
    </message>
    <message>
        <source>图层名无效。

所允许的最大长度为 255 个字符
</source>
        <translation>Invalid layer name.

The greatest length allowed is 255 characters
</translation>
    </message>
    <message>
        <source>图层名中包含无效的字符。

图层名称中不得含有以下字符：
\&lt;&gt;/&quot;:;?*|,=`</source>
        <translation>The layer name contains invalid characters.

A layer name must not contain these characters:
\&lt;&gt;/&quot;:;?*|,=`</translation>
    </message>
    <message>
        <source>图层名无效。

图层名必须唯一
</source>
        <translation>Invalid layer name.

Layer names must be unique
</translation>
    </message>
    <message>
        <source>不能重命名选定图层。

不能重命名下列图层:
    图层 0
    依赖外部参照的图层
</source>
        <translation>The selected layer cannot be renamed.

These layers cannot be renamed:
    Layer 0
    Layers that depend on an external reference
</translation>
    </message>
    <message>
        <source>说明:</source>
        <translation>Description:</translation>
    </message>
    <message>
        <source>无法将选定图层置为当前图层。

无法将下列图层置为当前图层:
    依赖外部参照的图层
    已冻结的图层
    已删除的图层
</source>
        <translation>The selected layer cannot be made current.

These layers cannot be made current:
    Layers that depend on an external reference
    Frozen layers
    Deleted layers
</translation>
    </message>
    <message>
        <source>图层 - 无法置为当前</source>
        <translation>Layer - Cannot Be Made Current</translation>
    </message>
    <message>
        <source>图层 - 关闭当前图层</source>
        <translation>Layer - Current Layer Off</translation>
    </message>
    <message>
        <source>当前图层将被关闭。希望执行什么操作？</source>
        <translation>The current layer will be turned off. What do you want to do?</translation>
    </message>
    <message>
        <source>关闭当前图层</source>
        <translation>Turn the current layer off</translation>
    </message>
    <message>
        <source>使当前图层保持打开状态</source>
        <translation>Keep the current layer on</translation>
    </message>
    <message>
        <source>有 %1 个选定图层无法删除（共 %2 个选定图层)
 无法删除以下图层：
    ·图层0和图层Defpoints
    ·当前图层
    依赖外部参照的图层
    ·包含对象的图层
 </source>
        <translation>%1 of the %2 selected layers cannot be deleted
 These layers cannot be deleted:
    ·Layer 0 and layer Defpoints
    ·The current layer
    ·Layers that depend on an external reference
    ·Layers that contain objects
 </translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>冻结</source>
        <translation>Freeze</translation>
    </message>
    <message>
        <source>命令在处理对话框的请求时出错，此次操作没有完成。

原因：%1</source>
        <translation>The command failed while it answered the dialog; the operation was not completed.

Cause: %1</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>默认</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>普通</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>可添加的图层</source>
        <translation>Layers that can be added</translation>
    </message>
    <message>
        <source>当前图层</source>
        <translation>Current layer</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>要删除的图层</source>
        <translation>Layer to be deleted</translation>
    </message>
    <message>
        <source>关</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>解冻</source>
        <translation>Thawed</translation>
    </message>
    <message>
        <source>解锁</source>
        <translation>Unlocked</translation>
    </message>
    <message>
        <source>不打印</source>
        <translation>Not plotted</translation>
    </message>
    <message>
        <source>在新视口中冻结</source>
        <translation>Frozen in new viewports</translation>
    </message>
    <message>
        <source>在新视口中解冻</source>
        <translation>Thawed in new viewports</translation>
    </message>
    <message>
        <source>新建图层</source>
        <translation>New layer</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>Delete layer</translation>
    </message>
    <message>
        <source>置为当前</source>
        <translation>Set current</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtAddNewLayerDlg</name>
    <message>
        <source>选择要添加到图层状态的图层</source>
        <translation>Select Layers to Add to Layer State</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtEditLayerStateDlg</name>
    <message>
        <source>将图层添加到图层状态</source>
        <translation>Add layers to the layer state</translation>
    </message>
    <message>
        <source>从图层状态中删除图层</source>
        <translation>Remove layers from the layer state</translation>
    </message>
    <message>
        <source>编辑图层状态: %1</source>
        <translation>Edit Layer State: %1</translation>
    </message>
    <message>
        <source>图层状态 - 添加图层</source>
        <translation>Layer State - Add Layers</translation>
    </message>
    <message>
        <source>所有图层都已包含在此图层状态中。没有可添加的图层。</source>
        <translation>All layers are in this layer state. There are none to add.</translation>
    </message>
    <message>
        <source>关闭(&amp;C)</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>图层状态中的图层</source>
        <translation>Layers in the layer state</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtLayWalkDlg</name>
    <message>
        <source>&lt;body&gt;如果过滤器处于活动状态，则将显示该过滤器中定义的图层列表。如果无过滤器处于活动状态，则将显示图形中的图层列表。双击图层以将其设置为“总显示”(将在图层左侧显示星号)。在图层列表中单击鼠标右键键以显示更多选项。&lt;/body&gt;</source>
        <translation>&lt;body&gt;While a filter is active, lists the layers that it defines; otherwise lists the layers of the drawing. Double-click a layer to set it to “Always Show” (an asterisk stands to its left). Right-click the list for more options.&lt;/body&gt;</translation>
    </message>
    <message>
        <source>&lt;body&gt;打开和关闭活动过滤器。选定该复选框时，列表将仅显示那些与活动过滤器匹配的图层。清除该复选框时，将显示完整的图层列表。(仅当存在活动过滤器时，该选项才可用。)若要打开活动的过滤器，请在过滤器列表中输入通配符并按ENTER键，或选择已保存的过滤器。&lt;/body&gt;</source>
        <translation>&lt;body&gt;Turns the active filter on and off. While the box is checked, the list shows only the layers that match the active filter; otherwise it shows all layers. (Available only when there is an active filter.) To turn on a filter, type a wildcard in the filter list and press ENTER, or choose a saved filter.&lt;/body&gt;</translation>
    </message>
    <message>
        <source>&lt;body&gt;过滤图层列表。输入通配符并按ENTER键，来仅显示并亮显那些名称与通配符匹配的图层。单击鼠标右键保存和删除过滤器。过滤器列表仅显示已保存的过滤器。&lt;/body&gt;</source>
        <translation>&lt;body&gt;Filters the layer list. Type a wildcard and press ENTER to show and highlight only the layers whose names match it. Right-click to save and delete filters. The filter list shows saved filters only.&lt;/body&gt;</translation>
    </message>
    <message>
        <source>&lt;body&gt;当选定未参照的图层时，将其从图层中清理掉。有关可清理图层的列表，请在“图层”列表中的任意处单击鼠标右键，然后单击“选择未参照的图层”。“图层”列表中将亮显未参照的图层。可以清理这些图层。&lt;/body&gt;</source>
        <translation>&lt;body&gt;Purges the selected layers when they are unreferenced. To see which layers can be purged, right-click anywhere in the layer list and click “Select Unreferenced Layers”. The unreferenced layers are highlighted in the list. You can purge these layers.&lt;/body&gt;</translation>
    </message>
    <message>
        <source>&lt;body&gt;退出该对话框时，将图层恢复为先前的状态。如果清除该复选框，则将保存所做的任何更改。&lt;/body&gt;</source>
        <translation>&lt;body&gt;Puts the layers back as they were when the dialog is closed. If the box is cleared, all changes are kept.&lt;/body&gt;</translation>
    </message>
    <message>
        <source>选择对象
选择对象及其图层。</source>
        <translation>Select Objects
Selects objects and their layers.</translation>
    </message>
    <message>
        <source>过滤器(&amp;F)</source>
        <translation>&amp;Filter</translation>
    </message>
    <message>
        <source>清除(&amp;P)</source>
        <translation>&amp;Purge</translation>
    </message>
    <message>
        <source>退出时恢复(&amp;R)</source>
        <translation>&amp;Restore on Exit</translation>
    </message>
    <message>
        <source>关闭(&amp;C)</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>图层漫游 - 图层: 第 %1 层，共 %2 层</source>
        <translation>Layer Walk - Layers: %1 of %2</translation>
    </message>
    <message>
        <source>图层漫游 - 图层数: %1</source>
        <translation>Layer Walk - Number of Layers: %1</translation>
    </message>
    <message>
        <source>保持选择(&amp;H)</source>
        <translation>&amp;Hold Selection</translation>
    </message>
    <message>
        <source>释放选择(&amp;R)</source>
        <translation>&amp;Release Selection</translation>
    </message>
    <message>
        <source>全部释放(&amp;A)</source>
        <translation>Release &amp;All</translation>
    </message>
    <message>
        <source>全部选择(&amp;S)</source>
        <translation>&amp;Select All</translation>
    </message>
    <message>
        <source>全部清除(&amp;C)</source>
        <translation>&amp;Clear All</translation>
    </message>
    <message>
        <source>反转选择(&amp;I)</source>
        <translation>&amp;Invert Selection</translation>
    </message>
    <message>
        <source>选择未参照的图层(&amp;U)</source>
        <translation>Select &amp;Unreferenced Layers</translation>
    </message>
    <message>
        <source>保存图层状态(&amp;V)...</source>
        <translation>Sa&amp;ve Layer State...</translation>
    </message>
    <message>
        <source>检验(&amp;N)...</source>
        <translation>I&amp;nspect...</translation>
    </message>
    <message>
        <source>复制为过滤器(&amp;O)</source>
        <translation>C&amp;opy as Filter</translation>
    </message>
    <message>
        <source>保存当前过滤器(&amp;F)</source>
        <translation>Save Current &amp;Filter</translation>
    </message>
    <message>
        <source>删除当前过滤器(&amp;D)</source>
        <translation>&amp;Delete Current Filter</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Layers</translation>
    </message>
    <message>
        <source>选择对象</source>
        <translation>Select objects</translation>
    </message>
    <message>
        <source>过滤器的通配符</source>
        <translation>Filter pattern</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtLayWalkVerifyDlg</name>
    <message>
        <source>图形中的图层数:</source>
        <translation>Layers in the drawing:</translation>
    </message>
    <message>
        <source>选定的图层数:</source>
        <translation>Layers selected:</translation>
    </message>
    <message>
        <source>选定图层上的图元数:</source>
        <translation>Entities on selected layers:</translation>
    </message>
    <message>
        <source>检验</source>
        <translation>Inspect</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtLaydelLayerDlg</name>
    <message>
        <source>图层 %1 将被删除。

此图层上的所有对象或参照此图层的所有对象都将被删除。</source>
        <translation>The layer %1 will be deleted.

All objects on this layer or referring to this layer will be deleted.</translation>
    </message>
    <message>
        <source>%1 图层将被删除。

这些图层上的所有对象或参照这些图层的所有对象都将被删除。</source>
        <translation>%1 layers will be deleted.

All objects on these layers or referring to these layers will be deleted.</translation>
    </message>
    <message>
        <source>将要删除的图层“%1”，该图层在块中被参照。
将要删除该图层上的所有对象并重定义已参照的块。

是否继续？</source>
        <translation>The layer “%1” to be deleted is referred to in blocks.
All objects on it will be deleted and the blocks that refer to it redefined.

Do you want to continue?</translation>
    </message>
    <message>
        <source>将要删除 %1 个图层，其中某些图层在块中被参照。
将要删除该图层上的所有对象并重定义已参照的块。

是否继续？</source>
        <translation>%1 layers will be deleted, some of which are referred to in blocks.
All objects on them will be deleted and the blocks that refer to them redefined.

Do you want to continue?</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>Delete Layers</translation>
    </message>
    <message>
        <source>要删除的图层: </source>
        <translation>Layers to delete: </translation>
    </message>
    <message>
        <source>图层删除 - 删除确认</source>
        <translation>Layer Delete - Confirm</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtLaymchLayerDlg</name>
    <message>
        <source>更改到图层</source>
        <translation>Change to Layer</translation>
    </message>
    <message>
        <source>目标图层: </source>
        <translation>Target layer: </translation>
    </message>
    <message>
        <source>
图层&quot;</source>
        <translation>
The layer &quot;</translation>
    </message>
    <message>
        <source>&quot;不存在。
是否创建它？</source>
        <translation>&quot; does not exist.
Do you want to create it?</translation>
    </message>
    <message>
        <source>是否创建图层？</source>
        <translation>Create Layer?</translation>
    </message>
    <message>
        <source>现有图层</source>
        <translation>Existing layers</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtLaymrgLayerDlg</name>
    <message>
        <source>合并图层</source>
        <translation>Merge Layers</translation>
    </message>
    <message>
        <source>合并到图层</source>
        <translation>Merge to Layer</translation>
    </message>
    <message>
        <source>要合并的图层: </source>
        <translation>Layers to merge: </translation>
    </message>
    <message>
        <source>目标图层: </source>
        <translation>Target layer: </translation>
    </message>
    <message>
        <source>
名称 包含不支持的字符。


不支持以下字符:  \&lt;&gt;/&quot;:;?*|,=`</source>
        <translation>
The name contains unsupported characters.


These characters are not supported:  \&lt;&gt;/&quot;:;?*|,=`</translation>
    </message>
    <message>
        <source>图层-不支持的字符</source>
        <translation>Layer - Unsupported Characters</translation>
    </message>
    <message>
        <source>图层名无效</source>
        <translation>Invalid layer name</translation>
    </message>
    <message>
        <source>

图层名至少必须包含一个字符。</source>
        <translation>

A layer name must contain at least one character.</translation>
    </message>
    <message>
        <source>图层名无效。</source>
        <translation>Invalid layer name.</translation>
    </message>
    <message>
        <source>
将要把图层 %1 合并到图层</source>
        <translation>
The layer %1 will be merged into the layer</translation>
    </message>
    <message>
        <source>
将要把 %1 个图层合并到图层</source>
        <translation>
%1 layers will be merged into the layer</translation>
    </message>
    <message>
        <source>。

是否继续？</source>
        <translation>.

Do you want to continue?</translation>
    </message>
    <message>
        <source>。
将重定义已合并图层中参照的所用块。

是否继续？</source>
        <translation>.
All blocks that refer to the merged layers will be redefined.

Do you want to continue?</translation>
    </message>
    <message>
        <source>现有图层</source>
        <translation>Existing layers</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtLaytransNewEditWgt</name>
    <message>
        <source>新图层</source>
        <translation>New Layer</translation>
    </message>
    <message>
        <source>名称(&amp;N)</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>指定图层名。</source>
        <translation>Gives the layer&apos;s name.</translation>
    </message>
    <message>
        <source>线型(&amp;L)</source>
        <translation>&amp;Linetype</translation>
    </message>
    <message>
        <source>指定图层线型。</source>
        <translation>Gives the layer&apos;s linetype.</translation>
    </message>
    <message>
        <source>线宽(&amp;W)</source>
        <translation>Line&amp;weight</translation>
    </message>
    <message>
        <source>指定图层线宽。</source>
        <translation>Gives the layer&apos;s lineweight.</translation>
    </message>
    <message>
        <source>颜色(&amp;C)</source>
        <translation>&amp;Color</translation>
    </message>
    <message>
        <source>指定图层颜色。</source>
        <translation>Gives the layer&apos;s color.</translation>
    </message>
    <message>
        <source>透明度(&amp;T)</source>
        <translation>&amp;Transparency</translation>
    </message>
    <message>
        <source>打印样式(&amp;S)</source>
        <translation>Plot &amp;Style</translation>
    </message>
    <message>
        <source>指定图层打印样式。</source>
        <translation>Gives the layer&apos;s plot style.</translation>
    </message>
    <message>
        <source>编辑图层</source>
        <translation>Edit Layer</translation>
    </message>
    <message>
        <source>名称必须赋值。</source>
        <translation>The name must be given.</translation>
    </message>
    <message>
        <source>名称不是有效符号名。</source>
        <translation>The name is not a valid symbol name.</translation>
    </message>
    <message>
        <source>名称 %s 已在使用。
您需要输入其他名称。</source>
        <translation>The name %s is in use.
Enter another name.</translation>
    </message>
    <message>
        <source>请输入一个 0-90 之间的整数</source>
        <translation>Enter a whole number from 0 to 90</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtLaytransQTableWgt</name>
    <message>
        <source>旧图层名</source>
        <translation>Old Layer</translation>
    </message>
    <message>
        <source>新图层名</source>
        <translation>New Layer</translation>
    </message>
    <message>
        <source>颜色</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>线型</source>
        <translation>Linetype</translation>
    </message>
    <message>
        <source>线宽</source>
        <translation>Lineweight</translation>
    </message>
    <message>
        <source>透明度</source>
        <translation>Transparency</translation>
    </message>
    <message>
        <source>打印样式</source>
        <translation>Plot Style</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtLaytransSettingWgt</name>
    <message>
        <source>强制对象颜色为 ByLayer(&amp;C)</source>
        <translation>Force Object &amp;Color to ByLayer</translation>
    </message>
    <message>
        <source>指定每一个已转换对象是否采用指定给其图层的颜色。如果选定该选项，每个对象将呈现
各自图层的颜色。如果不选择该选项，每个对象将保持其初始颜色。</source>
        <translation>Whether every translated object takes on the color of its layer. If this is checked, each object shows the color
of its layer. Otherwise each object keeps its own color.</translation>
    </message>
    <message>
        <source>强制对象线型为 ByLayer(&amp;L)</source>
        <translation>Force Object &amp;Linetype to ByLayer</translation>
    </message>
    <message>
        <source>指定每一个已转换对象是否采用指定给其图层的线型。如果选择该选项，每个对象将呈现
各自图层的线型。如果不选择该选项，每个对象将保持其初始线型。</source>
        <translation>Whether every translated object takes on the linetype of its layer. If this is checked, each object shows the linetype
of its layer. Otherwise each object keeps its own linetype.</translation>
    </message>
    <message>
        <source>强制对象透明度为 ByLayer</source>
        <translation>Force Object Transparency to ByLayer</translation>
    </message>
    <message>
        <source>指定每一个已转换对象是否采用指定给其图层的透明度。</source>
        <translation>Whether every translated object takes on the transparency of its layer.</translation>
    </message>
    <message>
        <source>转换块中的对象(&amp;T)</source>
        <translation>&amp;Translate Objects in Blocks</translation>
    </message>
    <message>
        <source>指定是否转换块中嵌套的对象。如果选择该选项，块中嵌套的对象将转换。如果不选
择该选项，块中嵌套的对象将不转换。</source>
        <translation>Whether objects nested in blocks are translated, too. If this is not checked,
objects nested in blocks stay as they are.</translation>
    </message>
    <message>
        <source>写入转换日志(&amp;W)</source>
        <translation>&amp;Write Translation Log</translation>
    </message>
    <message>
        <source>指定是否创建详细说明转换结果的日志文件。如果选择该选项，将在与转换图形相同的
文件夹中创建日志文件。为该日志文件指定的名称与已转换的图形的名称相同，文件
扩展名为 .log。如果不选择“写入转换日志”选项，将不创建日志文件。</source>
        <translation>Whether a log file is written that tells the results of the translation in detail. It is made in the folder
of the translated drawing and has the drawing&apos;s name with the extension .log.
If “Write Translation Log” is not checked, no log file is made.</translation>
    </message>
    <message>
        <source>选定时显示图层内容(&amp;S)</source>
        <translation>&amp;Show Layer Contents When Selected</translation>
    </message>
    <message>
        <source>指定将在绘图区域中显示的图层。如果选择此选项，仅在绘图区域中显示那些在“图层转换器”
对话框中选择的图层。如果不选择此选项，将显示图形中的所有图层。</source>
        <translation>Which layers the drawing area shows. If this is checked, only the layers selected in the Layer Translator
are shown there. Otherwise all layers of the drawing are shown.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Settings</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtNewLayerStateDlg</name>
    <message>
        <source>要保存的新图层状态</source>
        <translation>New Layer State to Save</translation>
    </message>
    <message>
        <source>新图层状态(L):</source>
        <translation>New layer state:</translation>
    </message>
    <message>
        <source>说明(D):</source>
        <translation>Description:</translation>
    </message>
    <message>
        <source>为要保存的新图层状态指定名称。</source>
        <translation>Gives the name of the new layer state to save.</translation>
    </message>
    <message>
        <source>（可选）提供图层状态管理器中显示的图层状态说明。</source>
        <translation>(Optional) Describes the layer state in the Layer States Manager.</translation>
    </message>
    <message>
        <source>关闭(&amp;C)</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>%1 已经存在。是否替换?</source>
        <translation>%1 exists already. Replace it?</translation>
    </message>
    <message>
        <source>图层状态 - 已经存在</source>
        <translation>Layer State - Exists Already</translation>
    </message>
    <message>
        <source>替换</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>无法保存图层状态。</source>
        <translation>The layer state cannot be saved.</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtUiDynLayerCmdImpl</name>
    <message>
        <source>当前图层：%1</source>
        <translation>Current layer: %1</translation>
    </message>
    <message>
        <source>全部：共%1个图层</source>
        <translation>All: %1 layers in total</translation>
    </message>
    <message>
        <source>是否保存对图层设置的修改？</source>
        <translation>Do you want to save the changes to the layer settings?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>新建图层</source>
        <translation>New layer</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>Delete layer</translation>
    </message>
    <message>
        <source>置为当前</source>
        <translation>Set current</translation>
    </message>
    <message>
        <source>图层特性管理器</source>
        <translation>Layer Properties Manager</translation>
    </message>
    <message>
        <source>当前图层：</source>
        <translation>Current layer:</translation>
    </message>
    <message>
        <source>共  个图层</source>
        <translation>Layers in total:</translation>
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
        <source>应用</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Layers</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtUiDynLayerStateCmdImpl</name>
    <message>
        <source>图层状态管理器</source>
        <translation>Layer States Manager</translation>
    </message>
    <message>
        <source>当前图层状态: %1</source>
        <translation>Current layer state: %1</translation>
    </message>
    <message>
        <source>外部参照</source>
        <translation>Xref</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>空间</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>与 DWG 相同</source>
        <translation>As DWG</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>开/关(&amp;O)</source>
        <translation>&amp;On/Off</translation>
    </message>
    <message>
        <source>冻结/解冻(&amp;F)</source>
        <translation>&amp;Frozen/Thawed</translation>
    </message>
    <message>
        <source>在当前视口中的可见性(&amp;U)</source>
        <translation>Visibility in C&amp;urrent Viewport</translation>
    </message>
    <message>
        <source>锁定/解锁(&amp;K)</source>
        <translation>Loc&amp;ked/Unlocked</translation>
    </message>
    <message>
        <source>打印/不打印(&amp;P)</source>
        <translation>&amp;Plot/No Plot</translation>
    </message>
    <message>
        <source>颜色(&amp;L)</source>
        <translation>Co&amp;lor</translation>
    </message>
    <message>
        <source>线型(&amp;P)</source>
        <translation>Lin&amp;etype</translation>
    </message>
    <message>
        <source>线宽(&amp;G)</source>
        <translation>Linewei&amp;ght</translation>
    </message>
    <message>
        <source>透明度(&amp;T)</source>
        <translation>&amp;Transparency</translation>
    </message>
    <message>
        <source>打印样式(&amp;V)</source>
        <translation>Plot St&amp;yle</translation>
    </message>
    <message>
        <source>新视口冻结/解冻(&amp;Z)</source>
        <translation>New Viewport Fro&amp;zen/Thawed</translation>
    </message>
    <message>
        <source>不列出外部参照中的图层状态(&amp;F)</source>
        <translation>Do Not List Layer States in Xrefs</translation>
    </message>
    <message>
        <source>当前图层状态: *未保存*</source>
        <translation>Current layer state: *Unsaved*</translation>
    </message>
    <message>
        <source>图层状态(E)</source>
        <translation>Layer States</translation>
    </message>
    <message>
        <source>新建(&amp;N)...</source>
        <translation>&amp;New...</translation>
    </message>
    <message>
        <source>保存(&amp;V)</source>
        <translation>Sa&amp;ve</translation>
    </message>
    <message>
        <source>编辑(&amp;I)...</source>
        <translation>Ed&amp;it...</translation>
    </message>
    <message>
        <source>重命名</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>删除(&amp;D)</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>输入(&amp;M)...</source>
        <translation>I&amp;mport...</translation>
    </message>
    <message>
        <source>输出(&amp;X)...</source>
        <translation>E&amp;xport...</translation>
    </message>
    <message>
        <source>恢复选项</source>
        <translation>Restore Options</translation>
    </message>
    <message>
        <source>关闭未在图层状态中找到的图层(&amp;T)</source>
        <translation>Turn Off Layers Not Found in Layer State</translation>
    </message>
    <message>
        <source>将特性作为视口替代应用(&amp;W)</source>
        <translation>Apply Properties as Vie&amp;wport Overrides</translation>
    </message>
    <message>
        <source>要恢复的图层特性</source>
        <translation>Layer Properties to Restore</translation>
    </message>
    <message>
        <source>全部选择(&amp;S)</source>
        <translation>&amp;Select All</translation>
    </message>
    <message>
        <source>全部清除(&amp;A)</source>
        <translation>Clear &amp;All</translation>
    </message>
    <message>
        <source>恢复(&amp;R)</source>
        <translation>&amp;Restore</translation>
    </message>
    <message>
        <source>关闭(&amp;C)</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>图层 - 覆盖图层状态</source>
        <translation>Layer - Overwrite Layer State</translation>
    </message>
    <message>
        <source>是否要覆盖%1?</source>
        <translation>Do you want to overwrite %1?</translation>
    </message>
    <message>
        <source>名称 必须至少有一个字符长。</source>
        <translation>The name must be at least one character long.</translation>
    </message>
    <message>
        <source>图层状态 - 文字长度</source>
        <translation>Layer States - Text Length</translation>
    </message>
    <message>
        <source>名称 %1 已在使用。</source>
        <translation>The name %1 is in use.</translation>
    </message>
    <message>
        <source>
您需要输入其他名称。</source>
        <translation>
Enter another name.</translation>
    </message>
    <message>
        <source>图层状态 - 名称已经存在</source>
        <translation>Layer States - Name Exists</translation>
    </message>
    <message>
        <source>是否确实要删除图层状态 %1?</source>
        <translation>Are you sure you want to delete the layer state %1?</translation>
    </message>
    <message>
        <source>全部删除</source>
        <translation>Delete All</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>输入图层状态</source>
        <translation>Import Layer State</translation>
    </message>
    <message>
        <source>输出图层状态</source>
        <translation>Export Layer State</translation>
    </message>
    <message>
        <source>是否确实要删除 %1?</source>
        <translation>Are you sure you want to delete %1?</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtUiLayerTransparencyModify</name>
    <message>
        <source>图层透明度</source>
        <translation>Layer Transparency</translation>
    </message>
    <message>
        <source>透明度值(&lt;u&gt;T&lt;/u&gt;)(0~90):</source>
        <translation>&lt;u&gt;T&lt;/u&gt;ransparency (0-90):</translation>
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
        <source>请输入一个0至90之间的整数</source>
        <translation>Enter a whole number from 0 to 90</translation>
    </message>
</context>
<context>
    <name>vnsi::VnQtUiLaytransCmd</name>
    <message>
        <source>选择图形文件</source>
        <translation>Select Drawing Files</translation>
    </message>
    <message>
        <source>保存图层映射</source>
        <translation>Save Layer Mappings</translation>
    </message>
    <message>
        <source>在当前图形中指定要转换的图层。可以通过在“转换自”列表中选择图层或通过提供选择
过滤器指定图层。</source>
        <translation>The layers of the drawing to translate. Select them in the “Translate From” list or by a selection filter.</translation>
    </message>
    <message>
        <source>列出可以将当前图形的图层转换为哪些图层。</source>
        <translation>Lists the layers to which the drawing&apos;s layers can be translated.</translation>
    </message>
    <message>
        <source>用可包括通配符的命名方式，在“转换自”列表中指定要选择的图层。有关有效通配符的列表，
请参见《用户手册》的对图层列表进行过滤和排序中的表格。由选择过滤器指示的图层与之
前选择的任意图层一起选定。</source>
        <translation>Names layers to select in the “Translate From” list, wildcards included. See the manual for the wildcards.
The layers that the filter names are selected together with those selected before.</translation>
    </message>
    <message>
        <source>列出要转换的所有图层以及图层转换后所具有的特性。可以在该列表中选择图层，
然后使用“编辑”编辑图层特性。</source>
        <translation>Lists all layers to translate and the properties that they will have. Select layers in this list,
then edit their properties with “Edit”.</translation>
    </message>
    <message>
        <source>选择(&amp;C)</source>
        <translation>Sele&amp;ct</translation>
    </message>
    <message>
        <source>选择在“选择过滤器”中指定的图层。</source>
        <translation>Selects the layers named in “Selection Filter”.</translation>
    </message>
    <message>
        <source>映射(&amp;M)</source>
        <translation>&amp;Map</translation>
    </message>
    <message>
        <source>将“转换自”中选定的图层映射到“转换为”中选定的图层。</source>
        <translation>Maps the layers selected in “Translate From” to the layer selected in “Translate To”.</translation>
    </message>
    <message>
        <source>映射相同(&amp;A)</source>
        <translation>M&amp;ap Same</translation>
    </message>
    <message>
        <source>映射在两个列表中具有相同名称的所有图层。</source>
        <translation>Maps all layers that have the same name in both lists.</translation>
    </message>
    <message>
        <source>加载(&amp;L)...</source>
        <translation>&amp;Load...</translation>
    </message>
    <message>
        <source>使用图形、图形样板或所指定的标准文件加载“转换为”列表中的图层。如果指定的文件包含保存过的图层映射，
则那些映射将被应用到“转换自”列表中的图层上，并且显示在“图层转换映射”中。</source>
        <translation>Loads layers into the “Translate To” list from a drawing, a drawing template or a standards file. If the file holds saved
layer mappings, they are applied to the layers of the “Translate From” list and shown in “Layer Translation Mappings”.</translation>
    </message>
    <message>
        <source>新建(&amp;N)...</source>
        <translation>&amp;New...</translation>
    </message>
    <message>
        <source>定义一个要在“转换为”列表中显示并用于转换的新图层。如果在选择“新建”之前选择“转换为”图层，
则选定图层的特性将作为新图层的默认特性使用。不能使用与现有图层相同的名称创建新图层。</source>
        <translation>Defines a new layer to show in the “Translate To” list. If a “Translate To” layer is selected before,
its properties are offered for the new layer. A new layer cannot have the name of one that exists.</translation>
    </message>
    <message>
        <source>编辑(&amp;E)</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>打开“编辑图层”对话框，从中可以编辑选定择的转换映射。可以修改图层的线型、颜色和线宽。
如果涉及转换的所有图形均采用打印样式，则还可以为映射修改此打印样式。</source>
        <translation>Opens the Edit Layer dialog for the selected mapping: the layer&apos;s linetype, color and lineweight can be changed.
If all drawings of the translation use plot styles, the plot style can be changed, too.</translation>
    </message>
    <message>
        <source>删除(&amp;R)</source>
        <translation>&amp;Remove</translation>
    </message>
    <message>
        <source>从“图层转换贴图”列表中删除选定的转换贴图。</source>
        <translation>Removes the selected mapping from the list.</translation>
    </message>
    <message>
        <source>保存(&amp;S)</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>将当前图层转换贴图保存为一个文件以便日后使用。</source>
        <translation>Saves the layer translation mappings to a file for later use.</translation>
    </message>
    <message>
        <source>设置(&amp;G)...</source>
        <translation>Settin&amp;gs...</translation>
    </message>
    <message>
        <source>打开“设置”对话框，从中可以自定义图层转换的过程。</source>
        <translation>Opens the Settings dialog, which says how layers are translated.</translation>
    </message>
    <message>
        <source>转换(&amp;T)</source>
        <translation>&amp;Translate</translation>
    </message>
    <message>
        <source>开始对已映射图层进行图层转换。</source>
        <translation>Translates the layers that are mapped.</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>全部选择(&amp;S)</source>
        <translation>&amp;Select All</translation>
    </message>
    <message>
        <source>全部清除(&amp;C)</source>
        <translation>&amp;Clear All</translation>
    </message>
    <message>
        <source>清理图层(&amp;P)</source>
        <translation>&amp;Purge Layers</translation>
    </message>
    <message>
        <source>编辑(&amp;E)...</source>
        <translation>&amp;Edit...</translation>
    </message>
    <message>
        <source>全部删除(&amp;R)</source>
        <translation>Remove &amp;All</translation>
    </message>
    <message>
        <source>图层转换器</source>
        <translation>Layer Translator</translation>
    </message>
    <message>
        <source>转换自(&amp;F)</source>
        <translation>Translate &amp;From</translation>
    </message>
    <message>
        <source>选择过滤器(&amp;I)</source>
        <translation>Selection F&amp;ilter</translation>
    </message>
    <message>
        <source>转换为(&amp;O)</source>
        <translation>Translate T&amp;o</translation>
    </message>
    <message>
        <source>图层转换映射(&amp;Y)</source>
        <translation>La&amp;yer Translation Mappings</translation>
    </message>
</context>
</TS>
