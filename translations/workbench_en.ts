<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>CommandLine</name>
    <message>
        <source>命令回显</source>
        <translation>Command history</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>键入命令</source>
        <translation>Type a command</translation>
    </message>
    <message>
        <source>命令:</source>
        <translation>Command:</translation>
    </message>
    <message>
        <source>命令: %1</source>
        <translation>Command: %1</translation>
    </message>
</context>
<context>
    <name>DrawingSession</name>
    <message>
        <source>已保存 %1</source>
        <translation>Saved %1</translation>
    </message>
    <message>
        <source>无法打开图形</source>
        <translation>Cannot Open the Drawing</translation>
    </message>
    <message>
        <source>无法保存图形</source>
        <translation>Cannot Save the Drawing</translation>
    </message>
    <message>
        <source>已打开 %1: %2 个图层, %3 个对象</source>
        <translation>Opened %1 (layers: %2, objects: %3)</translation>
    </message>
    <message>
        <source>已取消。</source>
        <translation>Canceled.</translation>
    </message>
</context>
<context>
    <name>FileWorker</name>
    <message>
        <source>正在打开 %1</source>
        <translation>Opening %1</translation>
    </message>
    <message>
        <source>正在保存 %1</source>
        <translation>Saving %1</translation>
    </message>
</context>
<context>
    <name>FilterPane</name>
    <message>
        <source>全部图层</source>
        <translation>All</translation>
    </message>
    <message>
        <source>使用中的图层</source>
        <translation>Used</translation>
    </message>
    <message>
        <source>未使用的图层</source>
        <translation>Unused</translation>
    </message>
    <message>
        <source>外部参照的图层</source>
        <translation>Xrefs</translation>
    </message>
    <message>
        <source>过滤器表达式</source>
        <translation>Filter expression</translation>
    </message>
    <message>
        <source>%1 个图层</source>
        <translation>Layers: %1</translation>
    </message>
    <message>
        <source>不了解此过滤器，原样保留：%1</source>
        <translation>This filter is not understood and kept as it is: %1</translation>
    </message>
    <message>
        <source>新建特性过滤器(&amp;P)</source>
        <translation>New &amp;Property Filter</translation>
    </message>
    <message>
        <source>新建组过滤器(&amp;G)</source>
        <translation>New &amp;Group Filter</translation>
    </message>
    <message>
        <source>重命名(&amp;R)</source>
        <translation>&amp;Rename</translation>
    </message>
    <message>
        <source>删除(&amp;D)</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>组过滤器%1</source>
        <translation>Group Filter %1</translation>
    </message>
    <message>
        <source>特性过滤器%1</source>
        <translation>Property Filter %1</translation>
    </message>
    <message>
        <source>新建图层过滤器</source>
        <translation>New Layer Filter</translation>
    </message>
    <message>
        <source>重命名图层过滤器</source>
        <translation>Rename Layer Filter</translation>
    </message>
    <message>
        <source>不了解过滤器表达式“%1”，过滤器没有更改。</source>
        <translation>The filter expression “%1” is not understood; the filter was not changed.</translation>
    </message>
    <message>
        <source>更改图层过滤器</source>
        <translation>Change Layer Filter</translation>
    </message>
    <message>
        <source>删除图层过滤器</source>
        <translation>Delete Layer Filter</translation>
    </message>
    <message>
        <source>把图层加入组过滤器</source>
        <translation>Add Layers to Group Filter</translation>
    </message>
    <message>
        <source>从组过滤器中移除图层</source>
        <translation>Remove Layers from Group Filter</translation>
    </message>
</context>
<context>
    <name>FilterTree</name>
    <message>
        <source>图层过滤器</source>
        <translation>Layer filters</translation>
    </message>
</context>
<context>
    <name>KeptSearches</name>
    <message>
        <source>搜索</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>保留的搜索</source>
        <translation>Kept searches</translation>
    </message>
    <message>
        <source>不再保留“%1”</source>
        <translation>Forget “%1”</translation>
    </message>
    <message>
        <source>保留当前的搜索</source>
        <translation>Keep This Search</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>语言(&amp;L)</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>重新启动后改用所选的语言。</source>
        <translation>The language changes when the program is started again.</translation>
    </message>
    <message>
        <source>跟随系统(&amp;S)</source>
        <translation>As the &amp;System</translation>
    </message>
    <message>
        <source>中文(&amp;Z)</source>
        <translation>&amp;English</translation>
    </message>
