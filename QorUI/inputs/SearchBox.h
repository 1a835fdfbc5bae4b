#pragma once

#include <QorUI/app/module/QorUIDef.h>

/** A combo box for search texts of up to 260 characters, with a magnifier where the drop-down button is. */
class QORUI_API CSearchBox : public CComboBox
{
  public:
    CSearchBox();

  protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

    HWND m_hWndEdit; ///< the edit control inside; null before creation and in a box without one
};
