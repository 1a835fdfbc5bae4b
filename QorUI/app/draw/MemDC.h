#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * A memory device context for painting without flicker: what is drawn into it reaches the target in one step when the
 * object goes out of scope. It takes the target's coordinates.
 *
 * When the memory for the picture cannot be had, nothing reaches the target.
 */
class QORUI_API CMemDC : public CDC
{
  public:
    /** @param target not owned, must outlive this object; only its clip box is painted. */
    explicit CMemDC(CDC* target);
    ~CMemDC() override;

  private:
    CBitmap m_bitmap;
    HGDIOBJ m_hOldBitmap; // no object of the framework's, which may forget it while somebody paints
    CDC* m_pTarget;
    CRect m_rect; // clip box of the target
};
