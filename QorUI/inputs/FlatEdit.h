#pragma once

#include <QorUI/app/module/QorUIDef.h>

/** An edit control with a flat border. */
class QORUI_API CFlatEdit : public CEdit
{
  protected:
    afx_msg void OnNcPaint();
    DECLARE_MESSAGE_MAP()
};
