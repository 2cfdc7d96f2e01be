#include "layercontent.h"

#include "drawing.h"

namespace layertool {

namespace {

void count(const drawing::Entity& entity, bool inBlock, LayerContent& content)
{
    if (inBlock) {
        ++content.blocks;
        // The entities of a block are consecutive.
        if (content.inBlocks.empty() || content.inBlocks.back() != entity.block)
            content.inBlocks.push_back(entity.block);
    } else if (entity.paperSpace || entity.block >= 0) {
        ++content.layouts;
    } else {
        ++content.model;
    }
    for (size_t i = 0; entity.own && i < content.own.size(); ++i)
        content.own[i] += entity.own.testFlag(kOwnProperties[i]) ? 1 : 0;
}

} // namespace

LayerContents::LayerContents(const drawing::Drawing& drawing)
{
    m_all.resize(drawing.layers().size());
    const std::vector<drawing::Block>& blocks = drawing.blocks();
    for (const drawing::Entity& entity : drawing.entities()) {
        if (entity.removed || entity.subEntity || entity.layer == drawing::LayerId::None)
            continue;
        const auto at = static_cast<size_t>(entity.layer);
        if (at >= m_all.size()) // There are gaps in the ids where layers were deleted.
            m_all.resize(at + 1);
        const bool inBlock = entity.block >= 0 && !blocks[static_cast<size_t>(entity.block)].layout;
        count(entity, inBlock, m_all[at]);
    }
}

const LayerContent& LayerContents::of(drawing::LayerId layer) const
{
    static const LayerContent none;
    const auto at = static_cast<size_t>(layer);
    return at < m_all.size() ? m_all[at] : none;
}

} // namespace layertool
