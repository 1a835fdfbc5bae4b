#include "BufferedPaint.h"

#include <utility>

BOOL PaintBuffer::Begin(CDC& memory, CDC& target, const RECT& area)
{
    m_memory = &memory;
    m_target = &target;
    m_area = area;
    if (m_bitmap.CreateCompatibleBitmap(&target, m_area.Width(), m_area.Height())) {
        m_former = ::SelectObject(memory.m_hDC, m_bitmap);
    }
    memory.SetWindowOrg(m_area.left, m_area.top);
    return m_former != nullptr;
}

void PaintBuffer::End()
{
    if (m_former) {
        m_target->BitBlt(m_area.left, m_area.top, m_area.Width(), m_area.Height(), m_memory, m_area.left, m_area.top,
                         SRCCOPY);
        ::SelectObject(m_memory->m_hDC, std::exchange(m_former, nullptr));
    }
}

BufferedPaint::BufferedPaint(CDC& target, const RECT& area) : m_dc(&target)
{
    if (m_memory.CreateCompatibleDC(&target) && m_buffer.Begin(m_memory, target, area)) {
        m_dc = &m_memory;
    }
}

BufferedPaint::~BufferedPaint()
{
    m_buffer.End();
}