</context>
<context>
    <name>LayerEditor</name>
    <message>
        <source>请等待当前操作结束。</source>
        <translation>Please wait until the present operation ends.</translation>
    </message>
    <message>
        <source>请先打开一个图形。</source>
        <translation>Open a drawing first.</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>搜索图层</source>
        <translation>Search layers</translation>
    </message>
    <message>
        <source>搜索：文字、*?通配符或 /正则/</source>
        <translation>Search: text, *? wildcards or /regex/</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个图层</source>
        <translation>%1 of %2 layers shown</translation>
    </message>
    <message>
        <source>，已选择 %1 个</source>
        <translation>, %1 selected</translation>
    </message>
    <message>
        <source>重命名图层</source>
        <translation>Rename Layer</translation>
    </message>
    <message>
        <source>置为当前图层</source>
        <translation>Make Current</translation>
    </message>
    <message>
        <source>粘贴图层</source>
        <translation>Paste Layers</translation>
    </message>
    <message>
        <source>隔离时锁定并淡显其他图层</source>
        <translation>Lock and Fade Other Layers When Isolating</translation>
    </message>
    <message>
        <source>新建图层</source>
        <translation>New Layer</translation>
    </message>
    <message>
        <source>选择图层上的对象</source>
        <translation>Select Objects on Layers</translation>
    </message>
    <message>
        <source>图层的使用情况...</source>
        <translation>Layer Uses...</translation>
    </message>
    <message>
        <source>清理图层</source>
        <translation>Purge Layers</translation>
    </message>
    <message>
        <source>从组过滤器中移除</source>
        <translation>Remove from Group Filter</translation>
    </message>
    <message>
        <source>图层“%1”的使用情况</source>
        <translation>Uses of the Layer “%1”</translation>
    </message>
    <message>
        <source>%1 个图层的使用情况</source>
        <translation>Uses of %1 Layers</translation>
    </message>
    <message>
        <source>；</source>
        <translation>; </translation>
    </message>
    <message>
        <source>已清理 %1 个图层。</source>
        <translation>Layers purged: %1.</translation>
    </message>
    <message>
        <source>%1 个图层未清理</source>
        <translation>Layers Not Purged: %1</translation>
    </message>
</context>
<context>
    <name>LayerView</name>
    <message>
        <source>图层</source>
        <translation>Layers</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>DXF 图形 (*.dxf *.DXF);;所有文件 (*)</source>
        <translation>DXF drawings (*.dxf *.DXF);;All files (*)</translation>
    </message>
    <message>
        <source>打开(&amp;O)...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>以代码页打开(&amp;P)...</source>
        <translation>O&amp;pen with Code Page...</translation>
    </message>
    <message>
        <source>换代码页重新打开(&amp;T)...</source>
        <translation>Reopen wi&amp;th Code Page...</translation>
    </message>
    <message>
        <source>保存(&amp;S)</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>另存为(&amp;A)...</source>
        <translation>Save &amp;As...</translation>
    </message>
    <message>
        <source>退出(&amp;Q)</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>撤销(&amp;U)</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>重做(&amp;R)</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>缩放到范围(&amp;E)</source>
        <translation>Zoom &amp;Extents</translation>
    </message>
    <message>
        <source>白底(&amp;B)</source>
        <translation>White &amp;Background</translation>
    </message>
    <message>
        <source>显示线宽(&amp;W)</source>
        <translation>Show Line&amp;weights</translation>
    </message>
    <message>
        <source>关于(&amp;A)...</source>
        <translation>&amp;About...</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>编辑(&amp;E)</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>视图(&amp;V)</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>图层(&amp;L)</source>
        <translation>&amp;Layer</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>工具栏</source>
        <translation>Tool Bar</translation>
    </message>
    <message>
        <source>快捷操作(&amp;Q)</source>
        <translation>&amp;Quick Actions</translation>
    </message>
    <message>
        <source>线宽</source>
        <translation>LWT</translation>
    </message>
    <message>
        <source>命令行</source>
        <translation>Command Line</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Layers</translation>
    </message>
    <message>
        <source>这些对象现在没有显示出来。</source>
        <translation>These objects are not shown at present.</translation>
    </message>
    <message>
        <source>有些更改没有完成：</source>
        <translation>Some changes were not made:</translation>
    </message>
    <message>
        <source>切换到模型空间</source>
        <translation>Switch to Model Space</translation>
    </message>
    <message>
        <source>切换到布局</source>
        <translation>Switch to Layout</translation>
    </message>
    <message>
        <source>命令“%1”现在不可用。</source>
        <translation>The command “%1” is not available now.</translation>
    </message>
    <message>
        <source>未知命令“%1”。</source>
        <translation>Unknown command “%1”.</translation>
    </message>
    <message>
        <source>请等待当前操作结束。</source>
        <translation>Please wait until the present operation ends.</translation>
    </message>
    <message>
        <source>请先打开一个图形。</source>
        <translation>Open a drawing first.</translation>
    </message>
    <message>
        <source>选择对象，按 ENTER 键或单击鼠标右键结束，按 ESC 键取消。</source>
        <translation>Select objects; ENTER or a right click ends the selection, ESC cancels it.</translation>
    </message>
    <message>
        <source>打开图形</source>
        <translation>Open Drawing</translation>
    </message>
    <message>
        <source>图形另存为</source>
        <translation>Save Drawing As</translation>
    </message>
    <message>
        <source>撤销 %1(&amp;U)</source>
        <translation>&amp;Undo %1</translation>
    </message>
    <message>
        <source>重做 %1(&amp;R)</source>
        <translation>&amp;Redo %1</translation>
    </message>
    <message>
        <source>无图形</source>
        <translation>No Drawing</translation>
    </message>
    <message>
        <source>%1（不完整）</source>
        <translation>%1 (incomplete)</translation>
    </message>
    <message>
        <source>图层工作台 - %1[*]</source>
        <translation>Layer Workbench - %1[*]</translation>
    </message>
    <message>
        <source>手册(&amp;M)</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>图形内容过多，只显示其中一部分。</source>
        <translation>The drawing holds too much; only a part of it is shown.</translation>
    </message>
    <message>
        <source>正在更改图形...</source>
        <translation>Changing the drawing...</translation>
    </message>
    <message>
        <source>移动视口中的视图</source>
        <translation>Move View in Viewport</translation>
    </message>
    <message>
        <source>图形</source>
        <translation>Drawing</translation>
    </message>
    <message>
        <source>图层面板</source>
        <translation>Layer panel</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>最近的文件(&amp;R)</source>
        <translation>&amp;Recent Files</translation>
    </message>
    <message>
        <source>（无）</source>
        <translation>(none)</translation>
    </message>
