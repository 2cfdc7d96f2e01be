#include "fuzzing.h"
#include "standardsfile.h"

#include <QFile>

using namespace drawing;
using fuzz::require;

namespace {

bool isSame(const LayerMapping& a, const LayerMapping& b)
{
    return a.from == b.from && a.to.name == b.to.name && a.to.colorIndex == b.to.colorIndex &&
           a.to.trueColor == b.to.trueColor && a.to.lineweight == b.to.lineweight &&
           a.to.transparency == b.to.transparency;
}

} // namespace

/// Reads a standards file. Its contents are saved in a new file and in itself, and are read back
/// unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray file(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString own = fuzz::writeScratch("own.dws", file);
    const auto read = readStandard(own);
    if (!read) {
        require(read.error().text.contains(own), "a refusal names the file");
        return 0;
    }
    const QString fresh = fuzz::scratchFolder() + QStringLiteral("/fresh.dws");
    QFile::remove(fresh);
    for (const QString& path : {fresh, own}) {
        const auto saved = saveStandard(path, read->mappings, read->layers);
        if (!saved) {
            require(saved.error().text.contains(path), "a refusal names the file");
            require(
                path == fresh || fuzz::readFile(own) == file, "a refusal leaves the file alone");
            continue;
        }
        const auto again = readStandard(path);
        require(again.has_value(), "what is written can be read");
        require(!saved->isEmpty() || std::equal(again->mappings.begin(), again->mappings.end(),
                                         read->mappings.begin(), read->mappings.end(), isSame),
            "mappings are kept");
    }
    return 0;
}
