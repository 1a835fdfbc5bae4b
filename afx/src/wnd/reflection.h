#pragma once

#include <afxwin.h>

/** The registered message by which drag list boxes talk to their parent. */
extern const UINT kDragListMessage;
