#include "options.h"

#include <QCommandLineParser>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <cstdio>

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("layertrans", text);
}

tl::unexpected<EarlyExit> badUsage(const QString& text)
{
    return tl::unexpected(
        EarlyExit{BadUsage, tr("layertrans: %1\n用 --help 查看用法。\n").arg(text)});
}

struct TranslationRow
{
    const char* name;
    bool drawing::TranslationOptions::*option;
    const char* text;
};

constexpr TranslationRow kTranslationRows[] = {
    {"color-bylayer", &drawing::TranslationOptions::colorByLayer, "强制对象颜色为 ByLayer"},
    {"linetype-bylayer", &drawing::TranslationOptions::linetypeByLayer, "强制对象线型为 ByLayer"},
    {"transparency-bylayer", &drawing::TranslationOptions::transparencyByLayer,
        "强制对象透明度为 ByLayer"},
    {"blocks", &drawing::TranslationOptions::inBlocks, "也转换块中的对象"},
    {"log", &drawing::TranslationOptions::writeLog, "在输出图形旁写转换日志（.log）"},
};

QString translationHelp()
{
    QStringList rows;
    for (const TranslationRow& row : kTranslationRows)
        rows += QStringLiteral("%1（%2）").arg(QLatin1String(row.name), tr(row.text));
    return tr("转换选项，可多次给出：%1。").arg(rows.join(tr("、")));
}

/// The command line as it is described to the user and read.
class CommandLine
{
public:
    CommandLine();
    tl::expected<Options, EarlyExit> parse(const QStringList& arguments);

private:
    tl::expected<void, EarlyExit> readTranslation(Options& options) const;
    tl::expected<void, EarlyExit> readNumbers(Options& options) const;
    tl::expected<void, EarlyExit> readDrawings(Options& options) const;
    tl::expected<void, EarlyExit> readMerge(Options& options) const;
    tl::expected<void, EarlyExit> check(const Options& options) const;

    QCommandLineParser m_parser;
    QCommandLineOption m_help{{"h", "help"}, tr("显示用法并退出。")};
    QCommandLineOption m_version{{"v", "version"}, tr("显示版本并退出。")};
    QCommandLineOption m_standard{
        "standard", tr("标准文件：目标图层，以及其中保存的图层映射。"), tr("文件")};
    QCommandLineOption m_mapSame{"map-same", tr("也把图形中与目标图层同名的图层映射过去。")};
    QCommandLineOption m_option{"option", translationHelp(), tr("名称")};
    QCommandLineOption m_out{"out", tr("输出文件夹；没有时新建。原图形从不改动。"), tr("文件夹")};
    QCommandLineOption m_list{
        "list", tr("从文件读入图形的路径，每行一个；“-”为标准输入。"), tr("文件")};
    QCommandLineOption m_shard{
        "shard", tr("只处理全部图形 N 份中的第 K 份（K 从 1 起）。"), tr("K/N")};
    QCommandLineOption m_jobs{"jobs", tr("同时运行的进程数；不给时为处理器的个数。"), tr("个数")};
    QCommandLineOption m_force{"force", tr("重新转换输出文件夹中已有的图形；不给时跳过它们。")};
    QCommandLineOption m_report{"report", tr("把每个图形的结果写成 CSV 文件。"), tr("文件")};
    QCommandLineOption m_merge{
        "merge-reports", tr("只把其后的几个 CSV 报告合并为一个，不转换图形。"), tr("文件")};
    QCommandLineOption m_worker{"worker"};
};

CommandLine::CommandLine()
{
    m_worker.setFlags(QCommandLineOption::HiddenFromHelp);
    m_parser.setApplicationDescription(
        tr("按图层标准转换许多图形。每个图形的结果占一行，最后是总表；\n"
           "全部完成时返回 0，有图形失败时返回 1，用法有误时返回 2。"));
    m_parser.addOptions({m_help, m_version, m_standard, m_mapSame, m_option, m_out, m_list, m_shard,
        m_jobs, m_force, m_report, m_merge, m_worker});
    m_parser.addPositionalArgument(tr("图形"), tr("要转换的 DXF 图形。"), tr("[图形...]"));
}