</context>
<context>
    <name>StatusFields</name>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>停止正在进行的操作</source>
        <translation>Stop what is going on</translation>
    </message>
    <message>
        <source>在模型空间和布局之间切换</source>
        <translation>Switch between model space and layouts</translation>
    </message>
    <message>
        <source>模型</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>布局</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>当前图层: %1</source>
        <translation>Current layer: %1</translation>
    </message>
    <message>
        <source>%1 个图层</source>
        <translation>Layers: %1</translation>
    </message>
    <message>
        <source>已选择 %1 个对象</source>
        <translation>Selected: %1</translation>
    </message>
    <message>
        <source>视口内</source>
        <translation>In Viewport</translation>
    </message>
</context>
<context>
    <name>UsesList</name>
    <message>
        <source>关闭(&amp;C)</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>对象</source>
        <translation>Objects</translation>
    </message>
    <message>
        <source>数量</source>
        <translation>Count</translation>
    </message>
    <message>
        <source>所在位置</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>保留的原因</source>
        <translation>Kept because</translation>
    </message>
</context>
<context>
    <name>workbench</name>
    <message>
        <source>按图形的声明</source>
        <translation>As the drawing says</translation>
    </message>
    <message>
        <source>代码页</source>
        <translation>Code Page</translation>
    </message>
    <message>
        <source>图形中的文字按哪个代码页读取（也可以输入名称，如 ISO8859-15）：</source>
        <translation>Code page in which to read the drawing&apos;s texts (or type a name such as ISO8859-15):</translation>
    </message>
    <message>
        <source>没有代码页“%1”。</source>
        <translation>There is no code page “%1”.</translation>
    </message>
    <message>
        <source>已删除 %1 个图层。</source>
        <translation>Layers deleted: %1.</translation>
    </message>
    <message>
        <source>图层“%1”没有重命名为“%2”：%3</source>
        <translation>The layer “%1” was not renamed to “%2”: %3</translation>
    </message>
    <message>
        <source>图层%1</source>
        <translation>Layer%1</translation>
    </message>
    <message>
        <source>有 %1 项修改未能应用：</source>
        <translation>Changes that could not be made: %1</translation>
    </message>
    <message>
        <source>图层%1%2已不存在，已跳过。</source>
        <translation>Layers that are gone were skipped: %1%2.</translation>
    </message>
    <message>
        <source>等 %1 个</source>
        <translation> and others, %1 in all</translation>
    </message>
    <message>
        <source>
