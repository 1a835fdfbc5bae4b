#pragma once

#include "LibDialog.h"

/** The dialog behind `QorMsgBox`. */
class CMsgBoxDlg : public CLibDialog
{
  public:
    /** @param type the caller's type word. @param text the whole message. */
    CMsgBoxDlg(UINT type, const CString& text, CWnd* parent);

  protected:
    BOOL Build() override;
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnButton(UINT id);
    DECLARE_MESSAGE_MAP()

  private:
    void ArrangeSingleButton();
    void ArrangeThreeButtons(UINT third, LPCWSTR thirdKey, UINT middle, LPCWSTR middleKey);
    void ArrangeButtons();

    UINT m_type; // the caller's word; after initialisation the kind whose caption and icon are shown
    CString m_text;
    CQorBtn m_thirdBtn;
};
