#include "private.h"

const CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr, nullptr};

CRuntimeClass* AFXAPI CObject::GetThisClass()
{
    return const_cast<CRuntimeClass*>(&classCObject);
}

static const AFX_CLASSINIT kInitCObject(RUNTIME_CLASS(CObject));

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return RUNTIME_CLASS(CObject);
}

CObject::CObject() = default;

CObject::~CObject() = default;

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

BOOL CObject::IsSerializable() const
{
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}

void CObject::Serialize(CArchive&) {}

void CObject::AssertValid() const {}

void CObject::Dump(CDumpContext& dc) const
{
    dc << L"a " << GetRuntimeClass()->m_lpszClassName << L" at " << static_cast<const void*>(this) << L"\n";
}

void* CObject::operator new(std::size_t nSize)
{
    return operator new(nSize, nullptr, 0);
}

void* CObject::operator new(std::size_t nSize, LPCSTR lpszFileName, int nLine)
{
    void* const p = AfxAllocTracked(nSize, true, lpszFileName, nLine);
    if (!p) {
        AfxThrowMemoryException();
    }
    return p;
}

void CObject::operator delete(void* p) noexcept
{
    AfxFreeTracked(p);
}

void CObject::operator delete(void* p, LPCSTR, int) noexcept
{
    AfxFreeTracked(p);
}

CObject* CRuntimeClass::CreateObject()
{
    if (!m_pfnCreateObject) {
        TRACE(L"class %hs cannot be created by name\n", m_lpszClassName);
        return nullptr;
    }
    try {
        return m_pfnCreateObject();
    } catch (CMemoryException* e) {
        e->Delete();
        return nullptr;
    }
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    if (!pBaseClass) {
        return FALSE;
    }
    const CRuntimeClass* pClass = this;
    while (pClass && pClass != pBaseClass) {
        pClass = pClass->m_pfnGetBaseClass ? pClass->m_pfnGetBaseClass() : nullptr;
    }
    return pClass != nullptr;
}

CRuntimeClass* AFXAPI CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    return lpszClassName ? AfxFindClass(lpszClassName) : nullptr;
}

CRuntimeClass* AFXAPI CRuntimeClass::FromName(LPCWSTR lpszClassName)
{
    return lpszClassName ? AfxFindClass(CStringA(lpszClassName)) : nullptr;
}

CObject* AFXAPI CRuntimeClass::CreateObject(LPCSTR lpszClassName)
{
    CRuntimeClass* const pClass = FromName(lpszClassName);
    return pClass ? pClass->CreateObject() : nullptr;
}

CObject* AFXAPI CRuntimeClass::CreateObject(LPCWSTR lpszClassName)
{
    CRuntimeClass* const pClass = FromName(lpszClassName);
    return pClass ? pClass->CreateObject() : nullptr;
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject)
{
    return pObject && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject)
{
    ASSERT(!pObject || pObject->IsKindOf(pClass));
    UNREFERENCED_PARAMETER(pClass);
    return pObject;
}
