#pragma once

/** @file Handles just made, on their way to an owner. One that has a handle already refuses another, which is freed. */

#include <common/Owner.h>

#include <afxcmn.h>
#include <afxwin.h>

/** @name Who frees what the objects hold; never called.
 *  @{ */
own::GdiObject<HGDIOBJ> AfxOwnerFor(const CGdiObject&);
own::MemoryDc AfxOwnerFor(const CDC&);
own::Menu AfxOwnerFor(const CMenu&);
own::Owner<own::FreedBy<HIMAGELIST, ::ImageList_Destroy>> AfxOwnerFor(const CImageList&);
/** @} */

/** @return FALSE when the handle is null or the object has one already. */
template <class Object>
BOOL AfxAdopt(Object& object, typename decltype(AfxOwnerFor(object))::Handle hNew)
{
    decltype(AfxOwnerFor(object)) owner(hNew);
    if (!object.Attach(owner.Get())) {
        return FALSE;
    }
    owner.Release();
    return TRUE;
}
