#include "QorBmp.h"

#include <QorPub/QorPub.h>

#include <olectl.h>

CQorBmp::CQorBmp() = default;

CQorBmp::~CQorBmp()
{
    FreePicture();
}

BOOL CQorBmp::Load(HINSTANCE inst, UINT id, LPCWSTR type)
{
    DWORD size = 0;
    const void* data = QorLoadResource(inst, MAKEINTRESOURCEW(id), type, size);
    return data && LoadPicture(data, size);
}

BOOL CQorBmp::Load(LPCWSTR path)
{
    const own::File file(
        ::CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        return FALSE;
    }
    const DWORD size = ::GetFileSize(file.Get(), nullptr);
    if (size == INVALID_FILE_SIZE) {
        return FALSE;
    }
    const own::LocalMemory buffer(::LocalAlloc(LMEM_FIXED, size));
    DWORD read = 0;
    return buffer && ::ReadFile(file.Get(), buffer.Get(), size, &read, nullptr) && read == size &&
           LoadPicture(buffer.Get(), size);
}

BOOL CQorBmp::Render(HDC dc, int x, int y, int cx, int cy)
{
    if (!m_picture || !dc) {
        return FALSE;
    }
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    m_picture->get_Width(&width);
    m_picture->get_Height(&height);
    // Pictures count their rows from the bottom: a negative height from the top row draws upright.
    return m_picture->Render(dc, x, y, cx, cy, 0, height, width, -height, nullptr) == S_OK;
}

BOOL CQorBmp::DeleteObject()
{
    const BOOL held = m_hObject != nullptr;
    FreePicture();
    return held;
}

BOOL CQorBmp::LoadPicture(const void* data, DWORD size)
{
    const own::Com<IStream> stream(QorCreateReadOnlyMemStream(0, data, size));
    if (!stream) {
        return FALSE;
    }
    FreePicture();
    const HRESULT result = ::OleLoadPicture(stream.Get(), static_cast<LONG>(size), FALSE, IID_IPicture,
                                            reinterpret_cast<void**>(m_picture.Receive()));
    if (FAILED(result) || !m_picture) {
        return FALSE;
    }
    OLE_HANDLE handle = 0;
    if (FAILED(m_picture->get_Handle(&handle)) || handle == 0) {
        return FALSE;
    }
    return Attach(reinterpret_cast<HBITMAP>(static_cast<LONG_PTR>(static_cast<LONG>(handle))));
}

void CQorBmp::FreePicture()
{
    if (!m_picture) {
        CBitmap::DeleteObject();
        return;
    }
    Detach();
    m_picture.Reset();
}
