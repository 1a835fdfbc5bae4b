#include "private.h"

#include <unordered_map>
#include <utility>

struct CHandleMap::Tables
{
    std::unordered_map<HANDLE, CObject*> permanent;
    std::unordered_map<HANDLE, CObject*> temporary;
};

CHandleMap::CHandleMap(const AFX_HANDLE_FACTORY& factory) : m_factory(factory), m_pTables(new Tables) {}

CHandleMap::~CHandleMap()
{
    DeleteTemp();
    delete m_pTables;
}

CObject* CHandleMap::FromHandle(HANDLE h)
{
    if (!h) {
        return nullptr;
    }
    if (CObject* const pPermanent = LookupPermanent(h)) {
        return pPermanent;
    }
    CObject*& rpTemporary = m_pTables->temporary[h];
    if (!rpTemporary) {
        try {
            rpTemporary = m_factory.pfnCreate(h);
        } catch (...) {
            m_pTables->temporary.erase(h);
            throw;
        }
    }
    return rpTemporary;
}

CObject* CHandleMap::LookupPermanent(HANDLE h) const
{
    const auto it = m_pTables->permanent.find(h);
    return it == m_pTables->permanent.end() ? nullptr : it->second;
}

CObject* CHandleMap::LookupTemporary(HANDLE h) const
{
    const auto it = m_pTables->temporary.find(h);
    return it == m_pTables->temporary.end() ? nullptr : it->second;
}

void CHandleMap::SetPermanent(HANDLE h, CObject* permOb)
{
    ASSERT(h && permOb);
    m_pTables->permanent[h] = permOb;
}

void CHandleMap::RemoveHandle(HANDLE h)
{
    m_pTables->permanent.erase(h);
}

void CHandleMap::DumpPermanent(LPCWSTR lpszKind) const
{
    for (const auto& [h, pObject] : m_pTables->permanent) {
        AfxTrace(L"%s $%p is owned by the object at $%p\n", lpszKind, h, pObject);
    }
}

size_t CHandleMap::GetPermanentCount() const
{
    return m_pTables->permanent.size();
}

size_t CHandleMap::GetTemporaryCount() const
{
    return m_pTables->temporary.size();
}

void CHandleMap::DeleteTemp()
{
    /* Ending a wrapper may ask for other wrappers. */
    while (!m_pTables->temporary.empty()) {
        const auto temporary = std::move(m_pTables->temporary);
        m_pTables->temporary.clear();
        for (const auto& [h, pObject] : temporary) {
            m_factory.pfnRelease(pObject);
        }
    }
}
