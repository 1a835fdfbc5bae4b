#include "core/nullthis.h"
#include "handlemaps.h"

#include <afxwin.h>

IMPLEMENT_DYNCREATE(CGdiObject, CObject)

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

CGdiObject::operator HGDIOBJ() const
{
    return m_hObject;
}

HGDIOBJ CGdiObject::GetSafeHandle() const
{
    return AfxIsNullThis(this) ? nullptr : m_hObject;
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject)
{
    return AfxGdiMap::FromHandle(hObject);
}

void PASCAL CGdiObject::DeleteTempMap()
{
    return AfxGdiMap::DeleteTemp();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    if (!hObject || m_hObject) {
        return FALSE;
    }
    m_hObject = hObject;
    AfxGdiMap::SetPermanent(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    HGDIOBJ hObject = m_hObject;
    if (hObject) {
        AfxGdiMap::Remove(hObject);
    }
    m_hObject = nullptr;
    return hObject;
}

BOOL CGdiObject::DeleteObject()
{
    HGDIOBJ hObject = Detach();
    return hObject && ::DeleteObject(hObject);
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const
{
    return m_hObject ? ::GetObject(m_hObject, nCount, lpObject) : 0;
}

UINT CGdiObject::GetObjectType() const
{
    return ::GetObjectType(m_hObject);
}

BOOL CGdiObject::CreateStockObject(int nIndex)
{
    return Attach(::GetStockObject(nIndex));
}

BOOL CGdiObject::UnrealizeObject()
{
    return m_hObject && ::UnrealizeObject(m_hObject);
}

BOOL CGdiObject::operator==(const CGdiObject& obj) const
{
    return m_hObject == obj.m_hObject;
}

BOOL CGdiObject::operator!=(const CGdiObject& obj) const
{
    return m_hObject != obj.m_hObject;
}
