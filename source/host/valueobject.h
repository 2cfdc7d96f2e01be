#pragma once

#include "keytable.h"
#include "valuenode.h"

#include <memory>
#include <unordered_map>

namespace vnsi {

/// An object with its members in one array, in the order in which they were added. A few members
/// are searched one by one, many through an index.
class ValueObject final : public ValueNode
{
public:
    struct Member
    {
        const Key* key; ///< Null for a removed member.
        Value value;
    };

    explicit ValueObject(int capacity);

    Kind kind() const override { return Kind::Object; }
    void collectChildren(std::vector<ValueNode*>& children) const override;
    void SetDataJ(const char* path, const VnJsonPtr& value) override;
    void RemoveKey(const char* path) override;
    /// Removes all members.
    void Clear() override;

    const std::vector<Member>& members() const { return m_members; }
    /// Sets a member of this very object; `key` is not treated as a path.
    void put(std::string_view key, Value value);

protected:
    const Value* find(const char* path) const override;
    void store(const char* path, Value value) override;

private:
    using Index = std::unordered_map<std::string_view, std::size_t>;

    const Member* member(std::string_view key) const;
    void removeMember(const Member& gone);
    void rebuildIndex();
    /// The object that contains the last key of `path`; null when it does not exist.
    const ValueObject* holderOf(std::string_view path) const;
    /// The object that contains the last key of `path`; creates it when it is missing.
    ValueObject& makeHolderOf(std::string_view path);
    ValueObject& makeObject(std::string_view key);

    std::vector<Member> m_members;
    std::unique_ptr<Index> m_index;
    std::size_t m_removed = 0;
};

} // namespace vnsi
