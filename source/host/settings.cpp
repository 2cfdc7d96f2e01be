#include "settings.h"

#include "hostextras.h"
#include "hostlog.h"
#include "valuetree.h"
#include "vnstrings.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include <map>
#include <mutex>

namespace host {

namespace {

constexpr int kLongestFileName = 120;
constexpr char kNoContent[] = "{}";

struct Section
{
    vnsi::VnJsonPtr tree;
    std::string saved;
    QString path;
    bool mayBeWritten = true;
};

struct Settings
{
    std::mutex mutex;
    QString folder;
    std::map<OdString, Section> sections;
};

Settings& settings()
{
    static auto* const all = new Settings;
    return *all;
}

/// A unique file name for any section name. No name leads out of the folder.
QString fileNameOf(const OdString& section)
{
    const QByteArray utf8 = vnsi::vnutOdStringToQString(section).toUtf8();
    QByteArray name = utf8.toPercentEncoding(QByteArray(), QByteArrayLiteral("."));
    if (name.isEmpty() || name.size() > kLongestFileName)
        name = QByteArrayLiteral("~") +
               QCryptographicHash::hash(utf8, QCryptographicHash::Sha1).toHex();
    return QString::fromLatin1(name) + QStringLiteral(".json");
}

QString folderOf(const Settings& all)
{
    if (!all.folder.isEmpty())
        return all.folder;
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
}

/// Renames an unreadable file, so that it can be inspected and is not overwritten.
bool setAside(const QString& path)
{
    const QString bad = path + QStringLiteral(".bad");
    QFile::remove(bad);
    return QFile::rename(path, bad);
}

vnsi::VnJsonPtr readTree(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    vnsi::VnJsonPtr tree = fromJson(file.readAll().toStdString());
    return isObject(tree) ? tree : vnsi::VnJsonPtr();
}

Section readSection(const QString& path)
{
    Section section{vnsi::ElementValue::createObject(8), kNoContent, path, true};
    if (!QFile::exists(path))
        return section;
    if (const vnsi::VnJsonPtr tree = readTree(path)) {
        section.tree = tree;
        section.saved = hostextras::jsonOf(tree);
        return section;
    }
    section.mayBeWritten = setAside(path);
    qCWarning(hostLog) << "settings cannot be read:" << path;
    return section;
}

bool writeSection(Section& section)
{
    const std::string json = hostextras::jsonOf(section.tree);
    if (json == section.saved)
        return true;
    QSaveFile file(section.path);
    const bool isOpen = section.mayBeWritten && QFileInfo(section.path).dir().mkpath(".") &&
                        file.open(QIODevice::WriteOnly);
    if (!isOpen ||
        file.write(QByteArray::fromStdString(json)) != static_cast<qint64>(json.size()) ||
        !file.commit()) {
        qCWarning(hostLog) << "settings cannot be written:" << section.path;
        return false;
    }
    section.saved = json;
    return true;
}

bool writeAll(Settings& all)
{
    bool isFine = true;
    for (auto& [name, section] : all.sections)
        isFine = writeSection(section) && isFine;
    return isFine;
}

} // namespace

void setSettingsFolder(const QString& folder)
{
    Settings& all = settings();
    const std::lock_guard lock(all.mutex);
    writeAll(all);
    all.sections.clear();
    all.folder = folder;
}

bool saveSettings()
{
    Settings& all = settings();
    const std::lock_guard lock(all.mutex);
    return writeAll(all);
}

} // namespace host

vnsi::VnJsonPtr vnsi::vn_user_config(const OdString& section)
{
    host::Settings& all = host::settings();
    const std::lock_guard lock(all.mutex);
    const auto found = all.sections.find(section);
    if (found != all.sections.end())
        return found->second.tree;
    const QString path = QDir(host::folderOf(all)).filePath(host::fileNameOf(section));
    return all.sections.emplace(section, host::readSection(path)).first->second.tree;
}
