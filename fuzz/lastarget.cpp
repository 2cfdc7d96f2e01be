#include "file/textcodec.h"
#include "fuzzing.h"
#include "states/layerstatefile.h"

using namespace drawing;

/// Reads a layer state file. What was read can be written and is then read back unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString path = fuzz::writeScratch(
        "in.las", QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    isLayerStateFile(path);
    const TextCodec fallback("AC1018", "ANSI_936");
    const auto file = readLayerStateFile(path, fallback);
    if (!file) {
        fuzz::require(file.error().text.contains(path), "a refusal names the file");
        return 0;
    }
    const QString copy = fuzz::scratchFolder() + QStringLiteral("/out.las");
    fuzz::require(writeLayerStateFile(copy, file->states).has_value(), "states can be written");
    const auto again = readLayerStateFile(copy, fallback);
    fuzz::require(again.has_value(), "what is written can be read");
    fuzz::require(again->states == file->states, "states are kept");
    return 0;
}
