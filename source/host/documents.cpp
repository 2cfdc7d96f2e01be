#include "documents.h"

#include "RxObjectImpl.h"

#include <mutex>

namespace vnsi {

ODRX_DEFINE_MEMBERS(VnDocument, OdRxObject, L"VnDocument")
ODRX_DEFINE_MEMBERS(VnDocMgr, OdRxObject, L"VnDocMgr")

} // namespace vnsi

namespace host {

namespace {

constexpr int kColors = 256;

class PlainDocument : public vnsi::VnDocument
{
public:
    PlainDocument()
    {
        for (int i = 0; i < kColors; ++i)
            m_colors.append(OdCmEntityColor::lookUpRGB(i));
    }
    const OdArray<ODCOLORREF>& colorTable() const override { return m_colors; }

private:
    OdArray<ODCOLORREF> m_colors;
};

class DocMgr : public vnsi::VnDocMgr
{
public:
    vnsi::VnDocumentPtr currentDocument() const override { return host::currentDocument(); }
};

std::mutex currentMutex;

vnsi::VnDocumentPtr& current()
{
    static auto* const document = new vnsi::VnDocumentPtr;
    return *document;
}

} // namespace

void setCurrentDocument(const vnsi::VnDocumentPtr& document)
{
    vnsi::VnDocumentPtr previous = document; // It is released outside of the lock.
    const std::lock_guard lock(currentMutex);
    std::swap(current(), previous);
}

vnsi::VnDocumentPtr currentDocument()
{
    const std::lock_guard lock(currentMutex);
    return current();
}

vnsi::VnDocumentPtr makeDocument()
{
    return OdRxObjectImpl<PlainDocument>::createObject();
}

OdRxObjectPtr makeDocMgr()
{
    return OdRxObjectImpl<DocMgr>::createObject();
}

} // namespace host
