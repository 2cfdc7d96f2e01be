#include "contract.h"
#include "hostextras.h"
#include "otherhost.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace otherhost;

namespace vnsi {

namespace {

void checkRead(const char* path, int type)
{
    const int agreed = contract::typesOf(path);
    const bool isEither =
        (agreed & contract::kEitherInteger) && (type == contract::kInt || type == contract::kLong);
    if (!(agreed & type) && !isEither)
        OtherHost::instance().fault(QStringLiteral("reads %1 as type %2").arg(path).arg(type));
}

} // namespace

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
    const std::string text(path);
    const std::size_t slash = text.find('/');
    const std::string key = text.substr(0, slash);
    const auto found = std::find_if(
        members.begin(), members.end(), [&](const auto& one) { return one.first == key; });
    if (found == members.end() || slash == std::string::npos)
        return found == members.end() ? VnJsonPtr() : found->second;
    return found->second->member(path + slash + 1);
}

void IElementValueBase::hang(const char* path, const VnJsonPtr& value)
{
    const std::string text(path);
    const std::size_t slash = text.find('/');
    const std::string key = text.substr(0, slash);
    const auto found = std::find_if(
        members.begin(), members.end(), [&](const auto& one) { return one.first == key; });
    VnJsonPtr own = value;
    if (slash != std::string::npos) {
        const bool isThere = found != members.end() && found->second->form == Form::Object;
        own = isThere ? found->second : ElementValue::createObject(0);
        own->hang(path + slash + 1, value);
    }
    if (found == members.end() && own)
        members.emplace_back(key, own);
    else if (found != members.end() && own)
        found->second = own;
    else if (found != members.end())
        members.erase(found);
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

template <class T>
T IElementValueBase::read(const char* path, int type, const T& fallback) const
{
    checkRead(path, type);
    const VnJsonPtr found = member(path);
    return found ? hostextras::valueOf(found, fallback) : fallback;
}

void IElementValueBase::write(const char* path, int type, const VnJsonPtr& value)
{
    if (!(contract::typesOf(path) & type))
        OtherHost::instance().fault(QStringLiteral("writes %1 as type %2").arg(path).arg(type));
    hang(path, value);
}

bool IElementValueBase::GetDataB(const char* key, bool fallback) const
{
    return read(key, contract::kBool, fallback);
}

OdInt32 IElementValueBase::GetDataI(const char* key, OdInt32 fallback) const
{
    return read(key, contract::kInt, fallback);
}

OdInt64 IElementValueBase::GetDataL(const char* key, OdInt64 fallback) const
{
    return read(key, contract::kLong, fallback);
}

OdString IElementValueBase::GetDataSW(const char* key, const OdString& fallback) const
{
    return read(key, contract::kWide, fallback);
}

VnJsonPtr IElementValueBase::GetDataJ(const char* key) const
{
    checkRead(key, contract::kTree);
    const VnJsonPtr found = member(key);
    return found && found->form != Form::Scalar ? found : VnJsonPtr();
}

void IElementValueBase::SetDataB(const char* key, bool value)
{
    write(key, contract::kBool, hostextras::scalarOf(value));
}

void IElementValueBase::SetDataI(const char* key, OdInt32 value)
{
    write(key, contract::kInt, hostextras::scalarOf(value));
}

void IElementValueBase::SetDataL(const char* key, OdInt64 value)
{
    write(key, contract::kLong, hostextras::scalarOf(value));
}

void IElementValueBase::SetDataSW(const char* key, const OdString& value)
{
    write(key, contract::kWide, hostextras::scalarOf(value));
}

void IElementValueBase::SetDataS(const char* key, const OdAnsiString& utf8)
{
    write(key, contract::kNarrow, hostextras::scalarOf(utf8));
}

void IElementValueBase::SetDataJ(const char* key, const VnJsonPtr& value)
{
    write(key, contract::kTree, value);
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
    const VnJsonPtr node =
        value.isArray() ? hostextras::createArray(0) : ElementValue::createObject(0);
    const QString own = path.mid(path.lastIndexOf('/') + 1);
    const QJsonObject object = value.toObject();
    for (auto one = object.begin(); one != object.end(); ++one) {
        const QString inner = own.isEmpty() ? one.key() : own + '/' + one.key();
        node->hang(one.key().toLatin1().constData(), nodeOf(inner, one.value()));
    }
    for (const QJsonValue& element : value.toArray())
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
