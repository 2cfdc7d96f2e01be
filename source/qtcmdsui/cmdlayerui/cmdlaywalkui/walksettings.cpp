#include "walksettings.h"

#include "hostapi/hostcalls.h"
#include "hostapi/hosttree.h"
#include "vnstrings.h"

namespace vnsi::walksettings {

namespace {

constexpr wchar_t kSection[] = L"table_dialog";
constexpr char kRestores[] = "RecoverBoxChecked";
constexpr char kFilters[] = "FilterComboBoxList";
constexpr char kItem[] = "Item";
constexpr int kNeverChosen = -1;

} // namespace

Settings load()
{
    Settings settings;
    const VnJsonPtr section = hostapi::userConfig(kSection);
    const int state = section->GetDataI(kRestores, kNeverChosen);
    if (state != kNeverChosen)
        settings.restores = state != Qt::Unchecked;
    const VnJsonPtr list = section->GetDataJ(kFilters);
    for (int i = 0, count = hostapi::count(list); i < count; ++i) {
        const VnJsonPtr entry = hostapi::item(list, i);
        const QString filter = entry ? vnutOdStringToQString(entry->GetDataSW(kItem)) : QString();
        if (!filter.isEmpty())
            settings.filters.append(filter);
    }
    return settings;
}

void save(const Settings& settings)
{
    const VnJsonPtr section = hostapi::userConfig(kSection);
    section->SetDataI(kRestores, settings.restores.value_or(false) ? Qt::Checked : Qt::Unchecked);
    const VnJsonPtr list = hostapi::makeArray(settings.filters.size());
    for (const QString& filter : settings.filters) {
        const VnJsonPtr entry = hostapi::makeObject();
        entry->SetDataSW(kItem, vnutQStringToOdString(filter));
        hostapi::append(list, entry);
    }
    section->SetDataJ(kFilters, list);
}

} // namespace vnsi::walksettings
