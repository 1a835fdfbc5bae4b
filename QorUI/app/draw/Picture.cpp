#include "Picture.h"

#include "GdiPlusFlat.h"

#include <common/Owner.h>
#include <QorPub/QorPub.h>

#include <new>

const void* QorImageFromResource(HINSTANCE inst, LPCWSTR name, LPCWSTR type)
{
    DWORD size = 0;
    const void* data = QorLoadResource(inst, name, type, size);
    if (!data) {
        return nullptr;
    }
    const own::Com<IStream> stream(QorCreateReadOnlyMemStream(0, data, size));
    if (!stream) {
        return nullptr;
    }
    // The class's own operator new answers null, which a new expression does not look for.
    void* memory = Gdiplus::GdiplusBase::operator new(sizeof(Gdiplus::Image));
    return memory ? ::new (memory) Gdiplus::Image(stream.Get()) : nullptr;
}

BOOL QorGetImageEncoder(LPCWSTR mimeType, GUID& clsid)
{
    using namespace Gdiplus::DllExports;
    UINT count = 0;
    UINT size = 0;
    if (!mimeType || GdipGetImageEncodersSize(&count, &size) != Gdiplus::Ok || count == 0 || size == 0) {
        return FALSE;
    }
    const own::LocalMemory memory(::LocalAlloc(LMEM_FIXED, size));
    auto* encoders = static_cast<Gdiplus::ImageCodecInfo*>(memory.Get());
    if (!encoders || GdipGetImageEncoders(count, size, encoders) != Gdiplus::Ok) {
        return FALSE;
    }
    for (UINT i = 0; i < count; ++i) {
        if (::lstrcmpiW(encoders[i].MimeType, mimeType) == 0) {
            clsid = encoders[i].Clsid;
            return TRUE;
        }
    }
    return FALSE;
}
