#pragma once

#include "QorUIDef.h"

/** The library's one application object: what is made when the library is attached to a process. */
class CQorUIApp : public CWinApp
{
  public:
    CQorUIApp();

    /** Starts GDI+ and has the skin made. @return TRUE always: what cannot be made stays empty. */
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
};

/** The library's application object. */
extern CQorUIApp g_QorUIApp;

/**
 * Makes what controls and dialogs share: the brushes and strips of the application object and the button style table.
 * The look has its body, so that this room knows nothing of brushes and colours.
 */
void QorMakeSkin(CQorUIApp& app);
