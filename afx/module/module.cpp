/* Linked into every DLL that has an application object of its own: see <afx/state.h>. */

#include <afx.h>

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace
{
/* Constructed before every other static object of the DLL and destroyed after it. */
struct OwnModuleState
{
    AFX_MODULE_STATE state{TRUE, reinterpret_cast<HINSTANCE>(&__ImageBase)};
    AFX_MODULE_STATE* pPrevious = AfxSetModuleState(&state);

    void Leave()
    {
        if (AfxGetModuleState() == &state) {
            AfxSetModuleState(pPrevious);
        }
    }
    ~OwnModuleState() { Leave(); }
};
OwnModuleState g_own __attribute__((init_priority(101)));
} // namespace

AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState()
{
    return &g_own.state;
}

void AFXAPI AfxEndModuleStaticInit()
{
    g_own.Leave();
}

void AFXAPI AfxBeginModuleStaticTerm()
{
    g_own.pPrevious = AfxSetModuleState(&g_own.state);
}
