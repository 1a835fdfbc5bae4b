#include "UpdatedTarget.h"

BEGIN_MESSAGE_MAP(UpdatedTarget, CWnd)
    ON_COMMAND(kCommand, &UpdatedTarget::OnRun)
    ON_UPDATE_COMMAND_UI(kCommand, &UpdatedTarget::OnUpdate)
END_MESSAGE_MAP()
