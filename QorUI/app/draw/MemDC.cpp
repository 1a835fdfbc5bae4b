#include "MemDC.h"

CMemDC::CMemDC(CDC* target) : m_hOldBitmap(nullptr), m_pTarget(target), m_rect(0, 0, 0, 0)
{
    if (!target || !CreateCompatibleDC(target)) {
        return;
    }
    target->GetClipBox(m_rect);
    if (m_bitmap.CreateCompatibleBitmap(target, m_rect.Width(), m_rect.Height())) {
        m_hOldBitmap = ::SelectObject(m_hDC, m_bitmap);
    }
    SetWindowOrg(m_rect.left, m_rect.top);
}

CMemDC::~CMemDC()
{
    if (m_hOldBitmap) {
        m_pTarget->BitBlt(m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(), this, m_rect.left, m_rect.top,
                          SRCCOPY);
        ::SelectObject(m_hDC, m_hOldBitmap);
    }
}
