#pragma once

/** @file
 * Sample data.
 */

#include <QorApi/QorApiDef.h>

/**
 * Fills the store with sample users, tasks, snapshots, a registry list and settings; what is there already stays. Needs
 * a logged-on user with all rights.
 */
QORAPI_API DWORD QorFillDemoStore();
