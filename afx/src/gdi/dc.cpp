#include "bothcontexts.h"
#include "core/adopt.h"
#include "core/nullthis.h"
#include "handlemaps.h"
#include "handles.h"

#include <afxwin.h>

IMPLEMENT_DYNCREATE(CDC, CObject)

CDC::~CDC()
{
    if (m_hDC) {
        ::DeleteDC(Detach());
    }
}

CDC* PASCAL CDC::FromHandle(HDC hDC)
{
    return AfxDcMap::FromHandle(hDC);
}

void PASCAL CDC::DeleteTempMap()
{
    return AfxDcMap::DeleteTemp();
}

BOOL CDC::Attach(HDC hDC)
{
    if (!hDC || m_hDC) {
        return FALSE;
    }
    m_hDC = hDC;
    m_hAttribDC = hDC;
    m_bPrinting = ::GetDeviceCaps(hDC, TECHNOLOGY) == DT_RASPRINTER;
    AfxDcMap::SetPermanent(hDC, this);
    return TRUE;
}

HDC CDC::Detach()
{
    HDC hDC = m_hDC;
    if (hDC) {
        AfxDcMap::Remove(hDC);
    }
    m_hDC = nullptr;
    m_hAttribDC = nullptr;
    m_bPrinting = FALSE;
    return hDC;
}

CDC::operator HDC() const
{
    return m_hDC;
}

HDC CDC::GetSafeHdc() const
{
    return AfxIsNullThis(this) ? nullptr : m_hDC;
}

CWnd* CDC::GetWindow() const
{
    HWND hWnd = m_hDC ? ::WindowFromDC(m_hDC) : nullptr;
    return hWnd ? CWnd::FromHandle(hWnd) : nullptr;
}

BOOL CDC::IsPrinting() const
{
    return m_bPrinting;
}

void CDC::SetAttribDC(HDC hDC)
{
    m_hAttribDC = hDC;
}

void CDC::SetOutputDC(HDC hDC)
{
    m_hDC = hDC;
}

void CDC::ReleaseAttribDC()
{
    m_hAttribDC = nullptr;
}

void CDC::ReleaseOutputDC()
{
    m_hDC = nullptr;
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
{
    return AfxAdopt(*this,
                    ::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
{
    return AfxAdopt(*this,
                    ::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    // An empty object is not the screen: it is a failed call further up.
    if (pDC && !pDC->m_hDC) {
        return FALSE;
    }
    return AfxAdopt(*this, ::CreateCompatibleDC(gdi::HandleOf(pDC)));
}

BOOL CDC::DeleteDC()
{
    HDC hDC = Detach();
    return hDC && ::DeleteDC(hDC);
}

int CDC::GetDeviceCaps(int nIndex) const
{
    return ::GetDeviceCaps(m_hAttribDC, nIndex);
}

BOOL CDC::ResetDC(const DEVMODE* lpDevMode)
{
    return m_hAttribDC && lpDevMode && ::ResetDC(m_hAttribDC, lpDevMode);
}

int CDC::SaveDC()
{
    const int nSaved = m_hAttribDC ? ::SaveDC(m_hAttribDC) : 0;
    if (!m_hDC || m_hDC == m_hAttribDC) {
        return nSaved;
    }
    // Both are at the same depth; -1 takes back the newest of each.
    return ::SaveDC(m_hDC) != 0 ? -1 : 0;
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    return gdi::OnBoth(*this, FALSE, [=](HDC hDC) { return ::RestoreDC(hDC, nSavedDC); });
}

int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData)
{
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}

int CDC::Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize, LPSTR lpszOutputData)
{
    return ::ExtEscape(m_hDC, nEscape, nInputSize, lpszInputData, nOutputSize, lpszOutputData);
}

int CDC::DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData)
{
    return ::DrawEscape(m_hDC, nEscape, nInputSize, lpszInputData);
}

int CDC::StartDoc(LPCTSTR lpszDocName)
{
    DOCINFO info = {};
    info.cbSize = sizeof(info);
    info.lpszDocName = lpszDocName;
    return StartDoc(&info);
}

int CDC::StartDoc(LPDOCINFO lpDocInfo)
{
    return lpDocInfo ? ::StartDoc(m_hDC, lpDocInfo) : SP_ERROR;
}

int CDC::StartPage()
{
    return ::StartPage(m_hDC);
}

int CDC::EndPage()
{
    return ::EndPage(m_hDC);
}

int CDC::SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int))
{
    return ::SetAbortProc(m_hDC, lpfn);
}

int CDC::AbortDoc()
{
    return ::AbortDoc(m_hDC);
}

int CDC::EndDoc()
{
    return ::EndDoc(m_hDC);
}

BOOL CDC::PlayMetaFile(HMETAFILE hMF)
{
    return ::PlayMetaFile(m_hDC, hMF);
}

BOOL CDC::PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds)
{
    return ::PlayEnhMetaFile(m_hDC, hEnhMetaFile, lpBounds);
}

BOOL CDC::AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData)
{
    return ::GdiComment(m_hDC, nDataSize, pCommentData);
}
