#include "Inputs.h"

#include <QorUI/inputs/FlatPickers.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

namespace
{

template <class Control>
struct SystemClass;
template <>
struct SystemClass<CFlatHotKey>
{
    static constexpr const wchar_t* name = HOTKEY_CLASSW;
};
template <>
struct SystemClass<CFlatDateTime>
{
    static constexpr const wchar_t* name = DATETIMEPICK_CLASSW;
};
template <>
struct SystemClass<CFlatIPAddr>
{
    static constexpr const wchar_t* name = WC_IPADDRESSW;
};

template <class Control>
class Pickers : public testing::Test
{
  protected:
    void Take(DWORD exStyle)
    {
        ASSERT_TRUE(m_control.SubclassWindow(AddSystem(m_host, SystemClass<Control>::name, 0, exStyle)));
    }

    ts::AfxHost m_host{200, 100};
    Control m_control;
};

using AllPickers = testing::Types<CFlatHotKey, CFlatDateTime, CFlatIPAddr>;
TYPED_TEST_SUITE(Pickers, AllPickers);

TYPED_TEST(Pickers, PaintTheirBorderFlat)
{
    this->Take(WS_EX_CLIENTEDGE);
    EXPECT_TRUE(HasFlatBorder(this->m_control));
}

TYPED_TEST(Pickers, LeaveTheBorderAloneWithoutClientEdge)
{
    this->Take(0);
    this->m_control.ModifyStyle(0, WS_BORDER);
    this->m_control.ModifyStyleEx(WS_EX_CLIENTEDGE, 0, SWP_FRAMECHANGED); // some give it to themselves
    ::UpdateWindow(this->m_control);
    const HRGN everything = reinterpret_cast<HRGN>(1);
    const COLORREF marked = RGB(200, 10, 200);
    CRect rect;
    this->m_control.GetWindowRect(&rect);
    {
        CWindowDC dc(&this->m_control);
        dc.Draw3dRect(0, 0, rect.Width(), rect.Height(), marked, marked);
    }
    this->m_control.SendMessage(WM_NCPAINT, reinterpret_cast<WPARAM>(everything));
    EXPECT_TRUE(ts::FrameIs(ts::CaptureFrame(this->m_control), CRect(0, 0, rect.Width(), rect.Height()), marked));
}

/** What each of two hundred controls leaves behind: the system's own of a kind may leave something too. */
template <class Control>
ts::HandleCounts LeftBehind(CWnd& parent, const wchar_t* className)
{
    const auto cycle = [&parent, className] {
        Control control;
        control.SubclassWindow(AddSystem(parent, className, 0));
        ts::FrameOf(control);
        control.DestroyWindow();
    };
    cycle();
    const ts::HandleCounts before = ts::CountHandles();
    for (int i = 0; i < 200; ++i) {
        cycle();
    }
    ts::HandleCounts left = ts::Difference(before, ts::CountHandles());
    std::erase_if(left, [](const auto& kind) { return kind.second < 200; }); // made once and kept
    return left;
}

TYPED_TEST(Pickers, LeaveNoMoreBehindThanTheStockControls)
{
    const wchar_t* name = SystemClass<TypeParam>::name;
    const ts::HandleCounts stock = LeftBehind<CWnd>(this->m_host, name);
    EXPECT_EQ(stock, LeftBehind<TypeParam>(this->m_host, name));
}

TEST(FlatHotKey, StillTakesKeys)
{
    ts::AfxHost host(200, 100);
    CFlatHotKey control;
    ASSERT_TRUE(control.SubclassWindow(AddSystem(host, HOTKEY_CLASSW, 0)));
    control.SetFocus();
    ts::Chord({VK_CONTROL, VK_SHIFT, VK_F5});
    EXPECT_EQ(MAKEWORD(VK_F5, HOTKEYF_CONTROL | HOTKEYF_SHIFT), control.SendMessage(HKM_GETHOTKEY));
}

TEST(FlatDateTime, StillTakesAFormat)
{
    ts::AfxHost host(200, 100);
    CFlatDateTime control;
    ASSERT_TRUE(control.SubclassWindow(AddSystem(host, DATETIMEPICK_CLASSW, DTS_TIMEFORMAT)));
    ASSERT_TRUE(control.SetFormat(L"HH:mm"));
    const SYSTEMTIME set = {2024, 5, 3, 15, 13, 37, 0, 0};
    ASSERT_TRUE(control.SendMessage(DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&set)));
    EXPECT_STREQ(L"13:37", ts::TextOf(control));
}

TEST(FlatIPAddr, StillKeepsAnAddress)
{
    ts::AfxHost host(200, 100);
    CFlatIPAddr control;
    ASSERT_TRUE(control.SubclassWindow(AddSystem(host, WC_IPADDRESSW, 0)));
    control.SendMessage(IPM_SETADDRESS, 0, static_cast<LPARAM>(MAKEIPADDRESS(192, 0, 2, 17)));
    EXPECT_STREQ(L"192.0.2.17", ts::TextOf(control));
}

} // namespace
