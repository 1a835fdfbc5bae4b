#pragma once

#include <QorUI/buttons/QorBtn.h>

#ifdef OTHER_DLL_EXPORTS
#define OTHER_API __declspec(dllexport)
#else
#define OTHER_API __declspec(dllimport)
#endif

/** A control that another DLL derives from one of the library, for programs that derive from it in turn. */
class OTHER_API COtherButton : public CQorBtn
{
  public:
    COtherButton();
    void DrawItem(LPDRAWITEMSTRUCT item) override;

    int m_draws = 0;

  protected:
    afx_msg LRESULT OnOwnMessage(WPARAM value, LPARAM);
    DECLARE_MESSAGE_MAP()
};

/** Uses the library's classes inside the other DLL. @return number of things that were wrong. */
OTHER_API int UseEveryClassInOtherDll();
