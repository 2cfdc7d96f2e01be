#include "treechanges.h"
#include "hostextras.h"
#include "valuetree.h"

#include "dialogsamples.h"
#include "fuzzing.h"
#include "trees.h"
#include "vnstrings.h"

#include <QSet>

using namespace vnsi;

namespace fuzz {

namespace {

constexpr std::size_t kLongestText = 16;

/// All keys in the trees of all dialogs.
const std::vector<std::string>& knownKeys()
{
    static const std::vector<std::string> keys = [] {
        QSet<QString> all;
        for (const DialogSample& sample : dialogSamples()) {
            for (const VnJsonPtr& node : containersIn(tree(sample.tree)))
                for (const QString& key : keysOf(node))
                    all.insert(key);
        }
        std::vector<std::string> sorted;
        for (const QString& key : all)
            sorted.push_back(key.toStdString());
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    }();
    return keys;
}

template <class T>
const T& pick(const std::vector<T>& choices, FuzzedDataProvider& bytes)
{
    return choices[bytes.ConsumeIntegralInRange<std::size_t>(0, choices.size() - 1)];
}

void setMember(
    IElementValueBase& node, const char* key, const VnJsonPtr& elsewhere, FuzzedDataProvider& bytes)
{
    switch (bytes.ConsumeIntegralInRange(0, 8)) {
    case 0:
        return node.SetDataB(key, bytes.ConsumeBool());
    case 1:
        return node.SetDataI(key, bytes.ConsumeIntegralInRange(-4, 300));
    case 2:
        return node.SetDataI(key, bytes.ConsumeIntegral<int>());
    case 3:
        return node.SetDataL(key, bytes.ConsumeIntegral<OdInt64>());
    case 4:
        return node.SetDataSW(key, vnutQStringToOdString(takeText(bytes, kLongestText)));
    case 5:
        return node.SetDataJ(key, ElementValue::createObject(1));
    case 6:
        return node.SetDataJ(key, hostextras::createArray(0));
    case 7:
        return node.SetDataJ(key, elsewhere);
    default:
        return hostextras::removeKey(node, key);
    }
}

void changeArray(const VnJsonPtr& list, const VnJsonPtr& elsewhere, FuzzedDataProvider& bytes)
{
    switch (bytes.ConsumeIntegralInRange(0, 6)) {
    case 0:
        return hostextras::removeItem(list, bytes.ConsumeIntegralInRange(-1, 6));
    case 1:
        return host::clear(*list);
    case 2:
        return hostextras::appendInt(list, bytes.ConsumeIntegral<int>());
    case 3:
        return hostextras::appendText(list, vnutQStringToOdString(takeText(bytes, kLongestText)));
    case 4:
        return hostextras::append(list, {});
    case 5:
        return hostextras::append(list, hostextras::copyOf(elsewhere));
    default:
        return host::insert(list, bytes.ConsumeIntegralInRange(-1, 6), elsewhere);
    }
}

} // namespace

void changeTree(const VnJsonPtr& root, FuzzedDataProvider& bytes, int mostChanges)
{
    for (int i = bytes.ConsumeIntegralInRange(0, mostChanges); i > 0; --i) {
        const std::vector<VnJsonPtr> nodes = containersIn(root);
        if (nodes.empty())
            return; // A dialog may get an empty tree, in which nothing can be changed.
        const VnJsonPtr& node = pick(nodes, bytes);
        if (host::isArray(node)) {
            changeArray(node, pick(nodes, bytes), bytes);
            continue;
        }
        const QStringList own = keysOf(node);
        const bool isOwn = !own.isEmpty() && bytes.ConsumeBool();
        const std::string key =
            isOwn ? own[bytes.ConsumeIntegralInRange(0, own.size() - 1)].toStdString()
                  : pick(knownKeys(), bytes);
        setMember(*node, key.c_str(), pick(nodes, bytes), bytes);
    }
}

} // namespace fuzz
