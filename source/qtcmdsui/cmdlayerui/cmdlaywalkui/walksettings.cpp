#include "walksettings.h"

#include "vnsettings.h"
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
    const VnJsonPtr section = vn_user_config(kSection);
    const int state = section->GetDataI(kRestores, kNeverChosen);
    if (state != kNeverChosen)
        settings.restores = state != Qt::Unchecked;
    const VnJsonPtr list = section->GetDataJ(kFilters);
    for (int i = 0, count = list.ArrayCount(); i < count; ++i) {
        const QString filter = vnutOdStringToQString(list(i)->GetDataSW(kItem));
        if (!filter.isEmpty())
            settings.filters.append(filter);
    }
    return settings;
}

void save(const Settings& settings)
{
    const VnJsonPtr section = vn_user_config(kSection);
    section->SetDataI(kRestores, settings.restores.value_or(false) ? Qt::Checked : Qt::Unchecked);
    const VnJsonPtr list = ElementValue::createArray(settings.filters.size());
    for (const QString& filter : settings.filters) {
        const VnJsonPtr entry = ElementValue::createObject(1);
        entry->SetDataSW(kItem, vnutQStringToOdString(filter));
        list->Append(entry);
    }
    section->SetDataJ(kFilters, list);
}

} // namespace vnsi::walksettings
