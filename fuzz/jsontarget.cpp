#include "fuzzing.h"
#include "hostextras.h"
#include "valuetree.h"

using namespace vnsi;

namespace {

void readEverything(const VnJsonPtr& node, const char* key)
{
    node->GetDataB(key);
    node->GetDataI(key);
    node->GetDataL(key);
    node->GetDataSW(key);
    fuzz::require(
        host::hasKey(node, key) || !node->GetDataJ(key), "only what is there can be read");
}

void change(const VnJsonPtr& tree, FuzzedDataProvider& bytes)
{
    const std::string key = bytes.ConsumeRandomLengthString(12);
    readEverything(tree, key.c_str());
    const VnJsonPtr element = (*tree)(bytes.ConsumeIntegralInRange<int>(-1, 4));
    const VnJsonPtr& target = element && bytes.ConsumeBool() ? element : tree;
    switch (bytes.ConsumeIntegralInRange(0, 8)) {
    case 0:
        target->SetDataI(key.c_str(), bytes.ConsumeIntegral<int>());
        break;
    case 1: {
        const std::string text = bytes.ConsumeRandomLengthString(12);
        target->SetDataS(key.c_str(), OdAnsiString(text.data(), static_cast<int>(text.size())));
        break;
    }
    case 2:
        // This must be refused when the tree would contain itself.
        target->SetDataJ(key.c_str(), tree);
        break;
    case 3:
        target->SetDataJ(key.c_str(), ElementValue::createObject(1));
        break;
    case 4:
        hostextras::removeKey(*target, key.c_str());
        break;
    case 5:
        hostextras::append(target, bytes.ConsumeBool() ? tree : hostextras::createArray(0));
        break;
    case 6:
        host::insert(target, bytes.ConsumeIntegral<int>(), ElementValue::createObject(0));
        break;
    case 7:
        hostextras::removeItem(target, bytes.ConsumeIntegral<int>());
        break;
    default:
        host::clear(*target);
    }
}

} // namespace

/// Converts JSON texts to value trees, changes them arbitrarily, and converts them back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider bytes(data, size);
    const int changes = bytes.ConsumeIntegralInRange(0, 12);
    std::string rest = bytes.ConsumeRandomLengthString(size);
    const VnJsonPtr tree = host::fromJson(rest);
    if (!tree)
        return 0;
    for (int i = 0; i < changes; ++i)
        change(tree, bytes);
    const std::string text = hostextras::jsonOf(tree);
    fuzz::require(hostextras::jsonOf(hostextras::copyOf(tree)) == text, "a copy is the same");
    const VnJsonPtr again = host::fromJson(text);
    fuzz::require(again && hostextras::jsonOf(again) == text, "what is written can be read");
    return 0;
}
