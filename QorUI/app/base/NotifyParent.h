#pragma once

#include <QorUI/app/module/QorUIDef.h>

/** Sends the parent of a control `WM_NOTIFY` with a code and nothing more. Does nothing without a window or a parent.
 */
void QorNotifyParent(const CWnd& control, UINT code);
