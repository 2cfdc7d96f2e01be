<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>layertool</name>
    <message>
        <source>%1: 失败: %2</source>
        <translation>%1: failed: %2</translation>
    </message>
    <message>
        <source>无法读取基线“%1”：%2。</source>
        <translation>Cannot read the baseline “%1”: %2.</translation>
    </message>
    <message>
        <source>naming 的 fields 中有一个字段没有 name。</source>
        <translation>A field in the “fields” of “naming” has no “name”.</translation>
    </message>
    <message>
        <source>字段“%1”的 width 应为一个正整数，或由小到大两个。</source>
        <translation>The “width” of the field “%1” must be a positive whole number, or two of them, the smaller one first.</translation>
    </message>
    <message>
        <source>字段“%1”的 pattern 不是正则表达式：%2。</source>
        <translation>The “pattern” of the field “%1” is not a regular expression: %2.</translation>
    </message>
    <message>
        <source>naming 没有 fields。</source>
        <translation>“naming” has no “fields”.</translation>
    </message>
    <message>
        <source>没有分隔符时，字段“%1”要有固定的 width。</source>
        <translation>Without a separator the field “%1” needs a fixed “width”.</translation>
    </message>
    <message>
        <source>字段“%1”应为 %2 个字符，“%3”不是。</source>
        <translation>the field “%1” must have %2 characters, unlike “%3”.</translation>
    </message>
    <message>
        <source>字段“%1”的长度不对：“%2”。</source>
        <translation>the field “%1” is too short or too long: “%2”.</translation>
    </message>
    <message>
        <source>字段“%1”没有“%2”这个值。</source>
        <translation>the field “%1” has no value “%2”.</translation>
    </message>
    <message>
        <source>字段“%1”的写法不对：“%2”。</source>
        <translation>the field “%1” cannot be “%2”.</translation>
    </message>
    <message>
        <source>缺少字段“%1”。</source>
        <translation>the field “%1” is missing.</translation>
    </message>
    <message>
        <source>名称以分隔符结束。</source>
        <translation>the name ends with a separator.</translation>
    </message>
    <message>
        <source>“%1”是多余的。</source>
        <translation>“%1” is left over.</translation>
    </message>
    <message>
        <source>名称超过 %1 个字符。</source>
        <translation>the name is longer than %1 characters.</translation>
    </message>
    <message>
        <source>名称应为大写。</source>
        <translation>the name must be in upper case.</translation>
    </message>
    <message>
        <source>layers 中有一个图层没有 name。</source>
        <translation>A layer in “layers” has no “name”.</translation>
    </message>
    <message>
        <source>图层“%1”没有名为“%2”的特性。</source>
        <translation>The layer “%1” has no property named “%2”.</translation>
    </message>
    <message>
        <source>图层“%1”的 %2 不是可用的值：“%3”。</source>
        <translation>The layer “%1” has a value of %2 that cannot be used: “%3”.</translation>
    </message>
    <message>
        <source>没有名为“%1”的规则。</source>
        <translation>There is no rule named “%1”.</translation>
    </message>
    <message>
        <source>规则“%1”的级别应为 off、note、warning 或 error。</source>
        <translation>The level of the rule “%1” must be off, note, warning or error.</translation>
    </message>
    <message>
        <source>没有名为“%1”的键。</source>
        <translation>There is no key named “%1”.</translation>
    </message>
    <message>
        <source>无法读取规则文件“%1”：%2。</source>
        <translation>Cannot read the rule file “%1”: %2.</translation>
    </message>
    <message>
        <source>规则文件“%1”的第 %2 行不是 JSON：%3。</source>
        <translation>Line %2 of the rule file “%1” is not JSON: %3.</translation>
    </message>
    <message>
        <source>规则文件“%1”：%2</source>
        <translation>Rule file “%1”: %2</translation>
    </message>
    <message>
        <source>缺少图层“%1”。</source>
        <translation>The layer “%1” is missing.</translation>
    </message>
    <message>
        <source>标准中没有图层“%1”。</source>
        <translation>The standard has no layer “%1”.</translation>
    </message>
    <message>
        <source>不允许有图层“%1”。</source>
        <translation>The layer “%1” is forbidden.</translation>
    </message>
    <message>
        <source>图层名“%1”不合规则：%2</source>
        <translation>The layer name “%1” does not follow the scheme: %2</translation>
    </message>
    <message>
        <source>图层“%1”在标准中名为“%2”。</source>
        <translation>The layer “%1” is called “%2” in the standard.</translation>
    </message>
    <message>
        <source>图层“%1”的%2是“%3”，应为“%4”。</source>
        <translation>Layer “%1”: %2 is “%3” and must be “%4”.</translation>
    </message>
    <message>
        <source>图层“%1”上有 %2 个对象的颜色不是随层。</source>
        <translation>Entities on layer “%1” whose color is not ByLayer: %2.</translation>
    </message>
    <message>
        <source>图层“%1”上有 %2 个对象的线型不是随层。</source>
        <translation>Entities on layer “%1” whose linetype is not ByLayer: %2.</translation>
    </message>
    <message>
        <source>图层“%1”上有 %2 个对象的线宽不是随层。</source>
        <translation>Entities on layer “%1” whose lineweight is not ByLayer: %2.</translation>
    </message>
    <message>
        <source>图层“%1”上有 %2 个对象的透明度不是随层。</source>
        <translation>Entities on layer “%1” whose transparency is not ByLayer: %2.</translation>
    </message>
    <message>
        <source>图层 0 上有 %1 个对象。</source>
        <translation>Entities on layer 0: %1.</translation>
    </message>
    <message>
        <source>图层“%1”上有 %2 个对象，不会打印。</source>
        <translation>Entities on layer “%1”, which will not be plotted: %2.</translation>
    </message>
    <message>
        <source>块定义中有 %2 个对象在图层“%1”上，而不在图层 0 上。</source>
        <translation>Entities of block definitions on layer “%1” instead of layer 0: %2.</translation>
    </message>
    <message>
        <source>有一个图层没有名称。</source>
        <translation>There is a layer without a name.</translation>
    </message>
    <message>
        <source>图层“%1”上没有对象。</source>
        <translation>The layer “%1” holds no entities.</translation>
    </message>
    <message>
        <source>图层“%1”与“%2”只有大小写不同。</source>
        <translation>The layers “%1” and “%2” differ in letter case only.</translation>
    </message>
    <message>
        <source>图层“%1”%2，其上有 %3 个对象。</source>
        <translation>The layer “%1” is %2; entities on it: %3.</translation>
    </message>
    <message>
        <source>已冻结</source>
        <translation>frozen</translation>
    </message>
    <message>
        <source>已关闭</source>
        <translation>off</translation>
    </message>
    <message>
        <source>图层名“%1”超出了图形版本的限制（%2 个字符以内的字母、数字、$、-、_）。</source>
        <translation>The layer name “%1” is beyond the limits of the drawing&apos;s version (up to %2 characters: letters, digits, $, -, _).</translation>
    </message>
    <message>
        <source>图形应有标准要求的图层。</source>
        <translation>A drawing has the layers that the standard requires.</translation>
    </message>
    <message>
        <source>图形不应有标准禁止的图层。</source>
        <translation>A drawing has no layers that the standard forbids.</translation>
    </message>
    <message>
        <source>图形只应有标准允许的图层。</source>
        <translation>A drawing has only layers that the standard allows.</translation>
    </message>
    <message>
        <source>图层名应由标准规定的字段组成。</source>
        <translation>Layer names are made of the standard&apos;s fields.</translation>
    </message>
    <message>
        <source>图层应用标准中的名称。</source>
        <translation>Layers go by their names in the standard.</translation>
    </message>
    <message>
        <source>图层的特性应与标准相同。</source>
        <translation>Layers have the properties that the standard gives them.</translation>
    </message>
    <message>
        <source>图层应有名称。</source>
        <translation>Layers have names.</translation>
    </message>
    <message>
        <source>图层名不应只有大小写不同。</source>
        <translation>Layer names differ in more than letter case.</translation>
    </message>
    <message>
        <source>标准之外的图层上应有对象。</source>
        <translation>Layers beyond the standard hold entities.</translation>
    </message>
    <message>
        <source>关闭或冻结的图层上不应有对象。</source>
        <translation>Layers that are off or frozen hold no entities.</translation>
    </message>
    <message>
        <source>图层名应在图形版本的限制之内。</source>
        <translation>Layer names stay within the limits of the drawing&apos;s version.</translation>
    </message>
    <message>
        <source>对象的颜色应随层。</source>
        <translation>Entities have color ByLayer.</translation>
    </message>
    <message>
        <source>对象的线型应随层。</source>
        <translation>Entities have linetype ByLayer.</translation>
    </message>
    <message>
        <source>对象的线宽应随层。</source>
        <translation>Entities have lineweight ByLayer.</translation>
    </message>
    <message>
        <source>对象的透明度应随层。</source>
        <translation>Entities have transparency ByLayer.</translation>
    </message>
    <message>
        <source>块以外的对象不应在图层 0 上。</source>
        <translation>No entity outside blocks is on layer 0.</translation>
    </message>
    <message>
        <source>块以外的对象不应在不打印的图层 Defpoints 上。</source>
        <translation>No entity outside blocks is on layer Defpoints, which is never plotted.</translation>
    </message>
    <message>
        <source>块定义中的对象应在图层 0 上。</source>
        <translation>Entities in block definitions are on layer 0.</translation>
    </message>
    <message>
        <source>layertool: %1
