#pragma once

#include "RxObject.h"

#include <atomic>

/// Makes a run-time class concrete by adding the reference count. The count starts at one, which
/// belongs to the maker.
template <class T, class TInterface = T>
class OdRxObjectImpl : public T
{
public:
    using T::T;

    template <class... Args>
    static OdSmartPtr<TInterface> createObject(Args&&... args)
    {
        return OdSmartPtr<TInterface>(
            new OdRxObjectImpl(std::forward<Args>(args)...), kOdRxObjAttach);
    }

    void addRef() override { ++m_references; }
    void release() override
    {
        if (--m_references == 0)
            delete this;
    }
    long numRefs() const override { return m_references; }

private:
    std::atomic<OdInt32> m_references{1};
};
