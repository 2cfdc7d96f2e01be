#include "hostextras.h"
#include "valuearray.h"
#include "valueobject.h"
#include "valuetree.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

#include "vnstrings.h"

namespace vnsi {

namespace {

/// The nesting limit of the JSON parser. Deeper containers are written as null.
constexpr int kDeepestJson = 1024;

VnJsonPtr emptyLike(const ValueNode& source)
{
    if (source.kind() == ValueNode::Kind::Array)
        return VnJsonPtr(new ValueArray(source.ArrayCount()));
    const auto& members = static_cast<const ValueObject&>(source).members();
    return ElementValue::createObject(static_cast<int>(members.size()));
}

/// A container and its copy, which still has to be filled.
using CopyStep = std::pair<const ValueNode*, ValueNode*>;

/// Copies one value. The copy of a container is empty at first and is added to `open`.
Value copied(const Value& value, std::vector<CopyStep>& open)
{
    const ValueNode* const node = readNode(value);
    if (!node)
        return value;
    const VnJsonPtr copy = emptyLike(*node);
    open.emplace_back(node, static_cast<ValueNode*>(copy.get()));
    return toValue(copy);
}

void fillCopy(const CopyStep& step, std::vector<CopyStep>& open)
{
    if (step.first->kind() == ValueNode::Kind::Array) {
        for (const Value& element : static_cast<const ValueArray*>(step.first)->elements())
            static_cast<ValueArray*>(step.second)->add(copied(element, open));
        return;
    }
    for (const ValueObject::Member& member : static_cast<const ValueObject*>(step.first)->members())
        if (member.key)
            static_cast<ValueObject*>(step.second)
                ->put(member.key->text, copied(member.value, open));
}

QJsonValue jsonOf(const Value& value, int depth);

QJsonValue jsonOf(const ValueNode& node, int depth)
{
    if (depth > kDeepestJson)
        return QJsonValue::Null;
    if (node.kind() == ValueNode::Kind::Array) {
        QJsonArray array;
        for (const Value& element : static_cast<const ValueArray&>(node).elements())
            array.append(jsonOf(element, depth + 1));
        return array;
    }
    QJsonObject object;
    for (const ValueObject::Member& member : static_cast<const ValueObject&>(node).members()) {
        if (member.key)
            object.insert(
                QString::fromStdString(member.key->text), jsonOf(member.value, depth + 1));
    }
    return object;
}

struct ScalarToJson
{
    int depth;

    QJsonValue operator()(std::monostate) const { return QJsonValue::Null; }
    QJsonValue operator()(bool value) const { return value; }
    QJsonValue operator()(OdInt32 value) const { return value; }
    QJsonValue operator()(OdInt64 value) const { return static_cast<qint64>(value); }
    QJsonValue operator()(JsonInteger number) const { return static_cast<qint64>(number.value); }
    QJsonValue operator()(double value) const { return value; }
    QJsonValue operator()(const OdString& value) const { return vnutOdStringToQString(value); }
    QJsonValue operator()(const Branch& value) const { return jsonOf(*value.node(), depth); }
};

QJsonValue jsonOf(const Value& value, int depth)
{
    return std::visit(ScalarToJson{depth}, value);
}

VnJsonPtr fromArray(const QJsonArray& array);
VnJsonPtr fromObject(const QJsonObject& object);

Value fromNumber(const QJsonValue& json)
{
    const QVariant number = json.toVariant();
    if (number.type() != QVariant::LongLong)
        return number.toDouble();
    return JsonInteger{number.toLongLong()};
}

Value fromJsonValue(const QJsonValue& json)
{
    switch (json.type()) {
    case QJsonValue::Bool:
        return json.toBool();
    case QJsonValue::Double:
        return fromNumber(json);
    case QJsonValue::String:
        return vnutQStringToOdString(json.toString());
    case QJsonValue::Array:
        return toValue(fromArray(json.toArray()));
    case QJsonValue::Object:
        return toValue(fromObject(json.toObject()));
    default:
        return {};
    }
}

// The recursion of the next two functions is bounded because the parser refuses texts that are
// nested deeper than kDeepestJson.
VnJsonPtr fromArray(const QJsonArray& array)
{
    VnJsonPtr node(new ValueArray(array.size()));
    for (const QJsonValue element : array)
        static_cast<ValueArray&>(*node).add(fromJsonValue(element));
    return node;
}

VnJsonPtr fromObject(const QJsonObject& object)
{
    VnJsonPtr node = ElementValue::createObject(object.size());
    for (auto member = object.begin(); member != object.end(); ++member)
        static_cast<ValueObject&>(*node).put(
            member.key().toStdString(), fromJsonValue(member.value()));
    return node;
}

} // namespace

VnJsonPtr ElementValue::createObject(int capacity)
{
    return VnJsonPtr(new ValueObject(capacity));
}

} // namespace vnsi