（共 %1 条，其余见命令行）</source>
        <translation>
(%1 in all; see the command line for the rest)</translation>
    </message>
    <message>
        <source>*未保存*</source>
        <translation>*Unsaved*</translation>
    </message>
    <message>
        <source>图形中没有图层状态“%1”。</source>
        <translation>The drawing has no layer state “%1”.</translation>
    </message>
    <message>
        <source>图层状态没有改动：</source>
        <translation>The layer states were not changed:</translation>
    </message>
    <message>
        <source>图层状态“%1”已恢复，但以下内容除外：</source>
        <translation>The layer state “%1” was restored, except for:</translation>
    </message>
    <message>
        <source>图层状态“%1”的颜色、线型、线宽和透明度已作为视口替代应用于“%2”的当前视口。</source>
        <translation>Color, linetype, lineweight and transparency of the layer state “%1” were applied as overrides to the current viewport of “%2”.</translation>
    </message>
    <message>
        <source>布局</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>没有输入图层状态：</source>
        <translation>No layer state was imported:</translation>
    </message>
    <message>
        <source>图层状态已输入，但以下内容除外：</source>
        <translation>The layer states were imported, except for:</translation>
    </message>
    <message>
        <source>已输入图层状态“%1”。是否立即恢复?</source>
        <translation>The layer state “%1” was imported. Restore it now?</translation>
    </message>
    <message>
        <source>已输入 %1 个图层状态。是否立即恢复“%2”?</source>
        <translation>%1 layer states were imported. Restore “%2” now?</translation>
    </message>
    <message>
        <source>图层状态“%1”已输出到“%2”。</source>
        <translation>The layer state “%1” was exported to “%2”.</translation>
    </message>
    <message>
        <source>图层状态没有输出：</source>
        <translation>The layer state was not exported:</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Overwrite</translation>
    </message>
    <message>
        <source>全部覆盖</source>
        <translation>Overwrite All</translation>
    </message>
    <message>
        <source>跳过</source>
        <translation>Skip</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1等 %2 个</source>
        <translation>%1 and others, %2 in all</translation>
    </message>
    <message>
        <source>图层状态“%1”已存在。是否覆盖?</source>
        <translation>The layer state “%1” exists. Overwrite it?</translation>
    </message>
    <message>
        <source>图层状态 - 输入</source>
        <translation>Layer States - Import</translation>
    </message>
    <message>
        <source>文件“%1”中没有图层状态。</source>
        <translation>The file “%1” holds no layer states.</translation>
    </message>
    <message>
        <source>图层状态“%1”中没有此图形的图层，没有输入。</source>
        <translation>The layer state “%1” holds none of this drawing&apos;s layers and was not imported.</translation>
    </message>
    <message>
        <source>此图形没有图层 %1，状态中的这些图层没有输入。</source>
        <translation>This drawing lacks these layers of the state, which were not imported: %1.</translation>
    </message>
    <message>
        <source>全部打开</source>
        <translation>All On</translation>
    </message>
    <message>
        <source>交底用</source>
        <translation>For handing over</translation>
    </message>
    <message>
        <source>打印布局</source>
        <translation>Plot Layout</translation>
    </message>
    <message>
        <source>标注与家具冻结</source>
        <translation>Dimensions and furniture frozen</translation>
    </message>
    <message>
        <source>结构</source>
        <translation>Structure</translation>
    </message>
    <message>
        <source>没有名称与输入完全一致的图层，未作更改。</source>
        <translation>No layer has exactly this name; nothing was changed.</translation>
    </message>
    <message>
        <source>%1 个对象已更改到图层“%2”。</source>
        <translation>Objects changed: %1, now on the layer “%2”.</translation>
    </message>
    <message>
        <source>%1 个对象在锁定的图层上，未作更改。</source>
        <translation>Objects on locked layers, which were not changed: %1.</translation>
    </message>
    <message>
        <source>没有可以合并的图层。</source>
        <translation>There are no layers to merge.</translation>
    </message>
    <message>
        <source>图层“%1”是要合并的图层，不能作为目标图层。</source>
        <translation>The layer “%1” is one of those to merge and cannot be the target.</translation>
    </message>
    <message>
        <source>合并到图层</source>
        <translation>Merge to Layer</translation>
    </message>
    <message>
        <source>先后指定了几个目标图层，要合并到哪一个？</source>
        <translation>Several target layers were given one after another. Merge to which?</translation>
    </message>
    <message>
        <source>已将 %1 个图层合并到图层“%2”。</source>
        <translation>Layers merged: %1, into the layer “%2”.</translation>
    </message>
    <message>
        <source>-图层标准</source>
        <translation>-layer-standard</translation>
    </message>
    <message>
        <source>没有写入文件“%1”：图层映射以 DXF 格式保存，文件名不能以 .%2 结尾。是否改为保存到“%3”？</source>
        <translation>The file “%1” was not written: layer mappings are saved as DXF, and the name cannot end in .%2. Save to “%3” instead?</translation>
    </message>
    <message>
        <source>
