#include "RxObject.h"

#include "RxModule.h"

bool OdRxClass::isDerivedFrom(const OdRxClass* other) const
{
    const OdRxClass* ancestor = this;
    while (ancestor && ancestor != other)
        ancestor = ancestor->m_parent;
    return ancestor;
}

const OdRxClass* OdRxObject::desc()
{
    static const OdRxClass description(L"OdRxObject", nullptr);
    return &description;
}

OdRxObjectPtr OdRxObject::cast(const OdRxObject* object)
{
    return OdRxObjectPtr(const_cast<OdRxObject*>(object));
}

OdRxObject::~OdRxObject() = default;

OdRxObject* OdRxObject::queryX(const OdRxClass* wanted) const
{
    if (!isA()->isDerivedFrom(wanted))
        return nullptr;
    auto* self = const_cast<OdRxObject*>(this);
    self->addRef();
    return self;
}

OdRxObject* OdRxObject::x(const OdRxClass*) const
{
    return nullptr;
}

const OdRxClass* OdRxObject::isA() const
{
    return desc();
}

long OdRxObject::numRefs() const
{
    return 1;
}

OdRxObjectPtr OdRxObject::clone() const
{
    return {};
}

void OdRxObject::copyFrom(const OdRxObject* source)
{
    throw OdError_NotThatKindOfClass(source ? source->isA() : nullptr, isA());
}

int OdRxObject::comparedTo(const OdRxObject* other) const
{
    return this == other ? 0 : this < other ? -1 : 1;
}

bool OdRxObject::isEqualTo(const OdRxObject* other) const
{
    return comparedTo(other) == 0;
}

ODRX_DEFINE_MEMBERS(OdRxModule, OdRxObject, L"OdRxModule")

void OdRxModule::initApp() {}

void OdRxModule::uninitApp() {}
