#include "layerchanges.h"
#include "benchtexts.h"
#include "hostextras.h"
#include "valuetree.h"

#include "drawing.h"
#include "layerrenaming.h"
#include "recordprovider.h"

#include <utility>

using drawing::Layer;
using drawing::LayerId;
using drawing::LayerProperties;
using layerrecords::Provider;
using vnsi::LayerRecord;
using vnsi::VnJsonPtr;

QStringList LayerChanges::apply(const VnJsonPtr& list)
{
    Records modified;
    for (const LayerRecord& record : vnsi::LayerRecordList(list)) {
        if (record.isModified())
            modified.push_back(record);
    }
    rename(modified);
    for (const LayerRecord& record : modified) {
        if (layerrecords::idOf(record.node()) != LayerId::None)
            setValues(record);
        else if (record.status() != vnsi::kLayerDelete)
            add(record);
    }
    setCurrent(modified);
    remove(list);
    for (const LayerRecord& record : modified) {
        if (const Layer* layer = m_drawing.layer(layerrecords::idOf(record.node())))
            Provider::full().refresh(record, *layer, layer->id == m_drawing.currentLayer());
    }
    return std::exchange(m_refusals, {});
}

void LayerChanges::rename(const Records& records)
{
    std::vector<drawing::LayerRename> renames;
    for (const LayerRecord& record : records) {
        const QString name = layerrecords::nameOf(record.node()).trimmed();
        const Layer* layer = m_drawing.layer(layerrecords::idOf(record.node()));
        if (layer && layer->properties.name != name)
            renames.push_back({layer->id, name});
    }
    for (const drawing::LayerRenamed& renamed : drawing::renameLayers(m_drawing, renames)) {
        if (renamed.outcome == drawing::LayerRenamed::Outcome::Refused)
            m_refusals += Texts::tr("图层“%1”没有重命名为“%2”：%3")
                              .arg(renamed.from, renamed.to, renamed.cause);
    }
}

/// Applies everything but the name.
void LayerChanges::setValues(const LayerRecord& record)
{
    const LayerId id = layerrecords::idOf(record.node());
    const Layer* layer = m_drawing.layer(id);
    if (!layer)
        return;
    LayerProperties wanted = Provider::full().read(record.node(), layer->properties);
    wanted.name = layer->properties.name;
    if (wanted != layer->properties && !m_drawing.setLayerProperties(id, wanted))
        setValuesOneByOne(record);
}

void LayerChanges::setValuesOneByOne(const LayerRecord& record)
{
    const LayerId id = layerrecords::idOf(record.node());
    const Provider& fields = Provider::full();
    for (int field = 0; field < fields.fieldCount(); ++field) {
        const LayerProperties before = m_drawing.layer(id)->properties;
        LayerProperties wanted = before;
        fields.readField(field, record.node(), wanted);
        wanted.name = before.name;
        if (wanted != before)
            note(m_drawing.setLayerProperties(id, wanted));
    }
}

/// Adds a layer. It is added even if some of its values are refused.
void LayerChanges::add(const LayerRecord& record)
{
    auto added = m_drawing.addLayer(Provider::full().read(record.node(), {}));
    if (!added) {
        LayerProperties plain;
        plain.name = layerrecords::nameOf(record.node());
        added = m_drawing.addLayer(plain);
    }
    if (!added) {
        m_refusals += added.error().text;
        return;
    }
    layerrecords::setId(record.node(), *added);
    setValues(record);
}

void LayerChanges::setCurrent(const Records& records)
{
    for (const LayerRecord& record : records) {
        const LayerId id = layerrecords::idOf(record.node());
        if (record.isCurrent() && id != LayerId::None)
            note(m_drawing.setCurrentLayer(id));
    }
}

void LayerChanges::remove(const VnJsonPtr& list)
{
    std::vector<VnJsonPtr> kept;
    for (const LayerRecord& record : vnsi::LayerRecordList(list)) {
        const LayerId id = layerrecords::idOf(record.node());
        const bool goes = record.asksFor(vnsi::kLayerDelete);
        if (goes && m_drawing.layer(id))
            note(m_drawing.removeLayer(id));
        if (!goes || m_drawing.layer(id))
            kept.push_back(record.node());
    }
    if (static_cast<int>(kept.size()) == list.ArrayCount())
        return;
    host::clear(*list);
    for (const VnJsonPtr& record : kept)
        hostextras::append(list, record);
}

bool LayerChanges::note(const drawing::Expected<void>& outcome)
{
    if (!outcome)
        m_refusals += outcome.error().text;
    return outcome.has_value();
}
