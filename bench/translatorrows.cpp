#include "RxObjectImpl.h"
#include "hostextras.h"
#include "hostfrontend.h"
#include "rows.h"
#include "serveddialog.h"
#include "stopwatch.h"
#include "translatorkeys.h"

#include <QPushButton>
#include <QTableWidget>

namespace bench {

namespace {

using namespace vnsi;

constexpr int kFew = 1000;
constexpr int kMany = 10000;

/// Layers or targets with the same names, in another order and with other letter case.
VnJsonPtr makeRecords(int count, const char* nameKey, const wchar_t* prefix, int step)
{
    VnJsonPtr records = hostextras::createArray(count);
    for (int i = 0; i < count; ++i) {
        const VnJsonPtr record = ElementValue::createObject(2);
        record->SetDataSW(nameKey, (prefix + std::to_wstring(i * step % count)).c_str());
        hostextras::append(records, record);
    }
    return records;
}

/// Answers the request to load with a given number of targets.
class TargetLoader : public VnUiDialogInvoker
{
public:
    explicit TargetLoader(int count) : m_count(count) {}
    void invoke(VnJsonPtr tree) override
    {
        if (tree->GetDataI(transkey::kRequestCode, -1) == kTranslatorLoad)
            tree->SetDataJ(
                transkey::kLoadedTargets, makeRecords(m_count, transkey::kToName, L"layer-", 7));
    }

private:
    int m_count;
};

/// While it lives, answers every dialog that the host is asked for in the user's place: with OK and
/// a file to open, whichever.
class FileChooser : public host::HostFrontEnd
{
public:
    FileChooser() : m_previous(host::setHostFrontEnd(this)) {}
    ~FileChooser() override { host::setHostFrontEnd(m_previous); }
    FileChooser(const FileChooser&) = delete;
    FileChooser& operator=(const FileChooser&) = delete;

    int showDialog(const OdString&, const OdString&, const VnJsonPtr& tree, const OdRxObjectPtr&,
        QWidget*) override
    {
        const VnJsonPtr paths = hostextras::createArray(1);
        hostextras::appendText(paths, L"standard.dxf");
        tree->SetDataJ("filePaths", paths);
        return 1;
    }

private:
    host::HostFrontEnd* m_previous;
};

VnJsonPtr makeTree(int count)
{
    VnJsonPtr tree = ElementValue::createObject(4);
    tree->SetDataJ(transkey::kTheme, makeRecords(count, transkey::kFromName, L"LAYER-", 1));
    return tree;
}

/// The translator with a given number of layers, each of which has a target of the same name.
struct Translator
{
    explicit Translator(int count)
        : dialog(L"Dialog/CmdLaytrans", makeTree(count),
              OdRxObjectImpl<TargetLoader, VnUiDialogInvoker>::createObject(count))
    {
        if (!dialog.isMade())
            return;
        const FileChooser chooser;
        dialog.find<QPushButton>("loadButton")->click();
        mapSame = dialog.find<QPushButton>("mapSameButton");
    }

    /// Maps everything possible. Afterwards the mappings are removed, which is not measured.
    double map()
    {
        const double seconds = timed(Clock::Processor, [this] { mapSame->click(); });
        mapped = dialog.find<QTableWidget>("mapTable")->rowCount();
        dialog.invoke("slot_MenuMapListAllDelete");
        return seconds;
    }

    ServedDialog dialog;
    QPushButton* mapSame = nullptr; ///< Null when there is no such dialog.
    int mapped = 0;
};

tl::expected<Sides, QString> mapSameGrowth()
{
    const auto many = std::make_shared<Translator>(kMany);
    const auto few = std::make_shared<Translator>(kFew);
    if (!many->mapSame || !few->mapSame)
        return tl::make_unexpected(QStringLiteral("the module made no translator"));
    many->map();
    if (many->mapped != kMany)
        return tl::make_unexpected(QStringLiteral("the translator did not map every layer"));
    return Sides{[many] { return many->map(); }, [few] { return few->map(); },
        QStringLiteral("1,000 x 1,000")};
}

} // namespace

std::vector<Row> translatorRows()
{
    return {{"laytrans/map_same", QStringLiteral("map-same of the translator, 10,000 x 10,000"),
        Measure::Processor, {Budget::Kind::AtMostTimes, 15}, 15, 5, mapSameGrowth}};
}

} // namespace bench
