#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * Registers a window class without cursor, brush and icon, as the framework does.
 * @param style class style.
 * @return its name, or null when the system refuses it (the framework throws then).
 */
LPCWSTR QorRegisterWndClass(UINT style);
