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

    /** For the end of a dialog's `OnInitDialog`: what is loaded while the dialog is open comes from the host. */
    static void ToHost() { AfxGetModuleState()->m_hCurrentResourceHandle = g_QorUIApp.m_hHost; }
};
