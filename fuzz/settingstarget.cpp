#include "fuzzing.h"
#include "hostextras.h"
#include "settings.h"
#include "valuetree.h"

#include <QDir>
#include <QFile>

using namespace vnsi;

namespace {

constexpr wchar_t kSection[] = L"table_dialog";

} // namespace

/// Reads, changes and writes the settings file of a section and reads it again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray content(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString path = fuzz::writeScratch("table_dialog.json", content);
    QFile::remove(path + QStringLiteral(".bad"));
    host::setSettingsFolder(fuzz::scratchFolder());
    const VnJsonPtr section = vn_user_config(kSection);
    fuzz::require(section && host::isObject(section), "there are settings whatever the file holds");
    const bool isGood = QFile::exists(path);
    fuzz::require(isGood || fuzz::readFile(path + QStringLiteral(".bad")) == content,
        "a file that cannot be read is kept");

    fuzz::require(host::saveSettings(), "settings can be written");
    fuzz::require(!isGood || fuzz::readFile(path) == content, "unchanged settings are left alone");
    section->SetDataI("LastWidth", 42);
    const std::string text = hostextras::jsonOf(section);
    host::setSettingsFolder(fuzz::scratchFolder());
    fuzz::require(hostextras::jsonOf(vn_user_config(kSection)) == text, "settings are kept");
    host::setSettingsFolder({});
    return 0;
}