该文件已存在，将被替换。</source>
        <translation>
That file exists and will be replaced.</translation>
    </message>
    <message>
        <source>“%1”是正在转换的图形，图层映射要保存到另一个文件。</source>
        <translation>“%1” is the drawing being translated; save the layer mappings to another file.</translation>
    </message>
    <message>
        <source>还没有图层映射，没有写入文件“%1”。</source>
        <translation>There are no layer mappings yet; the file “%1” was not written.</translation>
    </message>
    <message>
        <source>已将 %1 个图层映射保存到“%2”。</source>
        <translation>Layer mappings saved: %1, to “%2”.</translation>
    </message>
    <message>
        <source>图层映射已保存，但以下内容除外：</source>
        <translation>The layer mappings were saved, except for:</translation>
    </message>
    <message>
        <source>已加载 %1 个目标图层。</source>
        <translation>Target layers loaded: %1.</translation>
    </message>
    <message>
        <source>以下内容没有加载：</source>
        <translation>These were not loaded:</translation>
    </message>
    <message>
        <source>文件“%1”：%2 个图层与列表中的图层同名，保留列表中的。</source>
        <translation>File “%1”: %2 layers have names that are in the list already; those in the list are kept.</translation>
    </message>
    <message>
        <source>文件中有 %1 个图层映射，其中 %2 个的图层不在此图形中。</source>
        <translation>The files hold %1 layer mappings, %2 of them for layers that are not in this drawing.</translation>
    </message>
    <message>
        <source>已清理 %1 个图层。</source>
        <translation>Layers purged: %1.</translation>
    </message>
    <message>
        <source>以下图层没有清理：</source>
        <translation>These layers were not purged:</translation>
    </message>
    <message>
        <source>保存的转换设置不是六项，现按全部未选显示。</source>
        <translation>The saved translation settings are not six in number; all are shown as off.</translation>
    </message>
    <message>
        <source>还没有图层映射。请先将“转换自”中的图层映射到“转换为”中的图层。</source>
        <translation>There are no layer mappings yet. First map layers of “Translate From” to layers of “Translate To”.</translation>
    </message>
    <message>
        <source>保存的转换设置不是六项，现按全部未选转换。</source>
        <translation>The saved translation settings are not six in number; the translation takes all of them as off.</translation>
    </message>
    <message>
        <source>这些图层映射没有保存到标准文件。</source>
        <translation>These layer mappings were not saved to a standards file.</translation>
    </message>
    <message>
        <source>转换日志：“%1”。</source>
        <translation>Translation log: “%1”.</translation>
    </message>
    <message>
        <source>已转换 %1 个图层映射，%2 个对象。</source>
        <translation>Layer mappings carried out: %1, objects changed: %2.</translation>
    </message>
    <message>
        <source>图层转换中有以下问题：</source>
        <translation>The layer translation met these problems:</translation>
    </message>
    <message>
        <source>图层状态没有保存：</source>
        <translation>The layer state was not saved:</translation>
    </message>
    <message>
        <source>有图层未能打开或关闭：</source>
        <translation>Some layers could not be turned on or off:</translation>
    </message>
    <message>
        <source>以下图层没有清除：</source>
        <translation>These layers were not purged:</translation>
    </message>
    <message>
        <source>已清除 %1 个图层。</source>
        <translation>Layers purged: %1.</translation>
    </message>
    <message>
        <source>图层状态“%1”已保存。</source>
        <translation>The layer state “%1” was saved.</translation>
    </message>
    <message>
        <source>已隔离 %1 个图层。</source>
        <translation>Layers isolated: %1.</translation>
    </message>
    <message>
        <source>已恢复隔离前的图层。</source>
        <translation>The layers are as they were before isolating.</translation>
    </message>
    <message>
        <source>没有隔离的图层。</source>
        <translation>No layers are isolated.</translation>
    </message>
    <message>
        <source>已冻结 %1 个图层。</source>
        <translation>Layers frozen: %1.</translation>
    </message>
    <message>
        <source>已解冻 %1 个图层。</source>
        <translation>Layers thawed: %1.</translation>
    </message>
    <message>
        <source>已关闭 %1 个图层。</source>
        <translation>Layers turned off: %1.</translation>
    </message>
    <message>
        <source>已打开 %1 个图层。</source>
        <translation>Layers turned on: %1.</translation>
    </message>
    <message>
        <source>已锁定 %1 个图层。</source>
        <translation>Layers locked: %1.</translation>
    </message>
    <message>
        <source>已解锁 %1 个图层。</source>
        <translation>Layers unlocked: %1.</translation>
    </message>
    <message>
        <source>对象已更改到当前图层。</source>
        <translation>The objects are on the current layer now.</translation>
    </message>
    <message>
        <source>已更改当前图层。</source>
        <translation>The current layer was changed.</translation>
    </message>
    <message>
        <source>已恢复上一个图层状态。</source>
        <translation>The layers are as they were one change before.</translation>
    </message>
    <message>
        <source>没有上一个图层状态。</source>
        <translation>There is no earlier state of the layers.</translation>
    </message>
    <message>
        <source>没有选择对象，未作更改。</source>
        <translation>No objects were selected; nothing was changed.</translation>
    </message>
    <message>
        <source>有些更改没有完成：</source>
        <translation>Some changes were not made:</translation>
    </message>
    <message>
        <source>模型</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>此图形的格式不能保存图层状态：它们随图形保存在旁边的文件“%1”中。</source>
        <translation>A drawing of this format cannot hold layer states: they are saved with it in the file “%1” beside it.</translation>
    </message>
    <message>
        <source>图层特性</source>
        <translation>Layer Properties</translation>
    </message>
    <message>
        <source>图层状态</source>
        <translation>Layer States</translation>
    </message>
    <message>
        <source>删除图层</source>
        <translation>Layer Delete</translation>
    </message>
    <message>
        <source>更改到图层</source>
        <translation>Change to Layer</translation>
    </message>
    <message>
        <source>合并图层</source>
        <translation>Layer Merge</translation>
    </message>
    <message>
        <source>图层漫游</source>
        <translation>Layer Walk</translation>
    </message>
    <message>
        <source>图层转换器</source>
        <translation>Layer Translator</translation>
    </message>
    <message>
        <source>隔离图层</source>
        <translation>Isolate Layers</translation>
    </message>
    <message>
        <source>取消隔离图层</source>
        <translation>Unisolate Layers</translation>
    </message>
    <message>
        <source>冻结图层</source>
        <translation>Freeze Layers</translation>
    </message>
    <message>
        <source>解冻图层</source>
        <translation>Thaw Layers</translation>
    </message>
    <message>
        <source>关闭图层</source>
        <translation>Turn Layers Off</translation>
    </message>
    <message>
        <source>打开图层</source>
        <translation>Turn Layers On</translation>
    </message>
    <message>
        <source>锁定图层</source>
        <translation>Lock Layers</translation>
    </message>
    <message>
        <source>解锁图层</source>
        <translation>Unlock Layers</translation>
    </message>
    <message>
        <source>更改到当前图层</source>
        <translation>Change to Current Layer</translation>
    </message>
    <message>
        <source>置为当前图层</source>
        <translation>Make Current</translation>
    </message>
    <message>
        <source>上一个图层状态</source>
        <translation>Layer Previous</translation>
    </message>
    <message>
        <source>无法写入图片“%1”。</source>
        <translation>Cannot write the picture “%1”.</translation>
    </message>
    <message>
        <source>layerbench: 没有可用的显示；可用 --gallery、--screenshot 或 --list。
