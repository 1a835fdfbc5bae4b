#pragma once

#include <QorUI/app/module/QorUIDef.h>

/** A hot-key control with a flat border. */
class QORUI_API CFlatHotKey : public CHotKeyCtrl
{
  protected:
    afx_msg void OnNcPaint();
    DECLARE_MESSAGE_MAP()
};

/** A date and time picker with a flat border. */
class QORUI_API CFlatDateTime : public CDateTimeCtrl
{
  protected:
    afx_msg void OnNcPaint();
    DECLARE_MESSAGE_MAP()
};

/** An IP address control with a flat border. */
class QORUI_API CFlatIPAddr : public CIPAddressCtrl
{
  protected:
    afx_msg void OnNcPaint();
    DECLARE_MESSAGE_MAP()
};
