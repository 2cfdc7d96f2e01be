#pragma once

#include "value.h"

#include <atomic>
#include <vector>

namespace vnsi {

/// Common base of all nodes. It keeps the counts and implements the operations for nodes of a kind
/// that does not support them.
class ValueNode : public IElementValueBase
{
public:
    void addRef() override { m_references.fetch_add(1, std::memory_order_relaxed); }
    void release() override;

    enum class Kind { Null, Bool, Int, Long, Real, Text, Array, Object };

    virtual Kind kind() const = 0;
    /// The value of a scalar node; null for containers.
    virtual const Value* scalar() const { return nullptr; }
    /// Appends the containers that are direct children of this one.
    virtual void collectChildren(std::vector<ValueNode*>& children) const;

    void hang() { m_hanging.fetch_add(1, std::memory_order_relaxed); }
    void unhang() { m_hanging.fetch_sub(1, std::memory_order_relaxed); }
    /// Whether this node may become a child of `parent`: it must not be `parent` or contain it.
    bool mayHangIn(const ValueNode& parent) const;

    bool GetDataB(const char* key, bool fallback) const override;
    OdInt32 GetDataI(const char* key, OdInt32 fallback) const override;
    OdInt64 GetDataL(const char* key, OdInt64 fallback) const override;
    OdString GetDataSW(const char* key, const OdString& fallback) const override;
    VnJsonPtr GetDataJ(const char* key) const override;

    void SetDataB(const char* key, bool value) override;
    void SetDataI(const char* key, OdInt32 value) override;
    void SetDataL(const char* key, OdInt64 value) override;
    void SetDataSW(const char* key, const OdString& value) override;
    void SetDataS(const char* key, const OdAnsiString& utf8) override;
    void SetDataJ(const char* key, const VnJsonPtr& value) override;
    int ArrayCount() const override;
    VnJsonPtr operator()(int index) const override;

    bool HasKey(const char* key) const;
    virtual void RemoveKey(const char* key);
    virtual void Append(const VnJsonPtr& value);
    virtual void AppendI(OdInt32 value);
    virtual void AppendSW(const OdString& value);
    /// Inserts before element `index`; appends when `index` is not below the count.
    virtual void Insert(int index, const VnJsonPtr& value);
    virtual void Remove(int index);
    /// Removes all members or elements.
    virtual void Clear();

protected:
    /// The value under `path`; null when there is none and on nodes that are no objects.
    virtual const Value* find(const char* path) const;
    /// Writes `value` under `path`; does nothing on nodes that are no objects.
    virtual void store(const char* path, Value value);

private:
    std::atomic<OdInt32> m_references{1};
    std::atomic<OdInt32> m_hanging{0};
    ValueNode* m_nextDoomed = nullptr;
};

} // namespace vnsi
