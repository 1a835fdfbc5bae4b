#pragma once

#include "BufferedPaint.h"

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
    PaintBuffer m_buffer;
};
