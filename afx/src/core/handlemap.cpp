#include "private.h"

CHandleMap::CHandleMap(const AFX_HANDLE_FACTORY& factory) : m_factory(factory) {}

CHandleMap::~CHandleMap()
{
    DeleteTemp();
}

CObject* CHandleMap::FromHandle(HANDLE h)
{
    if (!h) {
        return nullptr;
    }
    if (CObject* const pPermanent = LookupPermanent(h)) {
        return pPermanent;
    }
    CObject*& rpTemporary = m_temporaryMap[h];
    if (!rpTemporary) {
        try {
            rpTemporary = m_factory.pfnCreate(h);
        } catch (...) {
            m_temporaryMap.erase(h);
            throw;
        }
    }
    return rpTemporary;
}

CObject* CHandleMap::LookupPermanent(HANDLE h) const
{
    const auto it = m_permanentMap.find(h);
    return it == m_permanentMap.end() ? nullptr : it->second;
}

CObject* CHandleMap::LookupTemporary(HANDLE h) const
{
    const auto it = m_temporaryMap.find(h);
    return it == m_temporaryMap.end() ? nullptr : it->second;
}

void CHandleMap::SetPermanent(HANDLE h, CObject* permOb)
{
    ASSERT(h && permOb);
    m_permanentMap[h] = permOb;
}

void CHandleMap::RemoveHandle(HANDLE h)
{
    m_permanentMap.erase(h);
}

void CHandleMap::DumpPermanent(LPCWSTR lpszKind) const
{
    for (const auto& [h, pObject] : m_permanentMap) {
        AfxTrace(L"%s $%p is owned by the object at $%p\n", lpszKind, h, pObject);
    }
}

void CHandleMap::DeleteTemp()
{
    /* Ending a wrapper may ask for other wrappers. */
    while (!m_temporaryMap.empty()) {
        const auto temporary = std::move(m_temporaryMap);
        m_temporaryMap.clear();
        for (const auto& [h, pObject] : temporary) {
            m_factory.pfnRelease(pObject);
        }
    }
}
