#pragma once

#include <afx/gdi.h>
#include <afx/imagelist.h>
#include <afx/menu.h>
#include <afx/state.h>

/**
 * @file
 * The maps of one kind of handle each, with the objects in their own types.
 *
 * @tparam TObject wrapper class. @tparam nKind its map. @tparam factory makes and ends temporary wrappers.
 */
template <class TObject, AFX_HANDLE_KIND nKind, const AFX_HANDLE_FACTORY& factory>
class AfxTypedMap
{
  public:
    static TObject* FromHandle(HANDLE h)
    {
        return h ? static_cast<TObject*>(AfxGetHandleMap(nKind, &factory)->FromHandle(h)) : nullptr;
    }
    static TObject* FromHandlePermanent(HANDLE h)
    {
        const CHandleMap* pMap = AfxGetHandleMap(nKind, nullptr);
        return pMap ? static_cast<TObject*>(pMap->LookupPermanent(h)) : nullptr;
    }
    static void SetPermanent(HANDLE h, TObject* pObject) { AfxGetHandleMap(nKind, &factory)->SetPermanent(h, pObject); }
    /** Forgets the owner; objects that outlive their thread's maps find nothing to do. */
    static void Remove(HANDLE h)
    {
        if (CHandleMap* pMap = AfxGetHandleMap(nKind, nullptr)) {
            pMap->RemoveHandle(h);
        }
    }
    static void DeleteTemp()
    {
        if (CHandleMap* pMap = AfxGetHandleMap(nKind, nullptr)) {
            pMap->DeleteTemp();
        }
    }
};

extern const AFX_HANDLE_FACTORY kGdiObjectFactory;
extern const AFX_HANDLE_FACTORY kDcFactory;
extern const AFX_HANDLE_FACTORY kMenuFactory;
extern const AFX_HANDLE_FACTORY kImageListFactory;

using AfxGdiMap = AfxTypedMap<CGdiObject, AFX_HANDLE_HGDIOBJ, kGdiObjectFactory>;
using AfxDcMap = AfxTypedMap<CDC, AFX_HANDLE_HDC, kDcFactory>;
using AfxMenuMap = AfxTypedMap<CMenu, AFX_HANDLE_HMENU, kMenuFactory>;
using AfxImageListMap = AfxTypedMap<CImageList, AFX_HANDLE_HIMAGELIST, kImageListFactory>;
