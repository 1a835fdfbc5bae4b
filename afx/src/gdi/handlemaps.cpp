#include "handlemaps.h"

#include <afxwin.h>

namespace
{
// Temporary objects get the class of what the handle is, so that a cast down is right.
CGdiObject* NewGdiObject(HGDIOBJ hObject)
{
    switch (::GetObjectType(hObject)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return new CPen;
    case OBJ_BRUSH:
        return new CBrush;
    case OBJ_FONT:
        return new CFont;
    case OBJ_BITMAP:
        return new CBitmap;
    case OBJ_PAL:
        return new CPalette;
    case OBJ_REGION:
        return new CRgn;
    default:
        return new CGdiObject;
    }
}

CObject* AFXAPI CreateGdiObject(HANDLE h)
{
    CGdiObject* pObject = NewGdiObject(h);
    pObject->m_hObject = h;
    return pObject;
}

void AFXAPI ReleaseGdiObject(CObject* pTemporary)
{
    static_cast<CGdiObject*>(pTemporary)->m_hObject = nullptr;
    delete pTemporary;
}

CObject* AFXAPI CreateDc(HANDLE h)
{
    CDC* pDC = new CDC;
    pDC->m_hDC = static_cast<HDC>(h);
    pDC->m_hAttribDC = pDC->m_hDC;
    return pDC;
}

void AFXAPI ReleaseDc(CObject* pTemporary)
{
    static_cast<CDC*>(pTemporary)->m_hDC = nullptr;
    delete pTemporary;
}

CObject* AFXAPI CreateMenuObject(HANDLE h)
{
    CMenu* pMenu = new CMenu;
    pMenu->m_hMenu = static_cast<HMENU>(h);
    return pMenu;
}

void AFXAPI ReleaseMenuObject(CObject* pTemporary)
{
    static_cast<CMenu*>(pTemporary)->m_hMenu = nullptr;
    delete pTemporary;
}

CObject* AFXAPI CreateImageListObject(HANDLE h)
{
    CImageList* pList = new CImageList;
    pList->m_hImageList = static_cast<HIMAGELIST>(h);
    return pList;
}

void AFXAPI ReleaseImageListObject(CObject* pTemporary)
{
    static_cast<CImageList*>(pTemporary)->m_hImageList = nullptr;
    delete pTemporary;
}
} // namespace

const AFX_HANDLE_FACTORY kGdiObjectFactory = {CreateGdiObject, ReleaseGdiObject};
const AFX_HANDLE_FACTORY kDcFactory = {CreateDc, ReleaseDc};
const AFX_HANDLE_FACTORY kMenuFactory = {CreateMenuObject, ReleaseMenuObject};
const AFX_HANDLE_FACTORY kImageListFactory = {CreateImageListObject, ReleaseImageListObject};