namespace hostextras {

using namespace vnsi;

namespace {

ValueNode& own(const VnJsonPtr& node)
{
    return static_cast<ValueNode&>(*node);
}

} // namespace

VnJsonPtr createArray(int capacity)
{
    return VnJsonPtr(new ValueArray(capacity));
}

void append(const VnJsonPtr& array, const VnJsonPtr& node)
{
    own(array).Append(node);
}

void appendInt(const VnJsonPtr& array, OdInt32 value)
{
    own(array).AppendI(value);
}

void appendText(const VnJsonPtr& array, const OdString& value)
{
    own(array).AppendSW(value);
}

void removeItem(const VnJsonPtr& array, int index)
{
    own(array).Remove(index);
}

OdInt32 intOf(const VnJsonPtr& element, OdInt32 fallback)
{
    const Value* const value = own(element).scalar();
    return value ? readInt(*value, fallback) : fallback;
}

OdString textOf(const VnJsonPtr& element)
{
    const Value* const value = own(element).scalar();
    return value ? readText(*value, {}) : OdString();
}

VnJsonPtr copyOf(const VnJsonPtr& node)
{
    if (!node)
        return {};
    std::vector<CopyStep> open;
    VnJsonPtr copy = toHandle(copied(toValue(node), open));
    while (!open.empty()) {
        const CopyStep step = open.back();
        open.pop_back();
        fillCopy(step, open);
    }
    return copy;
}

void removeKey(IElementValueBase& object, const char* key)
{
    static_cast<ValueNode&>(object).RemoveKey(key);
}

std::string jsonOf(const VnJsonPtr& node)
{
    // A JSON document cannot be a scalar, so a scalar is written as the only element of an array.
    const QJsonValue json = vnsi::jsonOf(toValue(node), 1);
    if (json.isObject() || json.isArray()) {
        const QJsonDocument document =
            json.isArray() ? QJsonDocument(json.toArray()) : QJsonDocument(json.toObject());
        return document.toJson(QJsonDocument::Compact).toStdString();
    }
    const std::string list =
        QJsonDocument(QJsonArray{json}).toJson(QJsonDocument::Compact).toStdString();
    return list.substr(1, list.size() - 2);
}

} // namespace hostextras

namespace host {

using namespace vnsi;

VnJsonPtr fromJson(const std::string& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(json));
    if (document.isArray())
        return fromArray(document.array());
    return document.isObject() ? fromObject(document.object()) : VnJsonPtr();
}

bool isObject(const VnJsonPtr& node)
{
    return node && static_cast<ValueNode&>(*node).kind() == ValueNode::Kind::Object;
}

bool isArray(const VnJsonPtr& node)
{
    return node && static_cast<ValueNode&>(*node).kind() == ValueNode::Kind::Array;
}

bool hasKey(const VnJsonPtr& node, const char* key)
{
    return node && static_cast<ValueNode&>(*node).HasKey(key);
}

void insert(const VnJsonPtr& array, int index, const VnJsonPtr& node)
{
    static_cast<ValueNode&>(*array).Insert(index, node);
}

void clear(IElementValueBase& node)
{
    static_cast<ValueNode&>(node).Clear();
}

} // namespace host
