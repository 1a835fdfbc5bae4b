#include "MemDC.h"

CMemDC::CMemDC(CDC* target)
{
    if (target && CreateCompatibleDC(target)) {
        CRect area(0, 0, 0, 0);
        target->GetClipBox(area);
        m_buffer.Begin(*this, *target, area);
    }
}

CMemDC::~CMemDC()
{
    m_buffer.End();
}
