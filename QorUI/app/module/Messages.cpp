#include "Messages.h"

const UINT WM_QOR_TASKBARCREATED = ::RegisterWindowMessageW(L"TaskbarCreated");
