#pragma once

#include <QorUI/app/module/QorUIDef.h>

/** The picture behind a memory device context, which reaches a target in one step. */
class PaintBuffer
{
  public:
    /** Makes an object without a picture. */
    PaintBuffer() = default;
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;

    /**
     * Makes the picture and gives the memory device context the target's coordinates.
     * @param memory a device context compatible with the target; neither is owned, both must outlive `End`.
     * @param area the part of the target that is painted.
     * @return FALSE when there is no memory for the picture: what is drawn reaches nothing then.
     */
    BOOL Begin(CDC& memory, CDC& target, const RECT& area);

    /** Brings the picture to the target and lets it go; does nothing without a picture. */
    void End();

  private:
    CDC* m_memory = nullptr;
    CDC* m_target = nullptr;
    CRect m_area = CRect(0, 0, 0, 0);
    CBitmap m_bitmap;
    HGDIOBJ m_former = nullptr; // no object of the framework's, which may forget it while somebody paints
};

/**
 * Painting without flicker: what is drawn into `Dc()` reaches the target when the object goes out of scope. Without
 * memory for the picture it is drawn straight onto the target, which flickers but shows something.
 */
class BufferedPaint
{
  public:
    /** @param target not owned, must outlive this object. @param area the part of it that is painted. */
    BufferedPaint(CDC& target, const RECT& area);
    /** Brings what was drawn to the target. */
    ~BufferedPaint();
    BufferedPaint(const BufferedPaint&) = delete;
    BufferedPaint& operator=(const BufferedPaint&) = delete;

    /** What to draw into, in the target's coordinates. */
    CDC& Dc() { return *m_dc; }

  private:
    CDC m_memory;
    PaintBuffer m_buffer;
    CDC* m_dc;
};
