#pragma once

#include <QorUI/app/module/QorUIDef.h>

class CXmlElem;

/**
 * Base of every dialog of the library: binds a dialog to its texts in the language data and fixes its default button,
 * its keyboard handling when it is embedded in another window, and Enter.
 *
 * Enter presses the button that has the focus; with the focus elsewhere it presses the dialog's default button. `IDOK`
 * itself does nothing unless a derived class overrides `OnOK`.
 */
class QORUI_API CQorBaseDlg : public CDialog
{
  public:
    /**
     * @param idd number of the dialog template, searched along the resource chain when the dialog is created.
     * @param parent owner window; null for the program's main window.
     */
    CQorBaseDlg(UINT idd, CWnd* parent);

    /** The template name that the dialog was constructed with, as `MAKEINTRESOURCE` gives it. */
    LPCWSTR GetDlgId() const;

  protected:
    /**
     * Sets the texts of the dialog and its controls from the language data. To be called in `OnInitDialog` after the
     * base class.
     * @param module name of the module in the language data, for example "QorUI.dll".
     * @param dialogKey key of the dialog's element, "IDD_DLG_...".
     * @param flag handed on to the language service; 1 sets the texts.
     */
    void SetDlgLang(LPCWSTR module, LPCWSTR dialogKey, int flag);

    /**
     * A further text of this dialog.
     * @return the text, valid while the language stays loaded; the key itself when there is none or before
     * `SetDlgLang`.
     */
    LPCWSTR GetDlgString(LPCWSTR key) const;

    /**
     * Fills the placeholders of a control's text: the current text is the printf format, the arguments follow.
     * A control that does not exist is left out silently.
     */
    void SetDlgCtrlText(UINT id, ...);

    BOOL PreTranslateMessage(MSG* msg) override;
    void OnOK() override;

    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT kind);
    afx_msg LRESULT OnGetDefId(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

  private:
    CXmlElem* m_langElem; // owned by the language data
};
