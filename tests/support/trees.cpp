#include "trees.h"
#include "hostextras.h"
#include "valuetree.h"

#include "vnstrings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QtTest>

namespace {

vnsi::VnJsonPtr fromJson(const QJsonArray& array)
{
    return host::fromJson(QJsonDocument(array).toJson(QJsonDocument::Compact).toStdString());
}

void mergeMember(const vnsi::VnJsonPtr& target, const QString& name, const QJsonValue& value)
{
    const std::string text = name.toStdString();
    const char* const key = text.c_str();
    switch (value.type()) {
    case QJsonValue::Bool:
        target->SetDataB(key, value.toBool());
        return;
    case QJsonValue::Double:
        // It can be read as either integer type.
        target->SetDataJ(key, fromJson(QJsonArray{value})(0));
        return;
    case QJsonValue::String:
        target->SetDataSW(key, vnsi::vnutQStringToOdString(value.toString()));
        return;
    case QJsonValue::Array:
        target->SetDataJ(key, fromJson(value.toArray()));
        return;
    case QJsonValue::Object:
        if (!target->GetDataJ(key))
            target->SetDataJ(key, vnsi::ElementValue::createObject(4));
        merge(target->GetDataJ(key), value.toObject());
        return;
    default:
        hostextras::removeKey(*target, key);
    }
}

} // namespace

vnsi::VnJsonPtr tree(const QString& json)
{
    vnsi::VnJsonPtr node = host::fromJson(json.toStdString());
    if (!node)
        QTest::qFail(qPrintable("no JSON: " + json), __FILE__, __LINE__);
    return node;
}

QString toText(const vnsi::VnJsonPtr& node)
{
    return QString::fromUtf8(hostextras::jsonOf(node).c_str());
}

QJsonObject toJsonObject(const vnsi::VnJsonPtr& node)
{
    return QJsonDocument::fromJson(toText(node).toUtf8()).object();
}

void merge(const vnsi::VnJsonPtr& target, const QJsonObject& json)
{
    for (auto member = json.begin(); member != json.end(); ++member)
        mergeMember(target, member.key(), member.value());
}

void merge(const vnsi::VnJsonPtr& target, const QString& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (!document.isObject())
        QTest::qFail(qPrintable("no JSON object: " + json), __FILE__, __LINE__);
    merge(target, document.object());
}

std::vector<vnsi::VnJsonPtr> containersIn(const vnsi::VnJsonPtr& node)
{
    std::vector<vnsi::VnJsonPtr> all;
    QSet<vnsi::IElementValueBase*> known; // A node may be in several places.
    const auto add = [&](const vnsi::VnJsonPtr& each) {
        if (each && !known.contains(each.get())) {
            known.insert(each.get());
            all.push_back(each);
        }
    };
    add(node);
    // The list grows meanwhile. NOLINTNEXTLINE(modernize-loop-convert)
    for (std::size_t at = 0; at < all.size(); ++at) {
        const vnsi::VnJsonPtr each = all[at];
        for (int i = 0, count = each.ArrayCount(); i < count; ++i)
            add(each(i));
        for (const QString& key : keysOf(each))
            add(each->GetDataJ(key.toUtf8().constData()));
    }
    return all;
}

QStringList keysOf(const vnsi::VnJsonPtr& node)
{
    return host::isObject(node) ? toJsonObject(node).keys() : QStringList();
}
