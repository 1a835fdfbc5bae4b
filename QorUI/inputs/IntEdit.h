#pragma once

#include "FlatEdit.h"

/**
 * A flat edit control for a whole number, kept within a range at every key, with an optional spin button inside it.
 *
 * Without spin button and with `ES_WANTRETURN`, Enter acts as a click on a button with the control's id.
 */
class QORUI_API CIntEdit : public CFlatEdit
{
  public:
    CIntEdit();

    /**
     * Sets the range and the value. The text is limited to as many characters as the maximum has.
     * @param minimum,maximum both allowed; nothing happens when they stand the wrong way round.
     */
    void SetRange(int minimum, int maximum, int value);

    /** @param minimum receives the least value; may be null. @return the greatest value. */
    int GetRange(int* minimum);

    /** Shows a value, or the nearer end of the range when it is outside. */
    void SetValue(int value);

    /** @return the number in the text as it stands; 0 for a text that is no number. */
    int GetValue();

    /**
     * Puts a spin button inside the right end of the control, which then counts as a multi-line edit: create it with
     * `ES_MULTILINE` for the text to keep clear of the button.
     * @return whether the button could be created.
     */
    BOOL AddSpin();

  protected:
    void PreSubclassWindow() override;
    BOOL PreCreateWindow(CREATESTRUCT& create) override;

    afx_msg void OnChar(UINT character, UINT repeats, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeats, UINT flags);
    afx_msg LRESULT OnGetDlgCode(WPARAM key, LPARAM message);
    afx_msg void OnDeltaPos(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

  private:
    bool IsMultiLine() const;
    bool TakesReturn() const;

    int m_nMin;
    int m_nMax;
    CSpinButtonCtrl m_spin;
};
