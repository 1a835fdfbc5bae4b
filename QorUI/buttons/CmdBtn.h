#pragma once

#include <common/Owner.h>
#include <QorUI/app/base/HotState.h>

/**
 * A large command button: an icon, a one-line title (the window text) and a wrapped description below it.
 */
class QORUI_API CCmdBtn : public CButton
{
  public:
    /** Makes a button without window, icon and description. */
    CCmdBtn();
    /** Destroys the grey icon; the icon itself is shared and stays. */
    ~CCmdBtn() override;

    /**
     * Creates the button and gives it its icon and description as `SetBtn` does.
     * @param rect place in client coordinates of `parent`, pixels.
     * @return FALSE when the window could not be created or the icon not loaded.
     */
    BOOL Create(UINT iconId, LPCWSTR description, const RECT& rect, CWnd* parent, UINT id);

    /**
     * Changes icon and description.
     * @param iconId icon resource of the current module; 0x10000 or more leaves the icon as it is.
     * @param description null leaves it as it is.
     * @return FALSE when there is no such icon: nothing is changed then.
     */
    BOOL SetBtn(UINT iconId, LPCWSTR description);

    /** Makes the window owner-drawn. */
    void PreSubclassWindow() override;

    /** Draws the button in the state that it has. */
    void DrawItem(LPDRAWITEMSTRUCT item) override;

    /** Draws the highlight that shows that the mouse is over the button. */
    void DrawRect(CDC* dc, CRect& rect);

    /**
     * Draws title and description beside the icon.
     * @param rect the button; afterwards the room of the description.
     * @param mode bit 0 for the texts, bit 1 for the focus rectangle around the title.
     */
    void DrawText(CDC* dc, CRect& rect, UINT mode);

  protected:
    afx_msg void OnDestroy();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg LRESULT OnMouseLeave(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

  private:
    HICON IconFor(BOOL disabled);
    void DrawFace(CDC* dc, CRect& rect, BOOL disabled);
    void FreeGrayIcon();

    HotState m_hot;
    HICON m_hIcon;        // shared, not destroyed
    own::Icon m_grayIcon; // made at the first disabled paint
    CString m_strDescription;
};
