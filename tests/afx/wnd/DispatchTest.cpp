#include <gtest/gtest.h>

#include <afxwin.h>

#include <sstream>
#include <string>

// Every window message macro, with a handler that writes down what it was called with.

namespace
{
constexpr WPARAM kW = 0x00050003;
constexpr LPARAM kL = 0x00090007;
constexpr int kAnswer = 11;

/** Writes down arguments: numbers as they are, W or L for an object or pointer that stands for that parameter. */
class ArgumentLog
{
  public:
    template <class... Args>
    void Call(const char* name, Args... args)
    {
        m_text << name;
        (Write(args), ...);
    }
    std::string Take()
    {
        std::string text = m_text.str();
        m_text.str("");
        return text;
    }

  private:
    void Write(CPoint point) { m_text << " (" << point.x << "," << point.y << ")"; }
    void Write(CWnd* p) { Handle(p ? p->m_hWnd : nullptr); }
    void Write(CListBox* p) { Handle(static_cast<CWnd*>(p)->m_hWnd); }
    void Write(CScrollBar* p) { Handle(static_cast<CWnd*>(p)->m_hWnd); }
    void Write(CDC* p) { Handle(p->m_hDC); }
    void Write(CMenu* p) { Handle(p->m_hMenu); }
    template <class T>
    void Write(T* p)
    {
        Handle(p);
    }
    template <class T>
    requires std::is_integral_v<T>
    void Write(T value) { m_text << " " << static_cast<long long>(value); }
    void Handle(const volatile void* p)
    {
        const auto value = reinterpret_cast<LPARAM>(p);
        m_text << (value == static_cast<LPARAM>(kW) ? " W" : value == kL ? " L" : " ?");
    }

    std::ostringstream m_text;
};

class RecordingWnd : public CWnd
{
  public:
    ArgumentLog m_log;

  protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct)
    {
        m_log.Call("OnCreate", lpCreateStruct);
        return kAnswer;
    }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct)
    {
        m_log.Call("OnNcCreate", lpCreateStruct);
        return kAnswer;
    }
    afx_msg void OnDestroy() { m_log.Call("OnDestroy"); }
    afx_msg void OnNcDestroy() { m_log.Call("OnNcDestroy"); }
    afx_msg void OnMove(int x, int y) { m_log.Call("OnMove", x, y); }
    afx_msg void OnSize(UINT nType, int cx, int cy) { m_log.Call("OnSize", nType, cx, cy); }
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized)
    {
        m_log.Call("OnActivate", nState, pWndOther, bMinimized);
    }
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID) { m_log.Call("OnActivateApp", bActive, dwThreadID); }
    afx_msg void OnSetFocus(CWnd* pOldWnd) { m_log.Call("OnSetFocus", pOldWnd); }
    afx_msg void OnKillFocus(CWnd* pNewWnd) { m_log.Call("OnKillFocus", pNewWnd); }
    afx_msg void OnEnable(BOOL bEnable) { m_log.Call("OnEnable", bEnable); }
    afx_msg void OnPaint() { m_log.Call("OnPaint"); }
    afx_msg void OnClose() { m_log.Call("OnClose"); }
    afx_msg BOOL OnQueryEndSession()
    {
        m_log.Call("OnQueryEndSession");
        return kAnswer;
    }
    afx_msg void OnEndSession(BOOL bEnding) { m_log.Call("OnEndSession", bEnding); }
    afx_msg BOOL OnQueryOpen()
    {
        m_log.Call("OnQueryOpen");
        return kAnswer;
    }
    afx_msg BOOL OnEraseBkgnd(CDC* pDC)
    {
        m_log.Call("OnEraseBkgnd", pDC);
        return kAnswer;
    }
    afx_msg void OnSysColorChange() { m_log.Call("OnSysColorChange"); }
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus) { m_log.Call("OnShowWindow", bShow, nStatus); }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
    {
        m_log.Call("OnCtlColor", pDC, pWnd, nCtlColor);
        return reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(kAnswer));
    }
    afx_msg void OnWinIniChange(LPCTSTR lpszSection) { m_log.Call("OnWinIniChange", lpszSection); }
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection)
    {
        m_log.Call("OnSettingChange", uFlags, lpszSection);
    }
    afx_msg void OnDevModeChange(LPTSTR lpDeviceName) { m_log.Call("OnDevModeChange", lpDeviceName); }
    afx_msg void OnFontChange() { m_log.Call("OnFontChange"); }
    afx_msg void OnTimeChange() { m_log.Call("OnTimeChange"); }
    afx_msg void OnCancelMode() { m_log.Call("OnCancelMode"); }
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
    {
        m_log.Call("OnSetCursor", pWnd, nHitTest, message);
        return kAnswer;
    }
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message)
    {
        m_log.Call("OnMouseActivate", pDesktopWnd, nHitTest, message);
        return kAnswer;
    }
    afx_msg void OnChildActivate() { m_log.Call("OnChildActivate"); }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI) { m_log.Call("OnGetMinMaxInfo", lpMMI); }
    afx_msg void OnIconEraseBkgnd(CDC* pDC) { m_log.Call("OnIconEraseBkgnd", pDC); }
    afx_msg void OnSpoolerStatus(UINT nStatus, UINT nJobs) { m_log.Call("OnSpoolerStatus", nStatus, nJobs); }
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
    {
        m_log.Call("OnDrawItem", nIDCtl, lpDrawItemStruct);
    }
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
    {
        m_log.Call("OnMeasureItem", nIDCtl, lpMeasureItemStruct);
    }
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct)
    {
        m_log.Call("OnDeleteItem", nIDCtl, lpDeleteItemStruct);
    }
    afx_msg int OnCharToItem(UINT nChar, CListBox* pListBox, UINT nIndex)
    {
        m_log.Call("OnCharToItem", nChar, pListBox, nIndex);
        return kAnswer;
    }
    afx_msg int OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex)
    {
        m_log.Call("OnVKeyToItem", nKey, pListBox, nIndex);
        return kAnswer;
    }
    afx_msg HCURSOR OnQueryDragIcon()
    {
        m_log.Call("OnQueryDragIcon");
        return reinterpret_cast<HCURSOR>(static_cast<INT_PTR>(kAnswer));
    }
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct)
    {
        m_log.Call("OnCompareItem", nIDCtl, lpCompareItemStruct);
        return kAnswer;
    }
    afx_msg void OnCompacting(UINT nCpuTime) { m_log.Call("OnCompacting", nCpuTime); }
    afx_msg BOOL OnCopyData(CWnd* pWnd, COPYDATASTRUCT* pCopyDataStruct)
    {
        m_log.Call("OnCopyData", pWnd, pCopyDataStruct);
        return kAnswer;
    }
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp)
    {
        m_log.Call("OnNcCalcSize", bCalcValidRects, lpncsp);
    }
    afx_msg LRESULT OnNcHitTest(CPoint point)
    {
        m_log.Call("OnNcHitTest", point);
        return kAnswer;
    }
    afx_msg void OnNcPaint() { m_log.Call("OnNcPaint"); }
    afx_msg BOOL OnNcActivate(BOOL bActive)
    {
        m_log.Call("OnNcActivate", bActive);
        return kAnswer;
    }
    afx_msg UINT OnGetDlgCode()
    {
        m_log.Call("OnGetDlgCode");
        return kAnswer;
    }
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point) { m_log.Call("OnNcMouseMove", nHitTest, point); }
    afx_msg void OnNcMouseHover(UINT nHitTest, CPoint point) { m_log.Call("OnNcMouseHover", nHitTest, point); }
    afx_msg void OnNcMouseLeave() { m_log.Call("OnNcMouseLeave"); }
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point) { m_log.Call("OnNcLButtonDown", nHitTest, point); }
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point) { m_log.Call("OnNcLButtonUp", nHitTest, point); }
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point) { m_log.Call("OnNcLButtonDblClk", nHitTest, point); }
    afx_msg void OnNcRButtonDown(UINT nHitTest, CPoint point) { m_log.Call("OnNcRButtonDown", nHitTest, point); }
    afx_msg void OnNcRButtonUp(UINT nHitTest, CPoint point) { m_log.Call("OnNcRButtonUp", nHitTest, point); }
    afx_msg void OnNcRButtonDblClk(UINT nHitTest, CPoint point) { m_log.Call("OnNcRButtonDblClk", nHitTest, point); }
    afx_msg void OnNcMButtonDown(UINT nHitTest, CPoint point) { m_log.Call("OnNcMButtonDown", nHitTest, point); }
    afx_msg void OnNcMButtonUp(UINT nHitTest, CPoint point) { m_log.Call("OnNcMButtonUp", nHitTest, point); }
    afx_msg void OnNcMButtonDblClk(UINT nHitTest, CPoint point) { m_log.Call("OnNcMButtonDblClk", nHitTest, point); }
    afx_msg void OnNcXButtonDown(UINT nHitTest, UINT nButton, CPoint point)
    {
        m_log.Call("OnNcXButtonDown", nHitTest, nButton, point);
    }
    afx_msg void OnNcXButtonUp(UINT nHitTest, UINT nButton, CPoint point)
    {
        m_log.Call("OnNcXButtonUp", nHitTest, nButton, point);
    }
    afx_msg void OnNcXButtonDblClk(UINT nHitTest, UINT nButton, CPoint point)
    {
        m_log.Call("OnNcXButtonDblClk", nHitTest, nButton, point);
    }
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) { m_log.Call("OnKeyDown", nChar, nRepCnt, nFlags); }
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags) { m_log.Call("OnKeyUp", nChar, nRepCnt, nFlags); }
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) { m_log.Call("OnChar", nChar, nRepCnt, nFlags); }
    afx_msg void OnDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags) { m_log.Call("OnDeadChar", nChar, nRepCnt, nFlags); }
    afx_msg void OnUniChar(UINT nChar, UINT nRepCnt, UINT nFlags) { m_log.Call("OnUniChar", nChar, nRepCnt, nFlags); }
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
    {
        m_log.Call("OnSysKeyDown", nChar, nRepCnt, nFlags);
    }
    afx_msg void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags) { m_log.Call("OnSysKeyUp", nChar, nRepCnt, nFlags); }
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags) { m_log.Call("OnSysChar", nChar, nRepCnt, nFlags); }
    afx_msg void OnSysDeadChar(UINT nChar, UINT nRepCnt, UINT nFlags)
    {
        m_log.Call("OnSysDeadChar", nChar, nRepCnt, nFlags);
    }
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam) { m_log.Call("OnSysCommand", nID, lParam); }
    afx_msg void OnTCard(UINT idAction, DWORD dwActionData) { m_log.Call("OnTCard", idAction, dwActionData); }
    afx_msg void OnTimer(UINT_PTR nIDEvent) { m_log.Call("OnTimer", nIDEvent); }
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
    {
        m_log.Call("OnHScroll", nSBCode, nPos, pScrollBar);
    }
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
    {
        m_log.Call("OnVScroll", nSBCode, nPos, pScrollBar);
    }
    afx_msg void OnInitMenu(CMenu* pMenu) { m_log.Call("OnInitMenu", pMenu); }
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu)
    {
        m_log.Call("OnInitMenuPopup", pPopupMenu, nIndex, bSysMenu);
    }
    afx_msg void OnUnInitMenuPopup(CMenu* pPopupMenu, UINT nFlags)
    {
        m_log.Call("OnUnInitMenuPopup", pPopupMenu, nFlags);
    }
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu)
    {
        m_log.Call("OnMenuSelect", nItemID, nFlags, hSysMenu);
    }
    afx_msg LRESULT OnMenuChar(UINT nChar, UINT nFlags, CMenu* pMenu)
    {
        m_log.Call("OnMenuChar", nChar, nFlags, pMenu);
        return kAnswer;
    }
    afx_msg UINT OnMenuDrag(UINT nPos, CMenu* pMenu)
    {
        m_log.Call("OnMenuDrag", nPos, pMenu);
        return kAnswer;
    }
    afx_msg UINT OnMenuGetObject(MENUGETOBJECTINFO* pMenuGetObjectInfo)
    {
        m_log.Call("OnMenuGetObject", pMenuGetObjectInfo);
        return kAnswer;
    }
    afx_msg void OnMenuRButtonUp(UINT nPos, CMenu* pMenu) { m_log.Call("OnMenuRButtonUp", nPos, pMenu); }
    afx_msg void OnEnterIdle(UINT nWhy, CWnd* pWho) { m_log.Call("OnEnterIdle", nWhy, pWho); }
    afx_msg void OnEnterMenuLoop(BOOL bIsTrackPopupMenu) { m_log.Call("OnEnterMenuLoop", bIsTrackPopupMenu); }
    afx_msg void OnExitMenuLoop(BOOL bIsTrackPopupMenu) { m_log.Call("OnExitMenuLoop", bIsTrackPopupMenu); }
    afx_msg void OnNextMenu(UINT nKey, LPMDINEXTMENU lpMdiNextMenu) { m_log.Call("OnNextMenu", nKey, lpMdiNextMenu); }
    afx_msg void OnMouseMove(UINT nFlags, CPoint point) { m_log.Call("OnMouseMove", nFlags, point); }
    afx_msg void OnMouseHover(UINT nFlags, CPoint point) { m_log.Call("OnMouseHover", nFlags, point); }
    afx_msg void OnMouseLeave() { m_log.Call("OnMouseLeave"); }
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt)
    {
        m_log.Call("OnMouseWheel", nFlags, zDelta, pt);
        return kAnswer;
    }
    afx_msg void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt)
    {
        m_log.Call("OnMouseHWheel", nFlags, zDelta, pt);
    }
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point) { m_log.Call("OnLButtonDown", nFlags, point); }
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point) { m_log.Call("OnLButtonUp", nFlags, point); }
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point) { m_log.Call("OnLButtonDblClk", nFlags, point); }
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point) { m_log.Call("OnRButtonDown", nFlags, point); }
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point) { m_log.Call("OnRButtonUp", nFlags, point); }
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point) { m_log.Call("OnRButtonDblClk", nFlags, point); }
    afx_msg void OnMButtonDown(UINT nFlags, CPoint point) { m_log.Call("OnMButtonDown", nFlags, point); }
    afx_msg void OnMButtonUp(UINT nFlags, CPoint point) { m_log.Call("OnMButtonUp", nFlags, point); }
    afx_msg void OnMButtonDblClk(UINT nFlags, CPoint point) { m_log.Call("OnMButtonDblClk", nFlags, point); }
    afx_msg void OnXButtonDown(UINT nFlags, UINT nButton, CPoint point)
    {
        m_log.Call("OnXButtonDown", nFlags, nButton, point);
    }
    afx_msg void OnXButtonUp(UINT nFlags, UINT nButton, CPoint point)
    {
        m_log.Call("OnXButtonUp", nFlags, nButton, point);
    }
    afx_msg void OnXButtonDblClk(UINT nFlags, UINT nButton, CPoint point)
    {
        m_log.Call("OnXButtonDblClk", nFlags, nButton, point);
    }
    afx_msg void OnParentNotify(UINT message, LPARAM lParam) { m_log.Call("OnParentNotify", message, lParam); }
    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd)
    {
        m_log.Call("OnMDIActivate", bActivate, pActivateWnd, pDeactivateWnd);
    }
    afx_msg void OnRenderFormat(UINT nFormat) { m_log.Call("OnRenderFormat", nFormat); }
    afx_msg void OnRenderAllFormats() { m_log.Call("OnRenderAllFormats"); }
    afx_msg void OnDestroyClipboard() { m_log.Call("OnDestroyClipboard"); }
    afx_msg void OnDrawClipboard() { m_log.Call("OnDrawClipboard"); }
    afx_msg void OnClipboardUpdate() { m_log.Call("OnClipboardUpdate"); }
    afx_msg void OnPaintClipboard(CWnd* pClipAppWnd, HGLOBAL hPaintStruct)
    {
        m_log.Call("OnPaintClipboard", pClipAppWnd, hPaintStruct);
    }
    afx_msg void OnVScrollClipboard(CWnd* pClipAppWnd, UINT nSBCode, UINT nPos)
    {
        m_log.Call("OnVScrollClipboard", pClipAppWnd, nSBCode, nPos);
    }
    afx_msg void OnHScrollClipboard(CWnd* pClipAppWnd, UINT nSBCode, UINT nPos)
    {
        m_log.Call("OnHScrollClipboard", pClipAppWnd, nSBCode, nPos);
    }
    afx_msg void OnSizeClipboard(CWnd* pClipAppWnd, HGLOBAL hRect)
    {
        m_log.Call("OnSizeClipboard", pClipAppWnd, hRect);
    }
    afx_msg void OnAskCbFormatName(UINT nMaxCount, LPTSTR lpszString)
    {
        m_log.Call("OnAskCbFormatName", nMaxCount, lpszString);
    }
    afx_msg void OnChangeCbChain(HWND hWndRemove, HWND hWndAfter)
    {
        m_log.Call("OnChangeCbChain", hWndRemove, hWndAfter);
    }
    afx_msg BOOL OnQueryNewPalette()
    {
        m_log.Call("OnQueryNewPalette");
        return kAnswer;
    }
    afx_msg void OnPaletteChanged(CWnd* pFocusWnd) { m_log.Call("OnPaletteChanged", pFocusWnd); }
    afx_msg void OnPaletteIsChanging(CWnd* pRealizeWnd) { m_log.Call("OnPaletteIsChanging", pRealizeWnd); }
    afx_msg void OnDropFiles(HDROP hDropInfo) { m_log.Call("OnDropFiles", hDropInfo); }
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos) { m_log.Call("OnWindowPosChanging", lpwndpos); }
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos) { m_log.Call("OnWindowPosChanged", lpwndpos); }
    afx_msg void OnExitSizeMove() { m_log.Call("OnExitSizeMove"); }
    afx_msg void OnEnterSizeMove() { m_log.Call("OnEnterSizeMove"); }
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect) { m_log.Call("OnSizing", nSide, lpRect); }
    afx_msg void OnMoving(UINT nSide, LPRECT lpRect) { m_log.Call("OnMoving", nSide, lpRect); }
    afx_msg void OnCaptureChanged(CWnd* pWnd) { m_log.Call("OnCaptureChanged", pWnd); }
    afx_msg BOOL OnDeviceChange(UINT nEventType, DWORD_PTR dwData)
    {
        m_log.Call("OnDeviceChange", nEventType, dwData);
        return kAnswer;
    }
    afx_msg UINT OnPowerBroadcast(UINT nPowerEvent, LPARAM nEventData)
    {
        m_log.Call("OnPowerBroadcast", nPowerEvent, nEventData);
        return kAnswer;
    }
    afx_msg void OnUserChanged() { m_log.Call("OnUserChanged"); }
    afx_msg void OnInputLangChange(UINT nCharSet, UINT nLocaleId)
    {
        m_log.Call("OnInputLangChange", nCharSet, nLocaleId);
    }
    afx_msg void OnInputLangChangeRequest(UINT nFlags, UINT nLocaleId)
    {
        m_log.Call("OnInputLangChangeRequest", nFlags, nLocaleId);
    }
    afx_msg void OnRawInput(UINT nInputCode, HRAWINPUT hRawInput) { m_log.Call("OnRawInput", nInputCode, hRawInput); }
    afx_msg void OnInputDeviceChange(unsigned short uFlag, HANDLE hDevice)
    {
        m_log.Call("OnInputDeviceChange", uFlag, hDevice);
    }
    afx_msg void OnAppCommand(CWnd* pWnd, UINT nCmd, UINT nDevice, UINT nKey)
    {
        m_log.Call("OnAppCommand", pWnd, nCmd, nDevice, nKey);
    }
    afx_msg BOOL OnHelpInfo(HELPINFO* pHelpInfo)
    {
        m_log.Call("OnHelpInfo", pHelpInfo);
        return kAnswer;
    }
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos) { m_log.Call("OnContextMenu", pWnd, pos); }
    afx_msg void OnStyleChanged(int nStyleType, LPSTYLESTRUCT lpStyleStruct)
    {
        m_log.Call("OnStyleChanged", nStyleType, lpStyleStruct);
    }
    afx_msg void OnStyleChanging(int nStyleType, LPSTYLESTRUCT lpStyleStruct)
    {
        m_log.Call("OnStyleChanging", nStyleType, lpStyleStruct);
    }
    afx_msg void OnHotKey(UINT nHotKeyId, UINT nKey1, UINT nKey2) { m_log.Call("OnHotKey", nHotKeyId, nKey1, nKey2); }
    afx_msg void OnChangeUIState(UINT nAction, UINT nUIElement) { m_log.Call("OnChangeUIState", nAction, nUIElement); }
    afx_msg void OnUpdateUIState(UINT nAction, UINT nUIElement) { m_log.Call("OnUpdateUIState", nAction, nUIElement); }
    afx_msg UINT OnQueryUIState()
    {
        m_log.Call("OnQueryUIState");
        return kAnswer;
    }
    afx_msg void OnSessionChange(UINT nSessionState, UINT nId) { m_log.Call("OnSessionChange", nSessionState, nId); }
    afx_msg LRESULT OnThemeChanged()
    {
        m_log.Call("OnThemeChanged");
        return kAnswer;
    }
    afx_msg void OnCompositionChanged() { m_log.Call("OnCompositionChanged"); }
    afx_msg void OnNcRenderingChanged(BOOL bIsRendering) { m_log.Call("OnNcRenderingChanged", bIsRendering); }
    afx_msg void OnColorizationColorChanged(DWORD dwColorizationColor, BOOL bOpacity)
    {
        m_log.Call("OnColorizationColorChanged", dwColorizationColor, bOpacity);
    }
    afx_msg void OnWindowMaximizedChanged(BOOL bIsMaximized) { m_log.Call("OnWindowMaximizedChanged", bIsMaximized); }
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor)
    {
        m_log.Call("CtlColor", pDC, nCtlColor);
        return reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(kAnswer));
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT p) { m_log.Call("DrawItem", p); }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT p) { m_log.Call("MeasureItem", p); }
    afx_msg void DeleteItem(LPDELETEITEMSTRUCT p) { m_log.Call("DeleteItem", p); }
    afx_msg int CharToItem(UINT nKey, UINT nIndex)
    {
        m_log.Call("CharToItem", nKey, nIndex);
        return kAnswer;
    }
    afx_msg int VKeyToItem(UINT nKey, UINT nIndex)
    {
        m_log.Call("VKeyToItem", nKey, nIndex);
        return kAnswer;
    }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT p)
    {
        m_log.Call("CompareItem", p);
        return kAnswer;
    }
    afx_msg void HScroll(UINT nSBCode, UINT nPos) { m_log.Call("HScroll", nSBCode, nPos); }
    afx_msg void VScroll(UINT nSBCode, UINT nPos) { m_log.Call("VScroll", nSBCode, nPos); }
    afx_msg void ParentNotify(UINT message, LPARAM lParam) { m_log.Call("ParentNotify", message, lParam); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(RecordingWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_NCCREATE()
    ON_WM_DESTROY()
    ON_WM_NCDESTROY()
    ON_WM_MOVE()
    ON_WM_SIZE()
    ON_WM_ACTIVATE()
    ON_WM_ACTIVATEAPP()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_ENABLE()
    ON_WM_PAINT()
    ON_WM_CLOSE()
    ON_WM_QUERYENDSESSION()
    ON_WM_ENDSESSION()
    ON_WM_QUERYOPEN()
    ON_WM_ERASEBKGND()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SHOWWINDOW()
    ON_WM_CTLCOLOR()
    ON_WM_SETTINGCHANGE()
    ON_WM_DEVMODECHANGE()
    ON_WM_FONTCHANGE()
    ON_WM_TIMECHANGE()
    ON_WM_CANCELMODE()
    ON_WM_SETCURSOR()
    ON_WM_MOUSEACTIVATE()
    ON_WM_CHILDACTIVATE()
    ON_WM_GETMINMAXINFO()
    ON_WM_ICONERASEBKGND()
    ON_WM_SPOOLERSTATUS()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DELETEITEM()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_QUERYDRAGICON()
    ON_WM_COMPAREITEM()
    ON_WM_COMPACTING()
    ON_WM_COPYDATA()
    ON_WM_NCCALCSIZE()
    ON_WM_NCHITTEST()
    ON_WM_NCPAINT()
    ON_WM_NCACTIVATE()
    ON_WM_GETDLGCODE()
    ON_WM_NCMOUSEMOVE()
    ON_WM_NCMOUSEHOVER()
    ON_WM_NCMOUSELEAVE()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCRBUTTONDOWN()
    ON_WM_NCRBUTTONUP()
    ON_WM_NCRBUTTONDBLCLK()
    ON_WM_NCMBUTTONDOWN()
    ON_WM_NCMBUTTONUP()
    ON_WM_NCMBUTTONDBLCLK()
    ON_WM_NCXBUTTONDOWN()
    ON_WM_NCXBUTTONUP()
    ON_WM_NCXBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_CHAR()
    ON_WM_DEADCHAR()
    ON_WM_UNICHAR()
    ON_WM_SYSKEYDOWN()
    ON_WM_SYSKEYUP()
    ON_WM_SYSCHAR()
    ON_WM_SYSDEADCHAR()
    ON_WM_SYSCOMMAND()
    ON_WM_TCARD()
    ON_WM_TIMER()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_INITMENU()
    ON_WM_INITMENUPOPUP()
    ON_WM_UNINITMENUPOPUP()
    ON_WM_MENUSELECT()
    ON_WM_MENUCHAR()
    ON_WM_MENUDRAG()
    ON_WM_MENUGETOBJECT()
    ON_WM_MENURBUTTONUP()
    ON_WM_ENTERIDLE()
    ON_WM_ENTERMENULOOP()
    ON_WM_EXITMENULOOP()
    ON_WM_NEXTMENU()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEHOVER()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_MOUSEHWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_RBUTTONDBLCLK()
    ON_WM_MBUTTONDOWN()
    ON_WM_MBUTTONUP()
    ON_WM_MBUTTONDBLCLK()
    ON_WM_XBUTTONDOWN()
    ON_WM_XBUTTONUP()
    ON_WM_XBUTTONDBLCLK()
    ON_WM_PARENTNOTIFY()
    ON_WM_MDIACTIVATE()
    ON_WM_RENDERFORMAT()
    ON_WM_RENDERALLFORMATS()
    ON_WM_DESTROYCLIPBOARD()
    ON_WM_DRAWCLIPBOARD()
    ON_WM_CLIPBOARDUPDATE()
    ON_WM_PAINTCLIPBOARD()
    ON_WM_VSCROLLCLIPBOARD()
    ON_WM_HSCROLLCLIPBOARD()
    ON_WM_SIZECLIPBOARD()
    ON_WM_ASKCBFORMATNAME()
    ON_WM_CHANGECBCHAIN()
    ON_WM_QUERYNEWPALETTE()
    ON_WM_PALETTECHANGED()
    ON_WM_PALETTEISCHANGING()
    ON_WM_DROPFILES()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_EXITSIZEMOVE()
    ON_WM_ENTERSIZEMOVE()
    ON_WM_SIZING()
    ON_WM_MOVING()
    ON_WM_CAPTURECHANGED()
    ON_WM_DEVICECHANGE()
    ON_WM_POWERBROADCAST()
    ON_WM_USERCHANGED()
    ON_WM_INPUTLANGCHANGE()
    ON_WM_INPUTLANGCHANGEREQUEST()
    ON_WM_INPUT()
    ON_WM_INPUT_DEVICE_CHANGE()
    ON_WM_APPCOMMAND()
    ON_WM_HELPINFO()
    ON_WM_CONTEXTMENU()
    ON_WM_STYLECHANGED()
    ON_WM_STYLECHANGING()
    ON_WM_HOTKEY()
    ON_WM_CHANGEUISTATE()
    ON_WM_UPDATEUISTATE()
    ON_WM_QUERYUISTATE()
    ON_WM_SESSIONCHANGE()
    ON_WM_THEMECHANGED()
    ON_WM_COMPOSITIONCHANGED()
    ON_WM_NCRENDERINGCHANGED()
    ON_WM_COLORIZATIONCOLORCHANGED()
    ON_WM_WINDOWMAXIMIZEDCHANGE()
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_CHARTOITEM_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_VSCROLL_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
END_MESSAGE_MAP()

/** WM_WININICHANGE and WM_SETTINGCHANGE are one message with two macros. */
class IniRecordingWnd : public RecordingWnd
{
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(IniRecordingWnd, RecordingWnd)
    ON_WM_WININICHANGE()
END_MESSAGE_MAP()

struct Row
{
    const char* macro;
    UINT message;
    const char* call;
    LRESULT result;
};

const Row kRows[] = {
    {"ON_WM_CREATE", WM_CREATE, "OnCreate L", kAnswer},
    {"ON_WM_NCCREATE", WM_NCCREATE, "OnNcCreate L", kAnswer},
    {"ON_WM_DESTROY", WM_DESTROY, "OnDestroy", 0},
    {"ON_WM_NCDESTROY", WM_NCDESTROY, "OnNcDestroy", 0},
    {"ON_WM_MOVE", WM_MOVE, "OnMove 7 9", 0},
    {"ON_WM_SIZE", WM_SIZE, "OnSize 327683 7 9", 0},
    {"ON_WM_ACTIVATE", WM_ACTIVATE, "OnActivate 3 L 5", 0},
    {"ON_WM_ACTIVATEAPP", WM_ACTIVATEAPP, "OnActivateApp 327683 589831", 0},
    {"ON_WM_SETFOCUS", WM_SETFOCUS, "OnSetFocus W", 0},
    {"ON_WM_KILLFOCUS", WM_KILLFOCUS, "OnKillFocus W", 0},
    {"ON_WM_ENABLE", WM_ENABLE, "OnEnable 327683", 0},
    {"ON_WM_PAINT", WM_PAINT, "OnPaint", 0},
    {"ON_WM_CLOSE", WM_CLOSE, "OnClose", 0},
    {"ON_WM_QUERYENDSESSION", WM_QUERYENDSESSION, "OnQueryEndSession", kAnswer},
    {"ON_WM_ENDSESSION", WM_ENDSESSION, "OnEndSession 327683", 0},
    {"ON_WM_QUERYOPEN", WM_QUERYOPEN, "OnQueryOpen", kAnswer},
    {"ON_WM_ERASEBKGND", WM_ERASEBKGND, "OnEraseBkgnd W", kAnswer},
    {"ON_WM_SYSCOLORCHANGE", WM_SYSCOLORCHANGE, "OnSysColorChange", 0},
    {"ON_WM_SHOWWINDOW", WM_SHOWWINDOW, "OnShowWindow 327683 589831", 0},
    {"ON_WM_CTLCOLOR", WM_CTLCOLORDLG, "OnCtlColor W L 4", kAnswer},
    {"ON_WM_SETTINGCHANGE", WM_SETTINGCHANGE, "OnSettingChange 327683 L", 0},
    {"ON_WM_DEVMODECHANGE", WM_DEVMODECHANGE, "OnDevModeChange L", 0},
    {"ON_WM_FONTCHANGE", WM_FONTCHANGE, "OnFontChange", 0},
    {"ON_WM_TIMECHANGE", WM_TIMECHANGE, "OnTimeChange", 0},
    {"ON_WM_CANCELMODE", WM_CANCELMODE, "OnCancelMode", 0},
    {"ON_WM_SETCURSOR", WM_SETCURSOR, "OnSetCursor W 7 9", kAnswer},
    {"ON_WM_MOUSEACTIVATE", WM_MOUSEACTIVATE, "OnMouseActivate W 7 9", kAnswer},
    {"ON_WM_CHILDACTIVATE", WM_CHILDACTIVATE, "OnChildActivate", 0},
    {"ON_WM_GETMINMAXINFO", WM_GETMINMAXINFO, "OnGetMinMaxInfo L", 0},
    {"ON_WM_ICONERASEBKGND", WM_ICONERASEBKGND, "OnIconEraseBkgnd W", 0},
    {"ON_WM_SPOOLERSTATUS", WM_SPOOLERSTATUS, "OnSpoolerStatus 327683 589831", 0},
    {"ON_WM_DRAWITEM", WM_DRAWITEM, "OnDrawItem 327683 L", TRUE},
    {"ON_WM_MEASUREITEM", WM_MEASUREITEM, "OnMeasureItem 327683 L", TRUE},
    {"ON_WM_DELETEITEM", WM_DELETEITEM, "OnDeleteItem 327683 L", TRUE},
    {"ON_WM_CHARTOITEM", WM_CHARTOITEM, "OnCharToItem 3 L 5", kAnswer},
    {"ON_WM_VKEYTOITEM", WM_VKEYTOITEM, "OnVKeyToItem 3 L 5", kAnswer},
    {"ON_WM_QUERYDRAGICON", WM_QUERYDRAGICON, "OnQueryDragIcon", kAnswer},
    {"ON_WM_COMPAREITEM", WM_COMPAREITEM, "OnCompareItem 327683 L", kAnswer},
    {"ON_WM_COMPACTING", WM_COMPACTING, "OnCompacting 327683", 0},
    {"ON_WM_COPYDATA", WM_COPYDATA, "OnCopyData W L", kAnswer},
    {"ON_WM_NCCALCSIZE", WM_NCCALCSIZE, "OnNcCalcSize 327683 L", 0},
    {"ON_WM_NCHITTEST", WM_NCHITTEST, "OnNcHitTest (7,9)", kAnswer},
    {"ON_WM_NCPAINT", WM_NCPAINT, "OnNcPaint", 0},
    {"ON_WM_NCACTIVATE", WM_NCACTIVATE, "OnNcActivate 327683", kAnswer},
    {"ON_WM_GETDLGCODE", WM_GETDLGCODE, "OnGetDlgCode", kAnswer},
    {"ON_WM_NCMOUSEMOVE", WM_NCMOUSEMOVE, "OnNcMouseMove 327683 (7,9)", 0},
    {"ON_WM_NCMOUSEHOVER", WM_NCMOUSEHOVER, "OnNcMouseHover 327683 (7,9)", 0},
    {"ON_WM_NCMOUSELEAVE", WM_NCMOUSELEAVE, "OnNcMouseLeave", 0},
    {"ON_WM_NCLBUTTONDOWN", WM_NCLBUTTONDOWN, "OnNcLButtonDown 327683 (7,9)", 0},
    {"ON_WM_NCLBUTTONUP", WM_NCLBUTTONUP, "OnNcLButtonUp 327683 (7,9)", 0},
    {"ON_WM_NCLBUTTONDBLCLK", WM_NCLBUTTONDBLCLK, "OnNcLButtonDblClk 327683 (7,9)", 0},
    {"ON_WM_NCRBUTTONDOWN", WM_NCRBUTTONDOWN, "OnNcRButtonDown 327683 (7,9)", 0},
    {"ON_WM_NCRBUTTONUP", WM_NCRBUTTONUP, "OnNcRButtonUp 327683 (7,9)", 0},
    {"ON_WM_NCRBUTTONDBLCLK", WM_NCRBUTTONDBLCLK, "OnNcRButtonDblClk 327683 (7,9)", 0},
    {"ON_WM_NCMBUTTONDOWN", WM_NCMBUTTONDOWN, "OnNcMButtonDown 327683 (7,9)", 0},
    {"ON_WM_NCMBUTTONUP", WM_NCMBUTTONUP, "OnNcMButtonUp 327683 (7,9)", 0},
    {"ON_WM_NCMBUTTONDBLCLK", WM_NCMBUTTONDBLCLK, "OnNcMButtonDblClk 327683 (7,9)", 0},
    {"ON_WM_NCXBUTTONDOWN", WM_NCXBUTTONDOWN, "OnNcXButtonDown 3 5 (7,9)", TRUE},
    {"ON_WM_NCXBUTTONUP", WM_NCXBUTTONUP, "OnNcXButtonUp 3 5 (7,9)", TRUE},
    {"ON_WM_NCXBUTTONDBLCLK", WM_NCXBUTTONDBLCLK, "OnNcXButtonDblClk 3 5 (7,9)", TRUE},
    {"ON_WM_KEYDOWN", WM_KEYDOWN, "OnKeyDown 327683 7 9", 0},
    {"ON_WM_KEYUP", WM_KEYUP, "OnKeyUp 327683 7 9", 0},
    {"ON_WM_CHAR", WM_CHAR, "OnChar 327683 7 9", 0},
    {"ON_WM_DEADCHAR", WM_DEADCHAR, "OnDeadChar 327683 7 9", 0},
    {"ON_WM_UNICHAR", WM_UNICHAR, "OnUniChar 327683 7 9", 0},
    {"ON_WM_SYSKEYDOWN", WM_SYSKEYDOWN, "OnSysKeyDown 327683 7 9", 0},
    {"ON_WM_SYSKEYUP", WM_SYSKEYUP, "OnSysKeyUp 327683 7 9", 0},
    {"ON_WM_SYSCHAR", WM_SYSCHAR, "OnSysChar 327683 7 9", 0},
    {"ON_WM_SYSDEADCHAR", WM_SYSDEADCHAR, "OnSysDeadChar 327683 7 9", 0},
    {"ON_WM_SYSCOMMAND", WM_SYSCOMMAND, "OnSysCommand 327683 589831", 0},
    {"ON_WM_TCARD", WM_TCARD, "OnTCard 327683 589831", 0},
    {"ON_WM_TIMER", WM_TIMER, "OnTimer 327683", 0},
    {"ON_WM_HSCROLL", WM_HSCROLL, "OnHScroll 3 5 L", 0},
    {"ON_WM_VSCROLL", WM_VSCROLL, "OnVScroll 3 5 L", 0},
    {"ON_WM_INITMENU", WM_INITMENU, "OnInitMenu W", 0},
    {"ON_WM_INITMENUPOPUP", WM_INITMENUPOPUP, "OnInitMenuPopup W 7 9", 0},
    {"ON_WM_UNINITMENUPOPUP", WM_UNINITMENUPOPUP, "OnUnInitMenuPopup W 9", 0},
    {"ON_WM_MENUSELECT", WM_MENUSELECT, "OnMenuSelect 3 5 L", 0},
    {"ON_WM_MENUCHAR", WM_MENUCHAR, "OnMenuChar 3 5 L", kAnswer},
    {"ON_WM_MENUDRAG", WM_MENUDRAG, "OnMenuDrag 327683 L", kAnswer},
    {"ON_WM_MENUGETOBJECT", WM_MENUGETOBJECT, "OnMenuGetObject L", kAnswer},
    {"ON_WM_MENURBUTTONUP", WM_MENURBUTTONUP, "OnMenuRButtonUp 327683 L", 0},
    {"ON_WM_ENTERIDLE", WM_ENTERIDLE, "OnEnterIdle 327683 L", 0},
    {"ON_WM_ENTERMENULOOP", WM_ENTERMENULOOP, "OnEnterMenuLoop 327683", 0},
    {"ON_WM_EXITMENULOOP", WM_EXITMENULOOP, "OnExitMenuLoop 327683", 0},
    {"ON_WM_NEXTMENU", WM_NEXTMENU, "OnNextMenu 327683 L", 0},
    {"ON_WM_MOUSEMOVE", WM_MOUSEMOVE, "OnMouseMove 327683 (7,9)", 0},
    {"ON_WM_MOUSEHOVER", WM_MOUSEHOVER, "OnMouseHover 327683 (7,9)", 0},
    {"ON_WM_MOUSELEAVE", WM_MOUSELEAVE, "OnMouseLeave", 0},
    {"ON_WM_MOUSEWHEEL", WM_MOUSEWHEEL, "OnMouseWheel 3 5 (7,9)", kAnswer},
    {"ON_WM_MOUSEHWHEEL", WM_MOUSEHWHEEL, "OnMouseHWheel 3 5 (7,9)", 0},
    {"ON_WM_LBUTTONDOWN", WM_LBUTTONDOWN, "OnLButtonDown 327683 (7,9)", 0},
    {"ON_WM_LBUTTONUP", WM_LBUTTONUP, "OnLButtonUp 327683 (7,9)", 0},
    {"ON_WM_LBUTTONDBLCLK", WM_LBUTTONDBLCLK, "OnLButtonDblClk 327683 (7,9)", 0},
    {"ON_WM_RBUTTONDOWN", WM_RBUTTONDOWN, "OnRButtonDown 327683 (7,9)", 0},
    {"ON_WM_RBUTTONUP", WM_RBUTTONUP, "OnRButtonUp 327683 (7,9)", 0},
    {"ON_WM_RBUTTONDBLCLK", WM_RBUTTONDBLCLK, "OnRButtonDblClk 327683 (7,9)", 0},
    {"ON_WM_MBUTTONDOWN", WM_MBUTTONDOWN, "OnMButtonDown 327683 (7,9)", 0},
    {"ON_WM_MBUTTONUP", WM_MBUTTONUP, "OnMButtonUp 327683 (7,9)", 0},
    {"ON_WM_MBUTTONDBLCLK", WM_MBUTTONDBLCLK, "OnMButtonDblClk 327683 (7,9)", 0},
    {"ON_WM_XBUTTONDOWN", WM_XBUTTONDOWN, "OnXButtonDown 3 5 (7,9)", TRUE},
    {"ON_WM_XBUTTONUP", WM_XBUTTONUP, "OnXButtonUp 3 5 (7,9)", TRUE},
    {"ON_WM_XBUTTONDBLCLK", WM_XBUTTONDBLCLK, "OnXButtonDblClk 3 5 (7,9)", TRUE},
    {"ON_WM_PARENTNOTIFY", WM_PARENTNOTIFY, "OnParentNotify 327683 589831", 0},
    {"ON_WM_MDIACTIVATE", WM_MDIACTIVATE, "OnMDIActivate 0 L W", 0},
    {"ON_WM_RENDERFORMAT", WM_RENDERFORMAT, "OnRenderFormat 327683", 0},
    {"ON_WM_RENDERALLFORMATS", WM_RENDERALLFORMATS, "OnRenderAllFormats", 0},
    {"ON_WM_DESTROYCLIPBOARD", WM_DESTROYCLIPBOARD, "OnDestroyClipboard", 0},
    {"ON_WM_DRAWCLIPBOARD", WM_DRAWCLIPBOARD, "OnDrawClipboard", 0},
    {"ON_WM_CLIPBOARDUPDATE", WM_CLIPBOARDUPDATE, "OnClipboardUpdate", 0},
    {"ON_WM_PAINTCLIPBOARD", WM_PAINTCLIPBOARD, "OnPaintClipboard W L", 0},
    {"ON_WM_VSCROLLCLIPBOARD", WM_VSCROLLCLIPBOARD, "OnVScrollClipboard W 7 9", 0},
    {"ON_WM_HSCROLLCLIPBOARD", WM_HSCROLLCLIPBOARD, "OnHScrollClipboard W 7 9", 0},
    {"ON_WM_SIZECLIPBOARD", WM_SIZECLIPBOARD, "OnSizeClipboard W L", 0},
    {"ON_WM_ASKCBFORMATNAME", WM_ASKCBFORMATNAME, "OnAskCbFormatName 327683 L", 0},
    {"ON_WM_CHANGECBCHAIN", WM_CHANGECBCHAIN, "OnChangeCbChain W L", 0},
    {"ON_WM_QUERYNEWPALETTE", WM_QUERYNEWPALETTE, "OnQueryNewPalette", kAnswer},
    {"ON_WM_PALETTECHANGED", WM_PALETTECHANGED, "OnPaletteChanged W", 0},
    {"ON_WM_PALETTEISCHANGING", WM_PALETTEISCHANGING, "OnPaletteIsChanging W", 0},
    {"ON_WM_DROPFILES", WM_DROPFILES, "OnDropFiles W", 0},
    {"ON_WM_WINDOWPOSCHANGING", WM_WINDOWPOSCHANGING, "OnWindowPosChanging L", 0},
    {"ON_WM_WINDOWPOSCHANGED", WM_WINDOWPOSCHANGED, "OnWindowPosChanged L", 0},
    {"ON_WM_EXITSIZEMOVE", WM_EXITSIZEMOVE, "OnExitSizeMove", 0},
    {"ON_WM_ENTERSIZEMOVE", WM_ENTERSIZEMOVE, "OnEnterSizeMove", 0},
    {"ON_WM_SIZING", WM_SIZING, "OnSizing 327683 L", TRUE},
    {"ON_WM_MOVING", WM_MOVING, "OnMoving 327683 L", TRUE},
    {"ON_WM_CAPTURECHANGED", WM_CAPTURECHANGED, "OnCaptureChanged L", 0},
    {"ON_WM_DEVICECHANGE", WM_DEVICECHANGE, "OnDeviceChange 327683 589831", kAnswer},
    {"ON_WM_POWERBROADCAST", WM_POWERBROADCAST, "OnPowerBroadcast 327683 589831", kAnswer},
    {"ON_WM_USERCHANGED", WM_USERCHANGED, "OnUserChanged", 0},
    {"ON_WM_INPUTLANGCHANGE", WM_INPUTLANGCHANGE, "OnInputLangChange 327683 589831", 0},
    {"ON_WM_INPUTLANGCHANGEREQUEST", WM_INPUTLANGCHANGEREQUEST, "OnInputLangChangeRequest 327683 589831", 0},
    {"ON_WM_INPUT", WM_INPUT, "OnRawInput 327683 L", 0},
    {"ON_WM_INPUT_DEVICE_CHANGE", WM_INPUT_DEVICE_CHANGE, "OnInputDeviceChange 3 L", 0},
    {"ON_WM_APPCOMMAND", WM_APPCOMMAND, "OnAppCommand W 9 0 7", TRUE},
    {"ON_WM_HELPINFO", WM_HELP, "OnHelpInfo L", kAnswer},
    {"ON_WM_CONTEXTMENU", WM_CONTEXTMENU, "OnContextMenu W (7,9)", 0},
    {"ON_WM_STYLECHANGED", WM_STYLECHANGED, "OnStyleChanged 327683 L", 0},
    {"ON_WM_STYLECHANGING", WM_STYLECHANGING, "OnStyleChanging 327683 L", 0},
    {"ON_WM_HOTKEY", WM_HOTKEY, "OnHotKey 327683 7 9", 0},
    {"ON_WM_CHANGEUISTATE", WM_CHANGEUISTATE, "OnChangeUIState 3 5", 0},
    {"ON_WM_UPDATEUISTATE", WM_UPDATEUISTATE, "OnUpdateUIState 3 5", 0},
    {"ON_WM_QUERYUISTATE", WM_QUERYUISTATE, "OnQueryUIState", kAnswer},
    {"ON_WM_SESSIONCHANGE", WM_WTSSESSION_CHANGE, "OnSessionChange 327683 589831", 0},
    {"ON_WM_THEMECHANGED", WM_THEMECHANGED, "OnThemeChanged", kAnswer},
    {"ON_WM_COMPOSITIONCHANGED", WM_DWMCOMPOSITIONCHANGED, "OnCompositionChanged", 0},
    {"ON_WM_NCRENDERINGCHANGED", WM_DWMNCRENDERINGCHANGED, "OnNcRenderingChanged 327683", 0},
    {"ON_WM_COLORIZATIONCOLORCHANGED", WM_DWMCOLORIZATIONCOLORCHANGED, "OnColorizationColorChanged 327683 589831", 0},
    {"ON_WM_WINDOWMAXIMIZEDCHANGE", WM_DWMWINDOWMAXIMIZEDCHANGE, "OnWindowMaximizedChanged 327683", 0},
    {"ON_WM_CTLCOLOR_REFLECT", WM_CTLCOLORDLG + WM_REFLECT_BASE, "CtlColor W 4", kAnswer},
    {"ON_WM_DRAWITEM_REFLECT", WM_DRAWITEM + WM_REFLECT_BASE, "DrawItem L", TRUE},
    {"ON_WM_MEASUREITEM_REFLECT", WM_MEASUREITEM + WM_REFLECT_BASE, "MeasureItem L", TRUE},
    {"ON_WM_DELETEITEM_REFLECT", WM_DELETEITEM + WM_REFLECT_BASE, "DeleteItem L", TRUE},
    {"ON_WM_CHARTOITEM_REFLECT", WM_CHARTOITEM + WM_REFLECT_BASE, "CharToItem 3 5", kAnswer},
    {"ON_WM_VKEYTOITEM_REFLECT", WM_VKEYTOITEM + WM_REFLECT_BASE, "VKeyToItem 3 5", kAnswer},
    {"ON_WM_COMPAREITEM_REFLECT", WM_COMPAREITEM + WM_REFLECT_BASE, "CompareItem L", kAnswer},
    {"ON_WM_HSCROLL_REFLECT", WM_HSCROLL + WM_REFLECT_BASE, "HScroll 3 5", 0},
    {"ON_WM_VSCROLL_REFLECT", WM_VSCROLL + WM_REFLECT_BASE, "VScroll 3 5", 0},
    {"ON_WM_PARENTNOTIFY_REFLECT", WM_PARENTNOTIFY + WM_REFLECT_BASE, "ParentNotify 327683 589831", 0},
};

class WindowMessageMacro : public testing::TestWithParam<Row>
{
};
} // namespace

TEST_P(WindowMessageMacro, CallsItsHandlerWithTheUnpackedParametersAndReturnsItsResult)
{
    const Row& row = GetParam();
    RecordingWnd wnd;
    const LRESULT result = AfxCallWndProc(&wnd, nullptr, row.message, kW, kL);
    EXPECT_EQ(row.call, wnd.m_log.Take());
    EXPECT_EQ(row.result, result);
}

INSTANTIATE_TEST_SUITE_P(All, WindowMessageMacro, testing::ValuesIn(kRows),
                         [](const testing::TestParamInfo<Row>& info) { return std::string(info.param.macro); });

TEST(WindowMessageMacros, WinIniChangeTakesTheSectionOnly)
{
    IniRecordingWnd wnd;
    AfxCallWndProc(&wnd, nullptr, WM_WININICHANGE, kW, kL);
    EXPECT_EQ("OnWinIniChange L", wnd.m_log.Take());
}

TEST(WindowMessageMacros, PointsBelowZeroKeepTheirSign)
{
    RecordingWnd wnd;
    AfxCallWndProc(&wnd, nullptr, WM_MOUSEMOVE, 1, MAKELPARAM(-3, -4));
    EXPECT_EQ("OnMouseMove 1 (-3,-4)", wnd.m_log.Take());
    AfxCallWndProc(&wnd, nullptr, WM_MOVE, 0, MAKELPARAM(-3, -4));
    EXPECT_EQ("OnMove -3 -4", wnd.m_log.Take());
    AfxCallWndProc(&wnd, nullptr, WM_MOUSEWHEEL, MAKEWPARAM(1, -120), 0);
    EXPECT_EQ("OnMouseWheel 1 -120 (0,0)", wnd.m_log.Take());
}

TEST(WindowMessageMacros, CtlColorTellsTheKindOfControl)
{
    RecordingWnd wnd;
    for (UINT message = WM_CTLCOLORMSGBOX; message <= WM_CTLCOLORSTATIC; ++message) {
        AfxCallWndProc(&wnd, nullptr, message, kW, kL);
        EXPECT_EQ("OnCtlColor W L " + std::to_string(message - WM_CTLCOLORMSGBOX), wnd.m_log.Take());
    }
}
