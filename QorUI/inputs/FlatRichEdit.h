#pragma once

#include <QorUI/app/module/QorUIDef.h>

/** A rich-edit control with a flat border and a preset character format for the texts that the program inserts. */
class QORUI_API CFlatRichEdit : public CRichEditCtrl
{
  public:
    CFlatRichEdit();

    /**
     * Sets the format of the texts inserted from now on.
     * @param height of the characters in pixels.
     * @param effects `CFE_BOLD` and its like.
     * @return TRUE.
     */
    BOOL SetFormat(long height, COLORREF text, DWORD effects);

    /**
     * Inserts a text without undo; the format is given to the selection that there is before.
     * @param pos character position; -1 for the end, -2 for the end with a line feed behind the text.
     * @param format as for `printf`.
     */
    void InsertText(int pos, LPCWSTR format, ...);

    /** Deletes the characters from `start` up to, but not including, `end`, without undo. */
    void DeleteText(int start, int end);

    /** Deletes the whole text. */
    void ClearText();

    /** Aligns the selected paragraphs. @param align `PFA_LEFT`, `PFA_RIGHT`, `PFA_CENTER`. */
    BOOL SetAlign(WORD align);

    /** Indents the selected paragraphs from both sides, in twips; following lines as the first one. */
    BOOL SetIndent(long start, long right);

  protected:
    /** Turns the detection of URLs and the notification `EN_LINK` on or off. @return the control's answer: 0 for
     * success. */
    BOOL AutoURLDetect(BOOL enable);

    afx_msg void OnNcPaint();
    DECLARE_MESSAGE_MAP()

    CHARFORMATW m_cf; ///< format of inserted texts

  private:
    void Replace(long start, long end, LPCWSTR text);
};
