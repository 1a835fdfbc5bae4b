#pragma once

#include "Inputs.h"

#include <tests/support/ui/Control.h>

constexpr wchar_t kShort[] = L"a";
constexpr wchar_t kLong[] = L"a text that is much longer than the others";

/** What the two list boxes have in common. */
template <class List>
class WidestText : public testing::Test
{
  protected:
    void SetUp() override
    {
        const HWND list = AddSystem(m_host, L"LISTBOX", WS_HSCROLL | LBS_NOTIFY, WS_EX_CLIENTEDGE, {10, 10, 110, 110});
        ASSERT_TRUE(m_list.SubclassWindow(list));
    }

    static int Width(const wchar_t* text)
    {
        return ts::TextWidth(ts::GuiFont(), text) + 3 * ::GetSystemMetrics(SM_CXBORDER);
    }

    CString ItemText(int index) const
    {
        CString text;
        m_list.GetText(index, text);
        return text;
    }

    ts::AfxHost m_host{200, 140};
    List m_list;
};
