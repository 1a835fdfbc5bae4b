#pragma once

#include <QorUI/app/look/Shared.h>

#include <array>

/** One row of the button style table: how a push button looks in one state. */
struct QorBtnStyle
{
    CBrush brush;       ///< pattern of the face; without handle when its bitmap is missing
    COLORREF outer = 0; ///< outer border
    COLORREF inner = 0; ///< inner border
};

/** Rows of the button style table. */
enum QorBtnState : UINT
{
    QOR_BTN_NORMAL,
    QOR_BTN_HOT,
    QOR_BTN_PRESSED,
    QOR_BTN_DISABLED,
    QOR_BTN_STATES
};

extern std::array<QorBtnStyle, QOR_BTN_STATES> g_BtnStyles;

/** The library's one application object: what is made when the library is attached to a process. */
class CQorUIApp : public CWinApp
{
  public:
    CQorUIApp();

    /** Starts GDI+ and makes the shared look. @return TRUE always: what cannot be made stays empty. */
    BOOL InitInstance() override;

    /** Stops GDI+ if it was started. */
    int ExitInstance() override;

    ULONG_PTR m_nGdiplusToken = 0; ///< zero while GDI+ is not running
    CBrush m_brTab;                ///< pattern that tabs are painted with
    CBrush m_brDlgBack;            ///< background of dialogs
    CBitmap m_bmpRadio;            ///< glyph strip of the radio button
    CBitmap m_bmpCheck;            ///< glyph strip of the check box
    HMODULE m_hHost = nullptr;     ///< the program that loaded the library

  private:
    void StartGdiplus();
    void MakeButtonStyles();
};

/** The library's application object. */
extern CQorUIApp g_QorUIApp;

/** An icon and the banner that belongs to it, as given to `QorSetAppIcon`. */
struct QorAppIcon
{
    HICON icon = nullptr;
    BOOL flag = FALSE;
};

/** What was given to `QorSetAppIcon` last. */
const QorAppIcon& QorGetAppIcon();