用 layertool help 查看用法。
</source>
        <translation>layertool: %1
See layertool help.
</translation>
    </message>
    <message>
        <source>%1 应为正整数，不是“%2”。</source>
        <translation>%1 must be a positive whole number, not “%2”.</translation>
    </message>
    <message>
        <source>%1 应为 %2 之一，不是“%3”。</source>
        <translation>%1 must be one of %2, not “%3”.</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>--%1 给出了不止一次。</source>
        <translation>--%1 was given more than once.</translation>
    </message>
    <message>
        <source>%1 之后应为 %2 之一。</source>
        <translation>%1 must be followed by one of %2.</translation>
    </message>
    <message>
        <source>%1 没有名为“%2”的选项。</source>
        <translation>%1 has no option named “%2”.</translation>
    </message>
    <message>
        <source>没有名为“%1”的命令。</source>
        <translation>There is no command named “%1”.</translation>
    </message>
    <message>
        <source>没有名为“%1”的命令；是不是 %2？</source>
        <translation>There is no command named “%1”; did you mean %2?</translation>
    </message>
    <message>
        <source>处理它用时超过了 %1 秒，已放弃。</source>
        <translation>It took more than %1 seconds and was given up.</translation>
    </message>
    <message>
        <source>处理它的进程意外结束。</source>
        <translation>The process that worked on it ended unexpectedly.</translation>
    </message>
    <message>
        <source>不能启动处理它的进程：%1。</source>
        <translation>The process to work on it cannot be started: %1.</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 分 %2 秒</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>，每秒 %1 个，还需 %2</source>
        <translation>, %1 per second, %2 left</translation>
    </message>
    <message>
        <source>，失败 %1</source>
        <translation>, %1 failed</translation>
    </message>
    <message>
        <source>无法读取 --%1 所指的文件“%2”。</source>
        <translation>Cannot read the file “%2” given with --%1.</translation>
    </message>
    <message>
        <source>输出文件夹“%1”正被另一次运行使用：请等它结束，或用 --wait 等待。</source>
        <translation>The output folder “%1” is in use by another run: let it end, or wait for it with --wait.</translation>
    </message>
    <message>
        <source>无法在输出文件夹“%1”中写日志。</source>
        <translation>Cannot write the journal in the output folder “%1”.</translation>
    </message>
    <message>
        <source>无法读取图形列表“%1”：%2。</source>
        <translation>Cannot read the list of drawings “%1”: %2.</translation>
    </message>
    <message>
        <source>文件夹“%1”中没有 DXF 图形。</source>
        <translation>The folder “%1” holds no DXF drawings.</translation>
    </message>
    <message>
        <source>没有给出图形。</source>
        <translation>No drawings were given.</translation>
    </message>
    <message>
        <source>要给出两个图形，或两个文件夹。</source>
        <translation>Give two drawings, or two folders.</translation>
    </message>
    <message>
        <source>“%1”与“%2”应同为图形或同为文件夹。</source>
        <translation>“%1” and “%2” must both be drawings or both be folders.</translation>
    </message>
    <message>
        <source>“%1”与“%2”中没有 DXF 图形。</source>
        <translation>“%1” and “%2” hold no DXF drawings.</translation>
    </message>
    <message>
        <source>图形“%1”给出了不止一次，只处理一次。</source>
        <translation>The drawing “%1” was given more than once; it is worked on once.</translation>
    </message>
    <message>
        <source>输出“%1”会覆盖一个原文件：请换一个输出文件夹。</source>
        <translation>The output “%1” would take the place of an original: choose another output folder.</translation>
    </message>
    <message>
        <source>--shard 应为 K/N，1 ≤ K ≤ N，不是“%1”。</source>
        <translation>--shard must be K/N with 1 ≤ K ≤ N, not “%1”.</translation>
    </message>
    <message>
        <source>无法读取日志“%1”：%2。</source>
        <translation>Cannot read the journal “%1”: %2.</translation>
    </message>
    <message>
        <source>无法写入日志“%1”：%2。</source>
        <translation>Cannot write the journal “%1”: %2.</translation>
    </message>
    <message>
        <source>图形</source>
        <translation>Drawings</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>其中早已完成</source>
        <translation>of these done earlier</translation>
    </message>
    <message>
        <source>有改动</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>有发现</source>
        <translation>With findings</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>因中断未处理</source>
        <translation>Not reached</translation>
    </message>
    <message>
        <source>无法写入报告“%1”：%2。</source>
        <translation>Cannot write the report “%1”: %2.</translation>
    </message>
    <message>
        <source>无法写入“%1”：%2。</source>
        <translation>Cannot write “%1”: %2.</translation>
    </message>
    <message>
        <source>--out 与 --in-place 只能给出一个。</source>
        <translation>Give --out or --in-place, not both.</translation>
    </message>
    <message>
        <source>改动写到哪里？用 --out 给出输出文件夹，或用 --in-place 写回，或用 --dry-run 只看。</source>
        <translation>Where are changes to go? Give an output folder with --out, write back with --in-place, or only look with --dry-run.</translation>
    </message>
    <message>
        <source>--backup 只与 --in-place 一起使用。</source>
        <translation>--backup goes with --in-place only.</translation>
    </message>
    <message>
        <source>图形“%1”失败：%2</source>
        <translation>The drawing “%1” failed: %2</translation>
    </message>
    <message>
        <source>已中断：写好的图形都是完整的，再次运行会接着做。</source>
        <translation>Interrupted: the drawings written are whole, and another run will go on from here.</translation>
    </message>
    <message>
        <source>要给出一个输出文件夹。</source>
        <translation>Give one output folder.</translation>
    </message>
    <message>
        <source>无法写入文件“%1”：%2。</source>
        <translation>Cannot write the file “%1”: %2.</translation>
    </message>
    <message>
        <source>无法把原图形留为“%1”，图形没有改动。</source>
        <translation>Cannot keep the original as “%1”; the drawing was not changed.</translation>
    </message>
    <message>
        <source>图形在处理期间被改动，请重做。</source>
        <translation>The drawing was changed while it was worked on; run again.</translation>
    </message>
    <message>
        <source>表格第 %1 行的引号没有结束。</source>
        <translation>A quote in line %1 of the table is never closed.</translation>
    </message>
    <message>
        <source>无法读取表格“%1”：%2。</source>
        <translation>Cannot read the table “%1”: %2.</translation>
    </message>
    <message>
        <source>失败：%1</source>
        <translation>Failed: %1</translation>
    </message>
    <message>
        <source>注意：%1</source>
        <translation>Note: %1</translation>
    </message>
    <message>
        <source>[选项...]</source>
        <translation>[OPTION...]</translation>
    </message>
    <message>
        <source>甲 乙</source>
        <translation>A B</translation>
    </message>
    <message>
        <source>图形或文件夹...</source>
        <translation>DRAWING-OR-FOLDER...</translation>
    </message>
    <message>
        <source>完成且没有发现时返回 0；有发现、有差别或有图形失败时返回 1；用法、标准或表格有误时返回 2；中断时返回 128 加信号的编号。</source>
        <translation>Exits 0 when all is done and nothing was found; 1 when something was found, differs, or a drawing failed; 2 when the command line, a standard or a table makes no sense; 128 plus the signal&apos;s number when interrupted.</translation>
    </message>
    <message>
        <source>用法：%1</source>
        <translation>Usage: %1</translation>
    </message>
    <message>
        <source>layertool 命令 [选项...] 图形或文件夹...</source>
        <translation>layertool COMMAND [OPTION...] DRAWING-OR-FOLDER...</translation>
    </message>
    <message>
        <source>处理一个或许多 DXF 图形的图层，不需要窗口。</source>
        <translation>Works on the layers of one DXF drawing or of many, without a window.</translation>
    </message>
    <message>
        <source>命令：</source>
        <translation>Commands:</translation>
    </message>
    <message>
        <source>选项：</source>
        <translation>Options:</translation>
    </message>
    <message>
        <source>显示用法，或一个命令的用法。</source>
        <translation>Shows help, or the help of one command.</translation>
    </message>
    <message>
        <source>图层名，不分大小写；可多次给出。</source>
        <translation>A layer name, in any letter case; may be given several times.</translation>
    </message>
    <message>
        <source>图层名的通配模式：* 任意一段，? 任意一个字符，# 数字，@ 字母，[...] 其中之一，开头的 ~ 表示不匹配，逗号隔开几个模式；可多次给出。</source>
        <translation>A wildcard pattern for layer names: * any run, ? any character, # a digit, @ a letter, [...] one of these, a leading ~ for “not”, commas between patterns; may be given several times.</translation>
    </message>
    <message>
        <source>与整个图层名相配的正则表达式，不分大小写；可多次给出。</source>
        <translation>A regular expression that fits whole layer names, in any letter case; may be given several times.</translation>
    </message>
    <message>
        <source>“%1”不是正则表达式：%2。</source>
        <translation>“%1” is not a regular expression: %2.</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>关</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>冻结</source>
        <translation>Frozen</translation>
    </message>
    <message>
        <source>锁定</source>
        <translation>Locked</translation>
    </message>
    <message>
        <source>打印</source>
        <translation>Plotted</translation>
    </message>
    <message>
        <source>新视口冻结</source>
        <translation>Frozen in new viewports</translation>
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
        <translation>Plot style</translation>
    </message>
    <message>
        <source>说明</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>从文件读入图形的路径，每行一个；空行和以 # 开头的行不算，“-”为标准输入。</source>
        <translation>Reads the drawings&apos; paths from a file, one a line; blank lines and lines that begin with # do not count, and “-” is standard input.</translation>
    </message>
    <message>
        <source>输出的相对路径从哪个文件夹算起；不给时为当前文件夹。</source>
        <translation>The folder from which outputs&apos; relative paths count; the current folder otherwise.</translation>
    </message>
    <message>
        <source>结果的格式；不给时为 text。</source>
        <translation>The format of the results; text otherwise.</translation>
    </message>
    <message>
        <source>结果写入哪个文件；不给时写到标准输出。</source>
        <translation>The file to write the results to; standard output otherwise.</translation>
    </message>
    <message>
        <source>把每个图形的结果写成一行 CSV 的报告文件。</source>
        <translation>Writes a CSV report, a row a drawing.</translation>
    </message>
    <message>
        <source>输出文件夹，其中的相对路径与输入相同，并记有日志；没有时新建。原图形从不改动。</source>
        <translation>The output folder: relative paths in it are those of the inputs, and a journal is kept. Made where missing. Originals are never changed.</translation>
    </message>
    <message>
        <source>也重做日志表明已经完成的图形。</source>
        <translation>Works again on drawings that the journal proves to be done.</translation>
    </message>
    <message>
        <source>输出文件夹正被另一次运行使用时等它结束。</source>
        <translation>Waits while another run is using the output folder.</translation>
    </message>
    <message>
        <source>同时运行的进程数；不给时为处理器的个数。</source>
        <translation>How many processes run at a time; as many as there are processors otherwise.</translation>
    </message>
    <message>
        <source>K/N：只处理全部图形 N 份中的第 K 份（K 从 1 起）。</source>
        <translation>K/N: works on part K of N of all drawings only (K counts from 1).</translation>
    </message>
    <message>
        <source>每个图形至多用多少秒；不给或为 0 时不限。</source>
        <translation>The seconds a drawing may take; no limit when 0 or not given.</translation>
    </message>
    <message>
        <source>每个进程至多用多少 MB 内存；不给或为 0 时不限。</source>
        <translation>The memory in MB a process may take; no limit when 0 or not given.</translation>
    </message>
    <message>
        <source>有图形失败时继续处理其余的（默认如此）。</source>
        <translation>Goes on with the others when a drawing fails (which is the default).</translation>
    </message>
    <message>
        <source>有图形失败时不再开始新的图形。</source>
        <translation>Begins no other drawing once one has failed.</translation>
    </message>
    <message>
        <source>图形文字的代码页，例如 GBK；不给时依图形所述。</source>
        <translation>The code page of the drawings&apos; text, GBK for example; what the drawing says otherwise.</translation>
    </message>
    <message>
        <source>不显示进度和总计。</source>
        <translation>Shows neither progress nor totals.</translation>
    </message>
    <message>
        <source>显示的语言；不给时依区域设置。</source>
        <translation>The language to show; that of the locale otherwise.</translation>
    </message>
    <message>
        <source>改动写回原图形（先写临时文件，完整后才替换）。</source>
        <translation>Writes changes back to the originals (through a temporary file that replaces them when whole).</translation>
    </message>
    <message>
        <source>与 --in-place 一起：替换之前把原图形留为同名的 .bak 文件。</source>
        <translation>With --in-place: keeps the original as a .bak file of the same name before it is replaced.</translation>
    </message>
    <message>
        <source>只显示会改动什么，不写任何图形。</source>
        <translation>Only shows what would change, and writes no drawing.</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>File</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>数</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>已有名为“%1”的图层；用 --merge 可合并进去。</source>
        <translation>There is already a layer named “%1”; --merge merges into it.</translation>
    </message>
    <message>
        <source>标准：图形（*.dxf，其中的图层）或规则文件（*.json）；可多次给出。</source>
        <translation>The standard: a drawing (*.dxf, the layers in it) or a rule file (*.json); may be given several times.</translation>
    </message>
    <message>
        <source>已知的发现，由 --format baseline 写成；它们不再报告。</source>
        <translation>Known findings, as written by --format baseline; they are not reported again.</translation>
    </message>
    <message>
        <source>缺少 --standard：按什么标准检查？</source>
        <translation>--standard is missing: by what standard?</translation>
    </message>
    <message>
        <source>规则</source>
        <translation>Rule</translation>
    </message>
    <message>
        <source>级别</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>图层</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>特性</source>
        <translation>Property</translation>
    </message>
    <message>
        <source>现值</source>
        <translation>Actual</translation>
    </message>
    <message>
        <source>应为</source>
        <translation>Expected</translation>
    </message>
    <message>
        <source>对象</source>
        <translation>Entities</translation>
    </message>
    <message>
        <source>行</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>“%1”没有改名为“%2”：%3</source>
        <translation>“%1” was not renamed to “%2”: %3</translation>
    </message>
    <message>
        <source>按图层标准检查图形；有发现时返回 1。</source>
        <translation>Holds drawings against a layer standard; exits 1 when something is found.</translation>
    </message>
    <message>
        <source>改正检查所发现而不必询问的：特性、标准中的名称、对象的随层、无对象的图层；报告其余的。</source>
        <translation>Mends what check finds and needs no question (properties, names of the standard, ByLayer, layers without entities); reports the rest.</translation>
    </message>
    <message>
        <source>输出 bash 或 zsh 的命令补全脚本。</source>
        <translation>Prints a completion script for bash or zsh.</translation>
    </message>
    <message>
        <source>差别</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>甲</source>
        <translation>A</translation>
    </message>
    <message>
        <source>乙</source>
        <translation>B</translation>
    </message>
    <message>
        <source>比较两个图形（或两个文件夹中同名图形）的图层和图层状态。</source>
        <translation>Compares the layers and layer states of two drawings, or of the drawings of one name in two folders.</translation>
    </message>
    <message>
        <source>当前</source>
        <translation>Current</translation>
    </message>
    <message>
        <source>模型</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>布局</source>
        <translation>Layouts</translation>
    </message>
    <message>
        <source>块中</source>
        <translation>In blocks</translation>
    </message>
    <message>
        <source>所在的块</source>
        <translation>Blocks</translation>
    </message>
    <message>
        <source>列出图层：特性、对象个数、在何处使用。</source>
        <translation>Lists layers: their properties, how many entities they hold, where they are used.</translation>
    </message>
    <message>
        <source>格式：%1。</source>
        <translation>Formats: %1.</translation>
    </message>
    <message>
        <source>用法</source>
        <translation>Synopsis</translation>
    </message>
    <message>
        <source>命令</source>
        <translation>Commands</translation>
    </message>
    <message>
        <source>处理图形的命令都有的选项</source>
        <translation>Options of all commands that work on drawings</translation>
    </message>
    <message>
        <source>改动图形的命令都有的选项</source>
        <translation>Options of all commands that change drawings</translation>
    </message>
    <message>
        <source>返回值</source>
        <translation>Exit status</translation>
    </message>
    <message>
        <source>输出手册页 layertool(1)（roff）。</source>
        <translation>Prints the manual page layertool(1), as roff.</translation>
    </message>
    <message>
        <source>合并到哪个图层；图形中没有时报为失败。</source>
        <translation>The layer to merge into; a drawing without it fails.</translation>
    </message>
    <message>
        <source>哪些图层？用 --layer、--pattern 或 --regex 给出。</source>
        <translation>Which layers? Give them with --layer, --pattern or --regex.</translation>
    </message>
    <message>
        <source>结果</source>
        <translation>Outcome</translation>
    </message>
    <message>
        <source>原因</source>
        <translation>Cause</translation>
    </message>
    <message>
        <source>图层 0 不能删除。</source>
        <translation>Layer 0 cannot be deleted.</translation>
    </message>
    <message>
        <source>当前图层不能删除。</source>
        <translation>The current layer cannot be deleted.</translation>
    </message>
    <message>
        <source>它来自外部参照。</source>
        <translation>It comes from an external reference.</translation>
    </message>
    <message>
        <source>没有名为“%1”的图层。</source>
        <translation>There is no layer named “%1”.</translation>
    </message>
    <message>
        <source>图层“%1”保留：%2</source>
        <translation>Layer “%1” is kept: %2</translation>
    </message>
    <message>
        <source>缺少 --into：合并到哪个图层？</source>
        <translation>--into is missing: into which layer?</translation>
    </message>
    <message>
        <source>没有名为“%1”的图层可以合并进去。</source>
        <translation>There is no layer named “%1” to merge into.</translation>
    </message>
    <message>
        <source>它就是合并的目标。</source>
        <translation>It is the target itself.</translation>
    </message>
    <message>
        <source>其中有 %1 个对象。</source>
        <translation>Entities on it: %1.</translation>
    </message>
    <message>
        <source>它属于图形格式本身。</source>
        <translation>It belongs to the drawing format itself.</translation>
    </message>
    <message>
        <source>把一些图层上的一切移到另一个图层，并删除它们。</source>
        <translation>Moves all that is on some layers to another one and deletes them.</translation>
    </message>
    <message>
        <source>删除图层连同其上的对象，块中的也在内。</source>
        <translation>Deletes layers with the entities on them, those in blocks too.</translation>
    </message>
    <message>
        <source>清除没有对象的图层；不给出图层时清除全部这样的图层。</source>
        <translation>Removes layers without entities; all such layers when none are given.</translation>
    </message>
    <message>
        <source>一个图层的旧名；与 --to 一起给出。</source>
        <translation>The present name of a layer; goes with --to.</translation>
    </message>
    <message>
        <source>它的新名。</source>
        <translation>Its new name.</translation>
    </message>
    <message>
        <source>CSV 表格，每行一个旧名和一个新名；第一行可以是表头。</source>
        <translation>A CSV table, an old and a new name a row; the first row may be a heading.</translation>
    </message>
    <message>
        <source>与整个旧名相配的正则表达式，不分大小写；与 --replace 一起给出。</source>
        <translation>A regular expression that fits whole old names, in any letter case; goes with --replace.</translation>
    </message>
    <message>
        <source>新名；\1、\2 等是正则表达式中括号所配的文字。</source>
        <translation>The new name; \1, \2 and so on stand for what the groups of the regular expression matched.</translation>
    </message>
    <message>
        <source>新名已被占用时合并到那个图层；不给时拒绝。</source>
        <translation>Merges into the layer that has the new name already; refused otherwise.</translation>
    </message>
    <message>
        <source>表格“%1”的第 %2 行应有旧名和新名。</source>
        <translation>Row %2 of the table “%1” needs an old and a new name.</translation>
    </message>
    <message>
        <source>表格“%1”的第 %2 行又给“%3”起名。</source>
        <translation>Row %2 of the table “%1” names “%3” a second time.</translation>
    </message>
    <message>
        <source>缺少 --replace：改成什么名？</source>
        <translation>--replace is missing: what is the new name?</translation>
    </message>
    <message>
        <source>要么用 --from 和 --to，要么用 --table，要么用 --regex 和 --replace。</source>
        <translation>Give either --from and --to, or --table, or --regex and --replace.</translation>
    </message>
    <message>
        <source>缺少 --to：改成什么名？</source>
        <translation>--to is missing: what is the new name?</translation>
    </message>
    <message>
        <source>旧图层名</source>
        <translation>Old name</translation>
    </message>
    <message>
        <source>新图层名</source>
        <translation>New name</translation>
    </message>
    <message>
        <source>给图层改名：一个名字、一张表，或正则表达式。</source>
        <translation>Renames layers: one name, a table, or a regular expression.</translation>
    </message>
    <message>
        <source>报告写入哪个文件；不给时写到标准输出。</source>
        <translation>The file to write the report to; standard output otherwise.</translation>
    </message>
    <message>
        <source>不显示总计。</source>
        <translation>Shows no totals.</translation>
    </message>
    <message>
        <source>由输出文件夹中的日志做出 CSV 报告，不处理图形。</source>
        <translation>Makes a CSV report from the journal in an output folder; works on no drawing.</translation>
    </message>
    <message>
        <source>输出文件夹</source>
        <translation>OUTPUT-FOLDER</translation>
    </message>
    <message>
        <source>级别：%1；规则文件的 rules 可以改为 off、note、warning 或 error。</source>
        <translation>Level: %1; “rules” in a rule file may change it to off, note, warning or error.</translation>
    </message>
    <message>
        <source>它不看规则文件的其他键。</source>
        <translation>It looks at no other key of the rule file.</translation>
    </message>
    <message>
        <source>它所看的规则文件的键：%1。</source>
        <translation>Keys of the rule file that it looks at: %1.</translation>
    </message>
    <message>
        <source>fix 会改正它能改正的。</source>
        <translation>fix mends what it can of it.</translation>
    </message>
    <message>
        <source>fix 不改动它，只报告。</source>
        <translation>fix leaves it as it is and reports it.</translation>
    </message>
    <message>
        <source>哪条规则？用 layertool rules 列出全部规则。</source>
        <translation>Which rule? layertool rules lists them all.</translation>
    </message>
    <message>
        <source>没有名为“%1”的规则；用 layertool rules 列出全部规则。</source>
        <translation>There is no rule named “%1”; layertool rules lists them all.</translation>
    </message>
    <message>
        <source>列出检查的规则：标识、级别、说明。</source>
        <translation>Lists the rules of check: identifier, level, sentence.</translation>
    </message>
    <message>
        <source>说明一条或几条规则。</source>
        <translation>Explains one rule or several.</translation>
    </message>
    <message>
        <source>规则...</source>
        <translation>RULE...</translation>
    </message>
    <message>
        <source>CSV 表格，如 list --format csv 所写；“new name”一列给出新名，空单元格不改动。</source>
        <translation>A CSV table as written by list --format csv; the column “new name” gives new names, empty cells change nothing.</translation>
    </message>
    <message>
        <source>表格“%1”没有“name”一列。</source>
        <translation>The table “%1” has no column “name”.</translation>
    </message>
    <message>
        <source>缺少 --table：按哪张表改动？</source>
        <translation>--table is missing: change layers by which table?</translation>
    </message>
    <message>
        <source>表格“%1”是空的。</source>
        <translation>The table “%1” is empty.</translation>
    </message>
    <message>
        <source>单元格</source>
        <translation>Cell</translation>
    </message>
    <message>
        <source>单元格 %1：%2</source>
        <translation>Cell %1: %2</translation>
    </message>
    <message>
        <source>“%1”不是可用的值。</source>
        <translation>“%1” is not a value that can be used.</translation>
    </message>
    <message>
        <source>按表格改动图层：特性、改名、新建。</source>
        <translation>Changes layers by a table: properties, new names, new layers.</translation>
    </message>
    <message>
        <source>layer：每个图层一个图形（默认）；field：图层名第一段相同的一个图形。</source>
        <translation>layer: a drawing for each layer (the default); field: a drawing for all layers whose names begin with the same field.</translation>
    </message>
    <message>
        <source>图层名各段之间的分隔符；不给时为“-”。</source>
        <translation>The separator between the fields of layer names; “-” otherwise.</translation>
    </message>
    <message>
        <source>split 写到 --out 所指的文件夹。</source>
        <translation>split writes to the folder given with --out.</translation>
    </message>
    <message>
        <source>--separator 不能为空。</source>
        <translation>--separator cannot be empty.</translation>
    </message>
    <message>
        <source>部分</source>
        <translation>Part</translation>
    </message>
    <message>
        <source>拆分图形：每个图层（或图层名的第一段）成为一个完整的图形。</source>
        <translation>Splits drawings: each layer (or each first field of layer names) becomes a whole drawing.</translation>
    </message>
    <message>
        <source>图层状态的名称，不分大小写；可多次给出。export 和 import 不给时取全部。</source>
        <translation>The name of a layer state, in any letter case; may be given several times. export and import take all of them otherwise.</translation>
    </message>
    <message>
        <source>import：从哪个图层状态文件（*.las）输入。</source>
        <translation>import: the layer state file (*.las) to read.</translation>
    </message>
    <message>
        <source>restore：关闭图层状态中没有的图层。</source>
        <translation>restore: turns off layers that are not in the layer state.</translation>
    </message>
    <message>
        <source>%1 要用 --state 给出图层状态。</source>
        <translation>%1 needs a layer state, given with --state.</translation>
    </message>
    <message>
        <source>%1 只能给出一个图层状态。</source>
        <translation>%1 takes one layer state only.</translation>
    </message>
    <message>
        <source>缺少 --file：从哪个文件输入？</source>
        <translation>--file is missing: import from which file?</translation>
    </message>
    <message>
        <source>export 写到 --out 所指的文件夹。</source>
        <translation>export writes to the folder given with --out.</translation>
    </message>
    <message>
        <source>图层状态</source>
        <translation>Layer state</translation>
    </message>
    <message>
        <source>恢复掩码</source>
        <translation>Restore mask</translation>
    </message>
    <message>
        <source>当前图层</source>
        <translation>Current layer</translation>
    </message>
    <message>
        <source>与图形相同</source>
        <translation>Same as drawing</translation>
    </message>
    <message>
        <source>没有名为“%1”的图层状态。</source>
        <translation>There is no layer state named “%1”.</translation>
    </message>
    <message>
        <source>图层状态“%1”中的图层“%2”图形没有，已略去。</source>
        <translation>Layers of the layer state “%1” that the drawing lacks were left out: “%2”.</translation>
    </message>
    <message>
        <source>”、“</source>
        <translation>”, “</translation>
    </message>
    <message>
        <source>图层状态：列出、输出、输入、恢复、保存、删除。</source>
        <translation>Layer states: list, export, import, restore, save, delete.</translation>
    </message>
    <message>
        <source>标准文件：目标图层，以及其中保存的图层映射。</source>
        <translation>The standards file: target layers, and the layer mappings saved in it.</translation>
    </message>
    <message>
        <source>也把图形中与目标图层同名的图层映射过去。</source>
        <translation>Also maps layers of the drawing to the target layers of the same name.</translation>
    </message>
    <message>
        <source>转换选项，可多次给出：对象的颜色、线型、透明度改为随层，也转换块中的对象，在输出图形旁写日志（.log）。</source>
        <translation>A translation option, may be given several times: entities take color, linetype or transparency from the layer, entities in blocks are translated too, a log (.log) is written beside the output.</translation>
    </message>
    <message>
        <source>缺少 --standard：按哪个标准文件转换？</source>
        <translation>--standard is missing: translate to which standards file?</translation>
    </message>
    <message>
        <source>转换的对象</source>
        <translation>Translated entities</translation>
    </message>
    <message>
        <source>留在块中</source>
        <translation>Left in blocks</translation>
    </message>
    <message>
        <source>旧图层已删除</source>
        <translation>Source layer removed</translation>
    </message>
    <message>
        <source>按标准文件转换图层：改名、合并、改特性、把对象移到目标图层。</source>
        <translation>Translates layers to a standards file: renames, merges, changes properties, moves entities to target layers.</translation>
    </message>
    <message>
        <source>字段“%1”没有名为“%2”的键。</source>
        <translation>The field “%1” has no key named “%2”.</translation>
    </message>
    <message>
        <source>字段“%1”只能有 values 或 pattern 之一。</source>
        <translation>The field “%1” can have “values” or “pattern”, not both.</translation>
    </message>
    <message>
        <source>naming 没有名为“%1”的键。</source>
        <translation>“naming” has no key named “%1”.</translation>
    </message>
    <message>
        <source>naming 的 case 应为 upper 或 any，不是“%1”。</source>
        <translation>The “case” of “naming” must be upper or any, not “%1”.</translation>
    </message>
    <message>
        <source>规则文件“%1”的 extends 又回到它自己。</source>
        <translation>The “extends” of the rule file “%1” leads back to the file itself.</translation>
    </message>
    <message>
        <source>“%1”的值不是它应有的种类。</source>
        <translation>The value of “%1” is not of the kind it should be.</translation>
    </message>
    <message>
        <source>处理它所需的内存超过了 %1 MB，已放弃。</source>
        <translation>It took more than %1 MB of memory and was given up.</translation>
    </message>
    <message>
        <source>处理它时内存不足，已放弃。</source>
        <translation>There was not enough memory for it; it was given up.</translation>
    </message>
    <message>
        <source>“%1”与另一个图形的输出同名：请分两次处理，或用 --root 给出它们共同的文件夹。</source>
        <translation>“%1” would have an output of the same name as another drawing: work on them in two runs, or give the folder they share with --root.</translation>
    </message>
    <message>
        <source>表格的“%1”一列不是图层的特性，没有使用。</source>
        <translation>The column “%1” of the table is no property of layers and was not used.</translation>
    </message>
    <message>
        <source>表格中没有这个图形的行。</source>
        <translation>The table has no rows for this drawing.</translation>
    </message>
    <message>
        <source>选项缺少它的值，或给了不该有的值：%1。</source>
        <translation>An option lacks its value, or has one that it must not have: %1.</translation>
    </message>
    <message>
        <source>图形的路径是空的。</source>
        <translation>The path of a drawing is empty.</translation>
    </message>
    <message>
        <source>没有名为“%1”的代码页。</source>
        <translation>There is no code page “%1”.</translation>
    </message>
    <message>
        <source>无法新建输出文件夹“%1”：%2。</source>
        <translation>Cannot make the output folder “%1”: %2.</translation>
    </message>
    <message>
        <source>文件或文件夹不存在</source>
        <translation>there is no such file or folder</translation>
    </message>
    <message>
        <source>没有权限</source>
        <translation>permission denied</translation>
    </message>
    <message>
        <source>那里只能读</source>
        <translation>that place can only be read</translation>
    </message>
    <message>
        <source>它是文件夹</source>
        <translation>it is a folder</translation>
    </message>
    <message>
        <source>路径中有一段不是文件夹</source>
        <translation>a part of the path is no folder</translation>
    </message>
    <message>
        <source>那里有一个同名的文件</source>
        <translation>there is a file of that name</translation>
    </message>
    <message>
        <source>磁盘已满</source>
        <translation>the disk is full</translation>
    </message>
    <message>
        <source>名称太长</source>
        <translation>the name is too long</translation>
    </message>
    <message>
        <source>所有命令都有的选项</source>
        <translation>Options of all commands</translation>
    </message>
    <message>
        <source>标准输出</source>
        <translation>standard output</translation>
    </message>
    <message>
        <source>读取它的程序已经结束</source>
        <translation>the program that read it has ended</translation>
    </message>
    <message>
        <source>图层数</source>
        <translation>Layers</translation>
    </message>
</context>
</TS>