tl::expected<void, EarlyExit> CommandLine::readTranslation(Options& options) const
{
    options.translationNames = m_parser.values(m_option);
    for (const QString& name : options.translationNames) {
        const auto* const row =
            std::find_if(std::begin(kTranslationRows), std::end(kTranslationRows),
                [&name](const TranslationRow& known) { return name == QLatin1String(known.name); });
        if (row == std::end(kTranslationRows))
            return badUsage(tr("没有名为“%1”的转换选项。").arg(name));
        options.translation.*row->option = true;
    }
    return {};
}

tl::expected<void, EarlyExit> CommandLine::readNumbers(Options& options) const
{
    options.jobs = std::max(1, QThread::idealThreadCount());
    if (m_parser.isSet(m_jobs)) {
        bool isNumber = false;
        options.jobs = m_parser.value(m_jobs).toInt(&isNumber);
        if (!isNumber || options.jobs < 1)
            return badUsage(tr("--jobs 应为正整数，不是“%1”。").arg(m_parser.value(m_jobs)));
    }
    if (!m_parser.isSet(m_shard))
        return {};
    const QStringList parts = m_parser.value(m_shard).split(QLatin1Char('/'));
    options.shard = parts.value(0).toInt();
    options.shardCount = parts.value(1).toInt();
    if (parts.size() != 2 || options.shard < 1 || options.shard > options.shardCount)
        return badUsage(tr("--shard 应为 K/N，1 ≤ K ≤ N，不是“%1”。").arg(m_parser.value(m_shard)));
    return {};
}

tl::expected<void, EarlyExit> CommandLine::readDrawings(Options& options) const
{
    options.drawings = m_parser.positionalArguments();
    for (const QString& name : m_parser.values(m_list)) {
        QFile list(name);
        const bool isOpen = name == QLatin1String("-") ? list.open(stdin, QIODevice::ReadOnly)
                                                       : list.open(QIODevice::ReadOnly);
        if (!isOpen)
            return badUsage(tr("无法读取图形列表“%1”：%2。").arg(name, list.errorString()));
        for (QByteArray line : list.readAll().split('\n')) {
            if (line.endsWith('\r'))
                line.chop(1);
            if (!line.isEmpty())
                options.drawings += QFile::decodeName(line);
        }
    }
    return {};
}

tl::expected<void, EarlyExit> CommandLine::readMerge(Options& options) const
{
    options.mergedReport = m_parser.value(m_merge);
    options.reports = m_parser.positionalArguments();
    if (options.reports.isEmpty())
        return badUsage(tr("没有给出要合并的报告。"));
    return {};
}

tl::expected<void, EarlyExit> CommandLine::check(const Options& options) const
{
    if (options.standard.isEmpty())
        return badUsage(tr("缺少 --standard：按哪个标准文件转换？"));
    if (options.isWorker)
        return {};
    if (options.out.isEmpty())
        return badUsage(tr("缺少 --out：转换后的图形放在哪个文件夹？"));
    if (options.drawings.isEmpty())
        return badUsage(tr("没有给出图形。"));
    return {};
}

tl::expected<Options, EarlyExit> CommandLine::parse(const QStringList& arguments)
{
    if (!m_parser.parse(arguments))
        return badUsage(m_parser.errorText());
    if (m_parser.isSet(m_help))
        return tl::unexpected(EarlyExit{Fine, m_parser.helpText()});
    if (m_parser.isSet(m_version))
        return tl::unexpected(EarlyExit{
            Fine, QStringLiteral("layertrans %1\n").arg(QCoreApplication::applicationVersion())});
    Options options;
    if (m_parser.isSet(m_merge))
        return readMerge(options).map([&options] { return options; });
    options.standard = m_parser.value(m_standard);
    options.mapSame = m_parser.isSet(m_mapSame);
    options.out = m_parser.value(m_out);
    options.force = m_parser.isSet(m_force);
    options.report = m_parser.value(m_report);
    options.isWorker = m_parser.isSet(m_worker);
    return readTranslation(options)
        .and_then([&] { return readNumbers(options); })
        .and_then([&] { return readDrawings(options); })
        .and_then([&] { return check(options); })
        .map([&options] { return options; });
}

} // namespace

tl::expected<Options, EarlyExit> parseOptions(const QStringList& arguments)
{
    return CommandLine().parse(arguments);
}
