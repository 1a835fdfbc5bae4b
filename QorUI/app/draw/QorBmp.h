#pragma once

#include <common/Owner.h>
#include <QorUI/app/module/QorUIDef.h>

#include <ocidl.h>

/**
 * A bitmap whose handle may come from a compressed picture in a resource or a file.
 *
 * The handle of a loaded picture belongs to the picture and goes with it; a handle that was attached directly is
 * deleted like that of any bitmap.
 */
class QORUI_API CQorBmp : public CBitmap
{
  public:
    /** Makes an empty object. */
    CQorBmp();
    /** Frees what the object holds, in the way that suits where its handle came from. */
    ~CQorBmp() override;

    /**
     * Loads a picture from a resource.
     * @param inst module with the resource.
     * @param id number of the resource.
     * @param type name of its type.
     * @return FALSE when there is no such resource or its data is no picture. In the second case the object is empty.
     */
    BOOL Load(HINSTANCE inst, UINT id, LPCWSTR type);

    /**
     * Loads a picture from a file.
     * @return FALSE when the file cannot be read (the object keeps what it has) or holds no picture (it is empty then).
     */
    BOOL Load(LPCWSTR path);

    /**
     * Draws a loaded picture, stretched into a rectangle.
     * @param x,y,cx,cy the rectangle in logical units of `dc`.
     * @return FALSE without a loaded picture or a device context, or when drawing failed.
     */
    BOOL Render(HDC dc, int x, int y, int cx, int cy);

    /**
     * Makes the object empty, as the destructor does.
     * @return whether it held a handle.
     */
    BOOL DeleteObject();

  private:
    BOOL LoadPicture(const void* data, DWORD size);
    void FreePicture();

    own::Com<IPicture> m_picture; // owns the handle unless it is empty
};
