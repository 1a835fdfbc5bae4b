#include "Attach.h"

namespace
{

void EndApplication(CWinThread& app)
{
    app.ExitInstance();
    AfxWinTerm();
}

BOOL StartApplication(CWinThread& app, HINSTANCE inst)
{
    if (!AfxWinInit(inst, nullptr, ::GetCommandLineW(), 0)) {
        return FALSE;
    }
    if (!app.InitInstance()) {
        EndApplication(app);
        return FALSE;
    }
    return TRUE;
}

} // namespace

BOOL QorAttach(CWinThread& app, AFX_EXTENSION_MODULE& extension, HINSTANCE inst)
{
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        if (!StartApplication(app, inst)) {
            return FALSE;
        }
    }
    if (!AfxInitExtensionModule(extension, inst)) {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        EndApplication(app);
        return FALSE;
    }
    new CDynLinkLibrary(extension); // enters the host's list, which owns it until the module is taken out
    return TRUE;
}

void QorDetach(CWinThread& app, AFX_EXTENSION_MODULE& extension)
{
    if (!extension.bInitialized) {
        return;
    }
    {
        AFX_MANAGE_STATE(AfxGetStaticModuleState());
        EndApplication(app);
    }
    AfxTermExtensionModule(extension, TRUE);
    extension.bInitialized = FALSE;
}

void QorDetachThread(HINSTANCE inst)
{
    AFX_MANAGE_STATE(AfxGetStaticModuleState());
    AfxLockTempMaps();
    AfxUnlockTempMaps(TRUE);
    AfxTermThread(inst);
}
