#pragma once

#include <windows.h>

/** A dialog template in a global memory block, locked as long as this object lives. */
class LockedTemplate
{
  public:
    /** @param hTemplate may be null */
    explicit LockedTemplate(HGLOBAL hTemplate)
        : m_hTemplate(hTemplate),
          m_pTemplate(hTemplate ? static_cast<LPCDLGTEMPLATE>(::GlobalLock(hTemplate)) : nullptr)
    {
    }
    ~LockedTemplate()
    {
        if (m_pTemplate) {
            ::GlobalUnlock(m_hTemplate);
        }
    }
    LockedTemplate(const LockedTemplate&) = delete;
    LockedTemplate& operator=(const LockedTemplate&) = delete;
    LPCDLGTEMPLATE Get() const { return m_pTemplate; }

  private:
    HGLOBAL m_hTemplate;
    LPCDLGTEMPLATE m_pTemplate;
};
