#include "contract.h"
#include "otherhost.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstring>

using namespace otherhost;

namespace vnsi {

void IElementValueBase::checkRead(const char* path, int type)
{
    const int agreed = contract::typesOf(path);
    const bool isEither =
        (agreed & contract::kEitherInteger) && (type == contract::kInt || type == contract::kLong);
    if (!(agreed & type) && !isEither)
        OtherHost::instance().fault(QStringLiteral("reads %1 as type %2").arg(path).arg(type));
}

VnJsonPtr VnJsonPtr::operator()(int index) const
{
    return (*m_node)(index);
}

int VnJsonPtr::ArrayCount() const
{
    return m_node->ArrayCount();
}

VnJsonPtr IElementValueBase::operator()(int index) const
{
    return elements.at(static_cast<std::size_t>(index));
}

VnJsonPtr IElementValueBase::member(const char* path) const
{
    const std::string key(path, std::strcspn(path, "/"));
    const auto found = members.find(key);
    if (found == members.end())
        return {};
    const char* const rest = path + key.size();
    return *rest ? found->second->member(rest + 1) : found->second;
}

void IElementValueBase::hang(const char* path, const VnJsonPtr& value)
{
    const std::string key(path, std::strcspn(path, "/"));
    const char* const rest = path + key.size();
    VnJsonPtr own = value;
    if (*rest) {
        own = member(key.c_str());
        if (!own || own->form != Form::Object)
            own = ElementValue::createObject(0);
        own->hang(rest + 1, value);
    }
    if (own)
        members[key] = own;
    else
        members.erase(key);
}

VnJsonPtr IElementValueBase::copy() const
{
    const auto result = std::make_shared<IElementValueBase>(*this);
    for (auto& one : result->members)
        one.second = one.second->copy();
    for (VnJsonPtr& element : result->elements)
        element = element ? element->copy() : VnJsonPtr();
    return VnJsonPtr(result);
}

void IElementValueBase::clear()
{
    members.clear();
    elements.clear();
}

void IElementValueBase::write(const char* path, const Scalar& value)
{
    const int type = 1 << value.index();
    if (!(contract::typesOf(path) & type))
        OtherHost::instance().fault(QStringLiteral("writes %1 as type %2").arg(path).arg(type));
    hang(path, hostextras::scalarOf(value));
}

void IElementValueBase::SetDataJ(const char* key, const VnJsonPtr& value)
{
    if (!(contract::typesOf(key) & contract::kTree))
        OtherHost::instance().fault(QStringLiteral("hangs a tree under %1").arg(key));
    hang(key, value);
}

VnJsonPtr IElementValueBase::GetDataJ(const char* key) const
{
    checkRead(key, contract::kTree);
    const VnJsonPtr found = member(key);
    return found && found->form != Form::Scalar ? found : VnJsonPtr();
}

VnJsonPtr ElementValue::createObject(int)
{
    return VnJsonPtr(std::make_shared<IElementValueBase>(IElementValueBase::Form::Object));
}

} // namespace vnsi

using namespace vnsi;

VnJsonPtr hostextras::createArray(int)
{
    return VnJsonPtr(std::make_shared<IElementValueBase>(IElementValueBase::Form::Array));
}

VnJsonPtr hostextras::scalarOf(IElementValueBase::Scalar value)
{
    return VnJsonPtr(std::make_shared<IElementValueBase>(std::move(value)));
}

namespace otherhost {

namespace {

VnJsonPtr nodeOf(const QString& path, const QJsonValue& value)
{
    const int types = contract::typesOf(path.toLatin1().constData());
    if (value.isBool())
        return hostextras::scalarOf(value.toBool());
    if (value.isDouble() && (types & contract::kLong))
        return hostextras::scalarOf(static_cast<OdInt64>(value.toDouble()));
    if (value.isDouble())
        return hostextras::scalarOf(static_cast<OdInt32>(value.toInt()));
    if (value.isString())
        return hostextras::scalarOf(vnutQStringToOdString(value.toString()));
    VnJsonPtr node = value.isArray() ? hostextras::createArray(0) : ElementValue::createObject(0);
    const QString own = path.mid(path.lastIndexOf('/') + 1);
    const QJsonObject object = value.toObject();
    for (auto one = object.begin(); one != object.end(); ++one) {
        const QString inner = own.isEmpty() ? one.key() : own + '/' + one.key();
        node->hang(one.key().toLatin1().constData(), nodeOf(inner, one.value()));
    }
    for (const QJsonValue element : value.toArray())
        hostextras::append(node, nodeOf(QString(), element));
    return node;
}

} // namespace

VnJsonPtr treeOf(const QString& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    Q_ASSERT(document.isObject());
    return nodeOf(QString(), document.object());
}

std::vector<VnJsonPtr> nodesIn(const VnJsonPtr& node)
{
    std::vector<VnJsonPtr> all;
    const auto add = [&](const VnJsonPtr& one) {
        if (one && std::find(all.begin(), all.end(), one) == all.end())
            all.push_back(one);
    };
    add(node);
    // The list grows meanwhile. NOLINTNEXTLINE(modernize-loop-convert)
    for (std::size_t i = 0; i < all.size(); ++i) {
        const VnJsonPtr one = all[i];
        for (const auto& member : one->members)
            add(member.second);
        for (const VnJsonPtr& element : one->elements)
            add(element);
    }
    return all;
}

} // namespace otherhost
