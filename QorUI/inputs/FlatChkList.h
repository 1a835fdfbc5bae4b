#pragma once

#include <QorUI/app/module/QorUIDef.h>

/** A check-list box with a flat border. */
class QORUI_API CFlatChkList : public CCheckListBox
{
  protected:
    afx_msg void OnNcPaint();
    DECLARE_MESSAGE_MAP()
};
