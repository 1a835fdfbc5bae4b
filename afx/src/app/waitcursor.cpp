#include <afxwin.h>

namespace
{
/** The hour-glass of threads whose module has no application object. */
struct WaitCursor
{
    int nCount = 0;
    HCURSOR hRestore = nullptr;

    void Do(int nCode)
    {
        nCount += nCode;
        if (nCount <= 0) {
            nCount = 0;
            ::SetCursor(hRestore);
            return;
        }
        const HCURSOR hPrevious = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        if (nCode > 0 && nCount == 1) {
            hRestore = hPrevious;
        }
    }
};
} // namespace

void CWinApp::DoWaitCursor(int nCode)
{
    WaitCursor cursor = {m_nWaitCursorCount, m_hcurWaitCursorRestore};
    cursor.Do(nCode);
    m_nWaitCursorCount = cursor.nCount;
    m_hcurWaitCursorRestore = cursor.hRestore;
}

void AfxDoWaitCursor(int nCode)
{
    static thread_local WaitCursor cursor;
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->DoWaitCursor(nCode);
    } else {
        cursor.Do(nCode);
    }
}

CWaitCursor::CWaitCursor()
{
    AfxDoWaitCursor(1);
}

CWaitCursor::~CWaitCursor()
{
    AfxDoWaitCursor(-1);
}

void CWaitCursor::Restore()
{
    AfxDoWaitCursor(0);
}