</source>
        <translation>layerbench: there is no display; --gallery, --screenshot and --list work without one.
</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>图层工作台</source>
        <translation>Layer Workbench</translation>
    </message>
    <message>
        <source>图形“%1”有未保存的更改。是否保存？</source>
        <translation>The drawing “%1” has unsaved changes. Save them?</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>不保存</source>
        <translation>Don&apos;t Save</translation>
    </message>
    <message>
        <source>第 %1 行</source>
        <translation>line %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>无法打开图形</source>
        <translation>Cannot Open the Drawing</translation>
    </message>
    <message>
        <source>%1

可以打开中断处之前完整的部分；它只能另存为其他文件。</source>
        <translation>%1

The part before the break is intact and can be opened; it can only be saved to another file.</translation>
    </message>
    <message>
        <source>打开完整的部分</source>
        <translation>Open the Intact Part</translation>
    </message>
    <message>
        <source>命令“%1”出错，它所做的更改已撤回。

原因：%2</source>
        <translation>The command “%1” failed, and what it had changed was taken back.

Cause: %2</translation>
    </message>
    <message>
        <source>关于图层工作台</source>
        <translation>About Layer Workbench</translation>
    </message>
    <message>
        <source>&lt;b&gt;图层工作台 %1&lt;/b&gt;&lt;p&gt;打开 DXF 图形，管理其中的图层。&lt;/p&gt;</source>
        <translation>&lt;b&gt;Layer Workbench %1&lt;/b&gt;&lt;p&gt;Opens DXF drawings and manages their layers.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>layerbench: %1
