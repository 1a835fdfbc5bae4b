/** @file A DLL of a host that links the library. */
#include "OtherDll.h"

#include "EveryClass.h"

BEGIN_MESSAGE_MAP(COtherButton, CQorBtn)
    ON_MESSAGE(host::kOwnMessage, &COtherButton::OnOwnMessage)
END_MESSAGE_MAP()

COtherButton::COtherButton() = default;

void COtherButton::DrawItem(LPDRAWITEMSTRUCT item)
{
    ++m_draws;
    CQorBtn::DrawItem(item);
}

LRESULT COtherButton::OnOwnMessage(WPARAM value, LPARAM)
{
    return static_cast<LRESULT>(value) + 1;
}

int UseEveryClassInOtherDll()
{
    host::UseEveryClass();
    return host::g_failures;
}
