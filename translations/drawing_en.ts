<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>drawing</name>
    <message>
        <source>无法打开文件“%1”：%2。</source>
        <translation>Cannot open the file “%1”: %2.</translation>
    </message>
    <message>
        <source>文件不存在</source>
        <translation>the file does not exist</translation>
    </message>
    <message>
        <source>它是文件夹</source>
        <translation>it is a folder</translation>
    </message>
    <message>
        <source>它不是普通文件</source>
        <translation>it is not a regular file</translation>
    </message>
    <message>
        <source>没有读取权限</source>
        <translation>no permission to read it</translation>
    </message>
    <message>
        <source>无法打开文件“%1”：内存不足。</source>
        <translation>Cannot open the file “%1”: out of memory.</translation>
    </message>
    <message>
        <source>无法保存文件“%1”：%2。</source>
        <translation>Cannot save the file “%1”: %2.</translation>
    </message>
    <message>
        <source>还有未完成的操作</source>
        <translation>an operation is not finished yet</translation>
    </message>
    <message>
        <source>原文件已被其他程序改写</source>
        <translation>the original file was rewritten by another program</translation>
    </message>
    <message>
        <source>图形没有打开的操作步骤，不能改动。</source>
        <translation>The drawing has no open step, so it cannot be changed.</translation>
    </message>
    <message>
        <source>此图形的 DXF 版本不能保存打印开关：图层“%1”%2的该设置未改动。</source>
        <translation>The drawing&apos;s DXF version cannot hold the plot switch: it was not changed for layer “%1”%2.</translation>
    </message>
    <message>
        <source>此图形的 DXF 版本不能保存线宽：图层“%1”%2的该设置未改动。</source>
        <translation>The drawing&apos;s DXF version cannot hold lineweights: it was not changed for layer “%1”%2.</translation>
    </message>
    <message>
        <source>此图形的 DXF 版本不能保存真彩色：图层“%1”%2只保存了颜色索引。</source>
        <translation>The drawing&apos;s DXF version cannot hold true colors: only the color index was saved for layer “%1”%2.</translation>
    </message>
    <message>
        <source>此图形的 DXF 版本不能保存线型中的文字和形：线型“%1”%2只保存了划线和间隔。</source>
        <translation>The drawing&apos;s DXF version cannot hold texts and shapes in linetypes: only dashes and gaps were saved for linetype “%1”%2.</translation>
    </message>
    <message>
        <source>线型“%1”%2所用的文字样式或形文件在其来源图形中找不到：只保存了划线和间隔。</source>
        <translation>The text style or shape file used by linetype “%1”%2 was not found in the drawing it comes from: only dashes and gaps were saved.</translation>
    </message>
    <message>
        <source>等</source>
        <translation> and others</translation>
    </message>
    <message>
        <source>目标图层已不存在。</source>
        <translation>The target layer no longer exists.</translation>
    </message>
    <message>
        <source>图层“%1”依赖外部参照，不能作为目标图层。</source>
        <translation>Layer “%1” depends on an external reference and cannot be a target layer.</translation>
    </message>
    <message>
        <source>图层已不存在。</source>
        <translation>The layer no longer exists.</translation>
    </message>
    <message>
        <source>图层“0”不能删除。</source>
        <translation>Layer “0” cannot be deleted.</translation>
    </message>
    <message>
        <source>当前图层“%1”不能删除。</source>
        <translation>The current layer “%1” cannot be deleted.</translation>
    </message>
    <message>
        <source>图层“%1”依赖外部参照，不能删除。</source>
        <translation>Layer “%1” depends on an external reference and cannot be deleted.</translation>
    </message>
    <message>
        <source>图层“%1”不能合并到它自己。</source>
        <translation>Layer “%1” cannot be merged into itself.</translation>
    </message>
    <message>
        <source>简体中文 GBK</source>
        <translation>Simplified Chinese GBK</translation>
    </message>
    <message>
        <source>中文</source>
        <translation>Chinese</translation>
    </message>
    <message>
        <source>繁体中文 Big5</source>
        <translation>Traditional Chinese Big5</translation>
    </message>
    <message>
        <source>日文</source>
        <translation>Japanese</translation>
    </message>
    <message>
        <source>韩文</source>
        <translation>Korean</translation>
    </message>
    <message>
        <source>韩文组合码</source>
        <translation>Korean combining</translation>
    </message>
    <message>
        <source>西欧</source>
        <translation>Western European</translation>
    </message>
    <message>
        <source>中欧</source>
        <translation>Central European</translation>
    </message>
    <message>
        <source>西里尔文</source>
        <translation>Cyrillic</translation>
    </message>
    <message>
        <source>希腊文</source>
        <translation>Greek</translation>
    </message>
    <message>
        <source>土耳其文</source>
        <translation>Turkish</translation>
    </message>
    <message>
        <source>希伯来文</source>
        <translation>Hebrew</translation>
    </message>
    <message>
        <source>阿拉伯文</source>
        <translation>Arabic</translation>
    </message>
    <message>
        <source>波罗的海</source>
        <translation>Baltic</translation>
    </message>
    <message>
        <source>越南文</source>
        <translation>Vietnamese</translation>
    </message>
    <message>
        <source>泰文</source>
        <translation>Thai</translation>
    </message>
    <message>
        <source>美国 DOS</source>
        <translation>US DOS</translation>
    </message>
    <message>
        <source>西欧 DOS</source>
        <translation>Western European DOS</translation>
    </message>
    <message>
        <source>中欧 DOS</source>
        <translation>Central European DOS</translation>
    </message>
    <message>
        <source>俄文 DOS</source>
        <translation>Russian DOS</translation>
    </message>
    <message>
        <source>俄文</source>
        <translation>Russian</translation>
    </message>
    <message>
        <source>西欧 Macintosh</source>
        <translation>Western European Macintosh</translation>
    </message>
    <message>
        <source>西欧 ISO</source>
        <translation>Western European ISO</translation>
    </message>
    <message>
        <source>中欧 ISO</source>
        <translation>Central European ISO</translation>
    </message>
    <message>
        <source>西里尔文 ISO</source>
        <translation>Cyrillic ISO</translation>
    </message>
    <message>
        <source>第 %1 行</source>
        <translation>line %1</translation>
    </message>
    <message>
        <source>第 %1 字节</source>
        <translation>byte %1</translation>
    </message>
    <message>
        <source>已取消打开文件“%1”。</source>
        <translation>Opening the file “%1” was canceled.</translation>
    </message>
    <message>
        <source>文件“%1”%2的组码不存在。</source>
        <translation>The file “%1” has a group code at %2 that does not exist.</translation>
    </message>
    <message>
        <source>文件“%1”%2的组码“%3”不是数字。</source>
        <translation>The file “%1” has the group code “%3” at %2, which is not a number.</translation>
    </message>
    <message>
        <source>文件“%1”%2太长，超过 %3 MB，不能读取。</source>
        <translation>The file “%1” cannot be read: %2 is longer than %3 MB.</translation>
    </message>
    <message>
        <source>文件“%1”不完整：%3 段到%2仍没有 ENDSEC。</source>
        <translation>The file “%1” is incomplete: the section %3 still has no ENDSEC at %2.</translation>
    </message>
    <message>
        <source>文件“%1”不完整：在%2中断，缺少 EOF。</source>
        <translation>The file “%1” is incomplete: it breaks off at %2, without EOF.</translation>
    </message>
    <message>
        <source>文件“%1”不完整：在%2、%3 段中中断，缺少 ENDSEC 和 EOF。</source>
        <translation>The file “%1” is incomplete: it breaks off at %2 in the section %3, without ENDSEC and EOF.</translation>
    </message>
    <message>
        <source>文件“%1”是空的，不是 DXF 图形（第 1 行）。</source>
        <translation>The file “%1” is empty and not a DXF drawing (line 1).</translation>
    </message>
    <message>
        <source>文件“%1”是 DWG 图形，不能读取；请先另存为 DXF（第 1 行）。</source>
        <translation>The file “%1” is a DWG drawing, which cannot be read; save it as DXF first (line 1).</translation>
    </message>
    <message>
        <source>没有代码页“%1”。</source>
        <translation>There is no code page “%1”.</translation>
    </message>
    <message>
        <source>图形声明的代码页“%1”无法识别，文字按 %2 读取；可以用其他代码页重新打开。</source>
        <translation>The drawing declares the code page “%1”, which is unknown; its text was read as %2. It can be opened again with another code page.</translation>
    </message>
    <message>
        <source>图形没有说明文字的代码页，按 %1 读取；可以用其他代码页重新打开。</source>
        <translation>The drawing does not say in what code page its text is; it was read as %1. It can be opened again with another code page.</translation>
    </message>
    <message>
        <source>文件夹不存在</source>
        <translation>the folder does not exist</translation>
    </message>
    <message>
        <source>磁盘是只读的</source>
        <translation>the disk is read-only</translation>
    </message>
    <message>
        <source>磁盘空间不足</source>
        <translation>the disk is full</translation>
    </message>
    <message>
        <source>没有写入该文件夹的权限</source>
        <translation>no permission to write to the folder</translation>
    </message>
    <message>
        <source>文件是只读的</source>
        <translation>the file is read-only</translation>
    </message>
    <message>
        <source>无法保存文件“%1”：%2。原文件未改动。</source>
        <translation>Cannot save the file “%1”: %2. The original file was not changed.</translation>
    </message>
    <message>
        <source>已取消保存。</source>
        <translation>Saving was canceled.</translation>
    </message>
    <message>
        <source>已取消。</source>
        <translation>Canceled.</translation>
    </message>
    <message>
        <source>已有名为“%1”的图层。</source>
        <translation>There is already a layer named “%1”.</translation>
    </message>
    <message>
        <source>图层“0”不能重命名。</source>
        <translation>Layer “0” cannot be renamed.</translation>
    </message>
    <message>
        <source>图层“%1”依赖外部参照，不能重命名。</source>
        <translation>Layer “%1” depends on an external reference and cannot be renamed.</translation>
    </message>
    <message>
        <source>图层“%1”：没有颜色索引 %2。</source>
        <translation>Layer “%1”: there is no color index %2.</translation>
    </message>
    <message>
        <source>图层“%1”：没有真彩色 %2。</source>
        <translation>Layer “%1”: there is no true color %2.</translation>
    </message>
    <message>
        <source>图层“%1”：没有线宽 %2。</source>
        <translation>Layer “%1”: there is no lineweight %2.</translation>
    </message>
    <message>
        <source>图层“%1”：透明度 %2 不在 0 到 90 之间。</source>
        <translation>Layer “%1”: the transparency %2 is not between 0 and 90.</translation>
    </message>
    <message>
        <source>图层“%1”：说明“%2…”超过 255 个字符。</source>
        <translation>Layer “%1”: the description “%2…” is longer than 255 characters.</translation>
    </message>
    <message>
        <source>图层“%1”：图形中没有线型“%2”。</source>
        <translation>Layer “%1”: the drawing has no linetype “%2”.</translation>
    </message>
    <message>
        <source>图层“%1”已不存在。</source>
        <translation>Layer “%1” no longer exists.</translation>
    </message>
    <message>
        <source>图层“%1”上有 %2 个对象，不能删除。</source>
        <translation>Layer “%1” cannot be deleted; entities on it: %2.</translation>
    </message>
    <message>
        <source>此图形的格式不能保存视口中的图层特性</source>
        <translation>The drawing&apos;s format cannot hold layer properties by viewport</translation>
    </message>
    <message>
        <source>当前不在布局中</source>
        <translation>No layout is current</translation>
    </message>
    <message>
        <source>布局%1中没有视口</source>
        <translation>The layout %1 has no viewport</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>“%1”等 %2 个图层</source>
        <translation>“%1” and others (%2 layers)</translation>
    </message>
    <message>
        <source>图形中没有图层%1，没有恢复。</source>
        <translation>The drawing has no layer %1; it was not restored.</translation>
    </message>
    <message>
        <source>图层“%1”恢复后是冻结的，不能置为当前；当前图层仍为“%2”。</source>
        <translation>Layer “%1” is frozen in the state and cannot be made current; the current layer is still “%2”.</translation>
    </message>
    <message>
        <source>%1：颜色、线型、线宽、打印样式和透明度不能作为视口替代应用，没有恢复。</source>
        <translation>%1: color, linetype, lineweight, plot style and transparency cannot be applied as viewport overrides; they were not restored.</translation>
    </message>
    <message>
        <source>图形中没有图层%1的线型，没有恢复。</source>
        <translation>The drawing lacks the linetype of layer %1; it was not restored.</translation>
    </message>
    <message>
        <source>图层%1的打印样式不能作为视口替代保存，没有恢复。</source>
        <translation>The plot style of layer %1 cannot be saved as a viewport override; it was not restored.</translation>
    </message>
    <message>
        <source>%1：图层在当前视口中的可见性没有恢复。</source>
        <translation>%1: the layers&apos; visibility in the current viewport was not restored.</translation>
    </message>
    <message>
        <source>当前图层“%1”不能冻结。</source>
        <translation>The current layer “%1” cannot be frozen.</translation>
    </message>
    <message>
        <source>文件不完整：在图层状态“%1”中中断，其后的内容没有读入。</source>
        <translation>The file is incomplete: it breaks off in the layer state “%1”; what follows was not read.</translation>
    </message>
    <message>
        <source>文件不完整：末尾的内容没有读入。</source>
        <translation>The file is incomplete: what stands at its end was not read.</translation>
    </message>
    <message>
        <source>不认识的组码 %1%2，已跳过。</source>
        <translation>Unknown group codes were skipped: %1%2.</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>恢复掩码中不认识的位 %1，已忽略。</source>
        <translation>Unknown bits of the restore mask were ignored: %1.</translation>
    </message>
    <message>
        <source>%1 个颜色或线宽的值不存在，图层的该项用默认值代替。</source>
        <translation>%1 values of colors or lineweights do not exist; defaults took their place.</translation>
    </message>
    <message>
        <source>一个图层状态没有可用的名称，没有读入。</source>
        <translation>A layer state without a usable name was not read.</translation>
    </message>
    <message>
        <source>无法读取图层状态文件“%1”：%2。</source>
        <translation>Cannot read the layer state file “%1”: %2.</translation>
    </message>
    <message>
        <source>它是空的</source>
        <translation>it is empty</translation>
    </message>
    <message>
        <source>第 1 行不是图层状态文件的开头</source>
        <translation>line 1 is not how a layer state file begins</translation>
    </message>
    <message>
        <source>第 %1 行的组码不是数字</source>
        <translation>the group code at line %1 is not a number</translation>
    </message>
    <message>
        <source>文件“%1”的文字不是 UTF-8 编码，已按 %2 读取。</source>
        <translation>The text of the file “%1” is not UTF-8; it was read as %2.</translation>
    </message>
    <message>
        <source>无法写入图层状态文件“%1”：%2。</source>
        <translation>Cannot write the layer state file “%1”: %2.</translation>
    </message>
    <message>
        <source>此图形的图层状态文件无法读取，为免丢失其中的内容，不能改动图层状态：%1</source>
        <translation>The drawing&apos;s layer state file cannot be read; so that nothing in it is lost, layer states cannot be changed: %1</translation>
    </message>
    <message>
        <source>图形中没有图层状态“%1”。</source>
        <translation>The drawing has no layer state “%1”.</translation>
    </message>
    <message>
        <source>已有名为“%1”的图层状态。</source>
        <translation>There is already a layer state named “%1”.</translation>
    </message>
    <message>
        <source>图形中没有图层“%1”。</source>
        <translation>The drawing has no layer “%1”.</translation>
    </message>
    <message>
        <source>图层“%1”依赖外部参照，不能转换。</source>
        <translation>Layer “%1” depends on an external reference and cannot be translated.</translation>
    </message>
    <message>
        <source>图层“%1”已在前面的映射中。</source>
        <translation>Layer “%1” is in an earlier mapping already.</translation>
    </message>
    <message>
        <source>目标图层“%1”依赖外部参照。</source>
        <translation>The target layer “%1” depends on an external reference.</translation>
    </message>
    <message>
        <source>目标图层“%1”在前面的映射中有别的特性，以前面的为准。</source>
        <translation>The target layer “%1” has other properties in an earlier mapping; those hold.</translation>
    </message>
    <message>
        <source>目标图层“%1”已冻结，不能成为当前图层：当前图层“%2”保留。</source>
        <translation>The target layer “%1” is frozen and cannot become the current layer: the current layer “%2” is kept.</translation>
    </message>
    <message>
        <source>图形没有打开的操作步骤，不能转换图层。</source>
        <translation>The drawing has no open step, so layers cannot be translated.</translation>
    </message>
    <message>
        <source>此文件的格式（DXF R12 或没有对象字典）不能保存图层映射。</source>
        <translation>The format of this file (DXF R12, or no object dictionary) cannot hold layer mappings.</translation>
    </message>
    <message>
        <source>无法把图层映射保存到“%1”：%2文件未改动。</source>
        <translation>Cannot save the layer mappings to “%1”: %2 The file was not changed.</translation>
    </message>
    <message>
        <source>目标图层“%1”有几组不同的特性，只保存了第一组。</source>
        <translation>The target layer “%1” has several differing sets of properties; only the first was saved.</translation>
    </message>
    <message>
        <source>文件中的打印样式由颜色决定：没有保存图层“%1”的打印样式“%2”。</source>
        <translation>Plot styles in the file depend on colors: the plot style “%2” of layer “%1” was not saved.</translation>
    </message>
    <message>
        <source>图层“%1”有几条映射，只保存了第一条。</source>
        <translation>Layer “%1” has several mappings; only the first was saved.</translation>
    </message>
    <message>
        <source>文件中原有的 %1 条其他映射已被现在的映射取代。</source>
        <translation>%1 other mappings that were in the file were replaced by the present ones.</translation>
    </message>
    <message>
        <source>文件“%1”：映射“%2” → “%3”的目标图层不在文件中，没有读入。</source>
        <translation>File “%1”: the target layer of the mapping “%2” → “%3” is not in the file; the mapping was not read.</translation>
    </message>
    <message>
        <source>文件“%1”除图层 0 外没有图层，不能作为图层标准。</source>
        <translation>The file “%1” has no layer but layer 0, so it cannot serve as a layer standard.</translation>
    </message>
    <message>
        <source>图形中没有线型“%1”，也没有它的定义：图层“%2”的线型为“%3”。</source>
        <translation>The drawing has no linetype “%1”, nor is its definition known: layer “%2” has the linetype “%3”.</translation>
    </message>
    <message>
        <source>图形中没有打印样式“%1”：图层“%2”的打印样式为“%3”。</source>
        <translation>The drawing has no plot style “%1”: layer “%2” has the plot style “%3”.</translation>
    </message>
    <message>
        <source>强制对象颜色为 ByLayer</source>
        <translation>force entity color to ByLayer</translation>
    </message>
    <message>
        <source>强制对象线型为 ByLayer</source>
        <translation>force entity linetype to ByLayer</translation>
    </message>
    <message>
        <source>强制对象透明度为 ByLayer</source>
        <translation>force entity transparency to ByLayer</translation>
    </message>
    <message>
        <source>转换块中的对象</source>
        <translation>translate entities in blocks</translation>
    </message>
    <message>
        <source>无</source>
        <translation>none</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>目标图层已新建</source>
        <translation>target layer created</translation>
    </message>
    <message>
        <source>目标图层的特性已改动</source>
        <translation>target layer&apos;s properties changed</translation>
    </message>
    <message>
        <source>目标图层的特性不变</source>
        <translation>target layer&apos;s properties unchanged</translation>
    </message>
    <message>
        <source>未执行</source>
        <translation>not carried out</translation>
    </message>
    <message>
        <source>“%1” → “%2”：</source>
        <translation>“%1” → “%2”: </translation>
    </message>
    <message>
        <source>未执行。</source>
        <translation>not carried out. </translation>
    </message>
    <message>
        <source>%1 个对象，%2</source>
        <translation>%1 entities, %2</translation>
    </message>
    <message>
        <source>，原图层已删除</source>
        <translation>, source layer removed</translation>
    </message>
    <message>
        <source>，块中的 %1 个对象未转换</source>
        <translation>, %1 entities in blocks not translated</translation>
    </message>
    <message>
        <source>。</source>
        <translation>.</translation>
    </message>
    <message>
        <source>图层转换日志</source>
        <translation>Layer translation log</translation>
    </message>
    <message>
        <source>图形：%1</source>
        <translation>Drawing: %1</translation>
    </message>
    <message>
        <source>时间：%1</source>
        <translation>Time: %1</translation>
    </message>
    <message>
        <source>选项：%1</source>
        <translation>Options: %1</translation>
    </message>
    <message>
        <source>映射：%1 条已执行，%2 条未执行；%3 个对象中转换了 %4 个。</source>
        <translation>Mappings: %1 carried out, %2 not carried out; %4 of %3 entities translated.</translation>
    </message>
    <message>
        <source>无法写入日志文件“%1”：%2。</source>
        <translation>Cannot write the log file “%1”: %2.</translation>
    </message>
    <message>
        <source>图形不完整，不能覆盖原文件，请另存为其他文件</source>
        <translation>the drawing is incomplete and cannot take the place of the original; save it as another file</translation>
    </message>
    <message>
        <source>文件“%1”是 %2 的 DXF，其中没有 SECTION 段，不能读取（%3）。</source>
        <translation>The file “%1” is a DXF of %2 without any SECTION, which cannot be read (%3).</translation>
    </message>
    <message>
        <source>文件“%1”不是 DXF 图形，或者来自 R9 以前的版本：它不以 SECTION 段开头（%2）。</source>
        <translation>The file “%1” is not a DXF drawing, or of a version before R9: it does not begin with a SECTION (%2).</translation>
    </message>
    <message>
        <source>文件“%1”%2的段没有名称，不能读取。</source>
        <translation>The file “%1” cannot be read: the section at %2 has no name.</translation>
    </message>
    <message>
        <source>文件“%1”%2的内容不在任何段中，不能读取。</source>
        <translation>The file “%1” cannot be read: what stands at %2 is in no section.</translation>
    </message>
    <message>
        <source>文件“%1”%2的表没有名称，不能读取。</source>
        <translation>The file “%1” cannot be read: the table at %2 has no name.</translation>
    </message>
    <message>
        <source>文件“%1”%2的记录不在任何表中，不能读取。</source>
        <translation>The file “%1” cannot be read: the record at %2 is in no table.</translation>
    </message>
    <message>
        <source>%1此后的内容没有读入；只能另存为其他文件。</source>
        <translation>%1 What follows was not read; it can only be saved as another file.</translation>
    </message>
    <message>
        <source>%1不能为空。</source>
        <translation>%1 cannot be empty.</translation>
    </message>
    <message>
        <source>%1“%2…”超过 %3 个字符。</source>
        <translation>%1 “%2…” is longer than %3 characters.</translation>
    </message>
    <message>
        <source>%1“%2”含有不能使用的字符：\ &lt; &gt; / &quot; : ; ? * | , = ` 或控制字符。</source>
        <translation>%1 “%2” holds characters that cannot be used: \ &lt; &gt; / &quot; : ; ? * | , = ` or control characters.</translation>
    </message>
    <message>
        <source>%1“%2…”超过 %3 个字符，此图形的 DXF 版本不能保存。</source>
        <translation>%1 “%2…” is longer than %3 characters, which the drawing&apos;s DXF version cannot hold.</translation>
    </message>
    <message>
        <source>%1“%2”：此图形的 DXF 版本只能使用字母、数字和 $ - _。</source>
        <translation>%1 “%2”: the drawing&apos;s DXF version allows letters, digits and $ - _ only.</translation>
    </message>
    <message>
        <source>图层名</source>
        <translation>The layer name</translation>
    </message>
    <message>
        <source>图形中有本程序读不懂的自定义对象，其中提到图层“%1”%2：这些数据原样保留，没有随之改动。</source>
        <translation>The drawing has custom objects that this program cannot read and that name layer “%1”%2: their data were kept as they are and did not follow the change.</translation>
    </message>
    <message>
        <source>不了解过滤器“%1”的类型，不能更改。</source>
        <translation>The filter “%1” is of a kind that is not known here and cannot be changed.</translation>
    </message>
    <message>
        <source>已有名称为“%1”的过滤器。</source>
        <translation>There already is a filter named “%1”.</translation>
    </message>
    <message>
        <source>此图形的格式（DXF R12）不能保存图层过滤器。</source>
        <translation>This drawing&apos;s format (DXF R12) cannot hold layer filters.</translation>
    </message>
    <message>
        <source>过滤器已不存在。</source>
        <translation>The filter is no longer there.</translation>
    </message>
    <message>
        <source>过滤器的名称不能为空。</source>
        <translation>The name of a filter must not be empty.</translation>
    </message>
    <message>
        <source>图层已从图形中删除。</source>
        <translation>The layer has been removed from the drawing.</translation>
    </message>
    <message>
        <source>已有一个步骤打开：步骤不能嵌套。</source>
        <translation>A step is open already; steps do not nest.</translation>
    </message>
    <message>
        <source>没有语言“%1”；可用的语言: %2。</source>
        <translation>There is no language “%1”. Languages: %2.</translation>
    </message>
    <message>
        <source>图层状态“%1”：图形中没有图层“%2”。</source>
        <translation>Layer state “%1”: the drawing has no layer “%2”.</translation>
    </message>
    <message>
        <source>不能更改此视口中的视图。</source>
        <translation>The view in this viewport cannot be changed.</translation>
    </message>
</context>
</TS>
