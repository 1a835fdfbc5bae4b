#pragma once

#include <afxcmn.h>
#include <afxwin.h>

/** @file Handles just made, on their way to an owner. One that has a handle already refuses another, which is freed. */

inline BOOL AfxAdopt(CGdiObject& owner, HGDIOBJ hNew)
{
    const BOOL bTaken = owner.Attach(hNew);
    if (!bTaken && hNew) {
        ::DeleteObject(hNew);
    }
    return bTaken;
}

inline BOOL AfxAdopt(CDC& owner, HDC hNew)
{
    const BOOL bTaken = owner.Attach(hNew);
    if (!bTaken && hNew) {
        ::DeleteDC(hNew);
    }
    return bTaken;
}

inline BOOL AfxAdopt(CMenu& owner, HMENU hNew)
{
    const BOOL bTaken = owner.Attach(hNew);
    if (!bTaken && hNew) {
        ::DestroyMenu(hNew);
    }
    return bTaken;
}

inline BOOL AfxAdopt(CImageList& owner, HIMAGELIST hNew)
{
    const BOOL bTaken = owner.Attach(hNew);
    if (!bTaken && hNew) {
        ::ImageList_Destroy(hNew);
    }
    return bTaken;
}
