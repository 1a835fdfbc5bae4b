#pragma once

#include "FlatEdit.h"

/** A flat edit control that marks a text with refused characters as wrong and names them in a balloon tip. */
class QORUI_API CFlatEditEx : public CFlatEdit
{
  public:
    CFlatEditEx();

    /**
     * @param chars the refused characters; null refuses nothing. Never copied: the caller keeps the string alive as
     * long as the control.
     */
    void SetIllegalChars(LPCWSTR chars);

    /** @return state of the text after its last change: 1 valid, 0 empty or blank, -1 with a refused character. */
    int IsValidText();

  protected:
    /** Checks the text. @return FALSE: the parent gets `EN_UPDATE` too. */
    afx_msg BOOL OnUpdate();
    DECLARE_MESSAGE_MAP()

  private:
    void ShowRefusal();

    int m_nValid;
    LPCWSTR m_lpszIllegal;
};
