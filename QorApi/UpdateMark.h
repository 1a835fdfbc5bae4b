#pragma once

#include <common/Owner.h>

/** Marks an update check of this store as running, for all processes of the user's session, as long as it lives. */
class UpdateMark
{
  public:
    UpdateMark();

    /** ERROR_SUCCESS; ERROR_BUSY when another check is running. */
    DWORD GetStatus() const { return m_status; }

  private:
    own::KernelObject m_event;
    DWORD m_status;
};

/** Whether an update check of this store is running in any process of the user's session. */
bool IsUpdateRunning();
