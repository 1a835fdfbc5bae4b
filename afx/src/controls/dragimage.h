#pragma once

#include <afx/imagelist.h>

#include <memory>

/** Takes ownership of a drag image that a control made. @return null for none; the caller deletes the object. */
inline CImageList* OwnDragImage(HIMAGELIST hImageList)
{
    auto pList = std::make_unique<CImageList>();
    return pList->Attach(hImageList) ? pList.release() : nullptr;
}
