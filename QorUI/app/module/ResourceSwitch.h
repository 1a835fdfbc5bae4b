#pragma once

#include "QorUIApp.h"

/**
 * Lets the framework look up resources in the library while an exported function builds a dialog.
 *
 * Afterwards, also when an exception leaves the scope, resources come from the host program: the handle is set, not
 * restored, so it names the host whatever it named before.
 */
class ResourceSwitch
{
  public:
    ResourceSwitch() { AfxGetModuleState()->m_hCurrentResourceHandle = g_QorUIApp.m_hInstance; }
    ~ResourceSwitch() { ToHost(); }
    ResourceSwitch(const ResourceSwitch&) = delete;
    ResourceSwitch& operator=(const ResourceSwitch&) = delete;

    /** For what a dialog starts before its `OnInitDialog` ends: from here on resources come from the host. */
    static void ToHost() { AfxGetModuleState()->m_hCurrentResourceHandle = g_QorUIApp.m_hHost; }
};