用 --help 查看用法。
</source>
        <translation>layerbench: %1
See --help for the usage.
</translation>
    </message>
    <message>
        <source>显示用法并退出。</source>
        <translation>Show the usage and exit.</translation>
    </message>
    <message>
        <source>显示版本并退出。</source>
        <translation>Show the version and exit.</translation>
    </message>
    <message>
        <source>打开图形后启动图层命令: %1。</source>
        <translation>Start a layer command when the drawing is open: %1.</translation>
    </message>
    <message>
        <source>把窗口画成 PNG 文件并退出。</source>
        <translation>Paint the window into a PNG file and exit.</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>file</translation>
    </message>
    <message>
        <source>把每个对话框画成一个 PNG 文件，存入文件夹并退出；不给图形时用示例图形。</source>
        <translation>Paint each dialog into a PNG file in the folder and exit; without a drawing the sample is used.</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>folder</translation>
    </message>
    <message>
        <source>在标准输出上以 JSON 列出图层表并退出，不显示窗口。</source>
        <translation>List the layer table on standard output as JSON and exit, without a window.</translation>
    </message>
    <message>
        <source>图层工作台: 打开 DXF 图形，管理其中的图层。</source>
        <translation>Layer Workbench: opens DXF drawings and manages their layers.</translation>
    </message>
    <message>
        <source>图形</source>
        <translation>drawing</translation>
    </message>
    <message>
        <source>要打开的 DXF 文件。</source>
        <translation>The DXF file to open.</translation>
    </message>
    <message>
        <source>[图形]</source>
        <translation>[drawing]</translation>
    </message>
    <message>
        <source>一次只能打开一个图形。</source>
        <translation>Only one drawing can be opened at a time.</translation>
    </message>
    <message>
        <source>--list 需要一个图形。</source>
        <translation>--list needs a drawing.</translation>
    </message>
    <message>
        <source>视口中的图层特性没有更改：%1。</source>
        <translation>The layer properties in the viewport were not changed: %1.</translation>
    </message>
    <message>
        <source>图层“%1”：图形中没有线型“%2”。</source>
        <translation>Layer “%1”: the drawing has no linetype “%2”.</translation>
    </message>
    <message>
        <source>不能冻结当前图层“%1”。</source>
        <translation>The current layer “%1” cannot be frozen.</translation>
    </message>
    <message>
        <source>“%1”不是有效的%2。</source>
        <translation>“%1” is not valid for %2.</translation>
    </message>
    <message>
        <source>视口中的图层没有更改：%1。</source>
        <translation>The layers in the viewport were not changed: %1.</translation>
    </message>
    <message>
        <source>在视口中%1图层</source>
        <translation>%1 Layers in Viewport</translation>
    </message>
    <message>
        <source>%1图层</source>
        <translation>%1 Layers</translation>
    </message>
    <message>
        <source>更改图层%1</source>
        <translation>Change Layer %1</translation>
    </message>
    <message>
        <source>请先选择要粘贴到的图层。</source>
        <translation>First select the layers to paste to.</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Current</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>开</source>
        <translation>On</translation>
    </message>
    <message>
        <source>关</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>冻结</source>
        <translation>Freeze</translation>
    </message>
    <message>
        <source>解冻</source>
        <translation>Thaw</translation>
    </message>
    <message>
        <source>锁定</source>
        <translation>Lock</translation>
    </message>
    <message>
        <source>解锁</source>
        <translation>Unlock</translation>
    </message>
    <message>
        <source>打印</source>
        <translation>Plot</translation>
    </message>
    <message>
        <source>不打印</source>
        <translation>No Plot</translation>
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
        <source>对象数</source>
        <translation>Objects</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>视口冻结</source>
        <translation>VP Freeze</translation>
    </message>
    <message>
        <source>视口颜色</source>
        <translation>VP Color</translation>
    </message>
    <message>
        <source>视口线型</source>
        <translation>VP Linetype</translation>
    </message>
    <message>
        <source>视口线宽</source>
        <translation>VP Lineweight</translation>
    </message>
    <message>
        <source>视口透明度</source>
        <translation>VP Transparency</translation>
    </message>
    <message>
        <source>正则表达式有误：%1（第 %2 个字符）</source>
        <translation>Error in the regular expression: %1 (character %2)</translation>
    </message>
    <message>
        <source>直线</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>多段线</source>
        <translation>Polyline</translation>
    </message>
    <message>
        <source>圆</source>
        <translation>Circle</translation>
    </message>
    <message>
        <source>圆弧</source>
        <translation>Arc</translation>
    </message>
    <message>
        <source>椭圆</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>样条曲线</source>
        <translation>Spline</translation>
    </message>
    <message>
        <source>螺旋</source>
        <translation>Helix</translation>
    </message>
    <message>
        <source>点</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>多行文字</source>
        <translation>Multiline Text</translation>
    </message>
    <message>
        <source>块参照</source>
        <translation>Block Reference</translation>
    </message>
    <message>
        <source>属性定义</source>
        <translation>Attribute Definition</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Hatch</translation>
    </message>
    <message>
        <source>实心面</source>
        <translation>Solid</translation>
    </message>
    <message>
        <source>标注</source>
        <translation>Dimension</translation>
    </message>
    <message>
        <source>引线</source>
        <translation>Leader</translation>
    </message>
    <message>
        <source>多重引线</source>
        <translation>Multileader</translation>
    </message>
    <message>
        <source>视口</source>
        <translation>Viewport</translation>
    </message>
    <message>
        <source>表格</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>图像</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>区域覆盖</source>
        <translation>Wipeout</translation>
    </message>
    <message>
        <source>多线</source>
        <translation>Multiline</translation>
    </message>
    <message>
        <source>布局“%1”</source>
        <translation>Layout “%1”</translation>
    </message>
    <message>
        <source>模型空间</source>
        <translation>Model Space</translation>
    </message>
    <message>
        <source>块“%1”</source>
        <translation>Block “%1”</translation>
    </message>
    <message>
        <source>图层“0”总是存在</source>
        <translation>the layer “0” always exists</translation>
    </message>
    <message>
        <source>是当前图层</source>
        <translation>it is the current layer</translation>
    </message>
    <message>
        <source>依赖外部参照</source>
        <translation>it depends on an external reference</translation>
    </message>
    <message>
        <source>%1中有 %2 个%3</source>
        <translation>%1: %3 (%2)</translation>
    </message>
    <message>
        <source>共有 %1 个对象</source>
        <translation>%1 objects in all</translation>
    </message>
    <message>
        <source>把模型空间和每个布局各画成一个 PNG 文件，存入文件夹并退出。</source>
        <translation>Paint model space and each layout into a PNG file each in the folder and exit.</translation>
    </message>
    <message>
        <source>--sheets 需要一个图形。</source>
        <translation>--sheets needs a drawing.</translation>
    </message>
    <message>
        <source>图层模块的库文件；不给时用安装的模块，或环境变量 LAYERBENCH_MODULE 所指的。</source>
        <translation>The layer module&apos;s library; without it the installed one, or the one the environment variable LAYERBENCH_MODULE names.</translation>
    </message>
    <message>
        <source>--%1 没有“%2”；可用 %3。</source>
        <translation>--%1: there is no “%2”; choose one of %3.</translation>
    </message>
    <message>
        <source>显示的语言: %1；不给时依菜单中的选择，再依区域设置。</source>
        <translation>The language to show: %1; without it that of the menu counts, then that of the locale.</translation>
    </message>
    <message>
        <source>输出命令补全脚本并退出: %1。</source>
        <translation>Print the script that completes command lines in a shell, and end: %1.</translation>
    </message>
    <message>
        <source>输出手册页 layerbench(1)（roff）并退出。</source>
        <translation>Print the manual page layerbench(1), in roff, and end.</translation>
    </message>
    <message>
        <source>用法</source>
        <translation>Synopsis</translation>
    </message>
    <message>
        <source>layerbench [选项...] [图形]</source>
        <translation>layerbench [OPTION...] [DRAWING]</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>返回值</source>
        <translation>Exit status</translation>
    </message>
    <message>
        <source>正常时返回 0；文件读不出或写不成时返回 1；用法有误时返回 2。</source>
        <translation>0 when all went well, 1 when a file could not be read or written, 2 when the usage was wrong.</translation>
    </message>
    <message>
        <source>另见</source>
        <translation>See also</translation>
    </message>
    <message>
        <source>词</source>
        <translation>word</translation>
    </message>
</context>
</TS>
