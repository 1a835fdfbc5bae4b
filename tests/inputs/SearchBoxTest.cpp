#include "Inputs.h"

#include <QorUI/inputs/SearchBox.h>
#include <QorUI/res/resource.h>
#include <tests/support/Imports.h>
#include <tests/support/Refusals.h>
#include <tests/support/Resources.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

namespace
{

constexpr COLORREF kOuter = RGB(203, 203, 203);

class COpenSearchBox : public CSearchBox
{
  public:
    using CSearchBox::m_hWndEdit;
};

BOOL WINAPI NoComboBoxInfo(HWND, PCOMBOBOXINFO)
{
    return FALSE;
}

class SearchBox : public testing::Test
{
  protected:
    void SetUp() override { Create(CBS_DROPDOWN); }

    void Create(DWORD style)
    {
        if (m_box.m_hWnd) {
            m_box.DestroyWindow();
        }
        ASSERT_TRUE(m_box.Create(WS_CHILD | WS_VISIBLE | CBS_AUTOHSCROLL | style, CRect(10, 10, 150, 160), &m_host,
                                 ts::kControlId));
        ts::ParkMouse();
    }

    ts::AfxHost m_host{200, 240};
    COpenSearchBox m_box;
};

TEST_F(SearchBox, HasTheFontOfDialogs)
{
    EXPECT_EQ(reinterpret_cast<LRESULT>(ts::GuiFont()), m_box.SendMessage(WM_GETFONT));
}

TEST_F(SearchBox, KnowsItsEditControl)
{
    EXPECT_EQ(nullptr, COpenSearchBox().m_hWndEdit);
    ASSERT_NE(nullptr, m_box.m_hWndEdit);
    EXPECT_EQ(m_box.m_hWnd, ::GetParent(m_box.m_hWndEdit));
}

TEST_F(SearchBox, EditControlOfAFormerWindowIsForgotten)
{
    const ts::ReplacedImport none(L"afx.dll", "GetComboBoxInfo", &NoComboBoxInfo);
    Create(CBS_DROPDOWN);
    EXPECT_EQ(nullptr, m_box.m_hWndEdit);
}

TEST_F(SearchBox, TextIsLimitedTo260Characters)
{
    EXPECT_EQ(260, ::SendMessageW(m_box.m_hWndEdit, EM_GETLIMITTEXT, 0, 0));
}

TEST_F(SearchBox, FailedCreationIsPassedOn)
{
    class CFailing : public CSearchBox
    {
      protected:
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_CREATE ? -1 : CSearchBox::DefWindowProc(message, wParam, lParam);
        }
    } failing;
    EXPECT_FALSE(failing.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 50, 50), &m_host, ts::kOtherId));
    EXPECT_EQ(nullptr, failing.m_hWnd);
}

TEST_F(SearchBox, FramesAreGreyAndWhite)
{
    const ts::Picture look = ts::LookOf(m_box);
    EXPECT_TRUE(ts::FrameIs(look, {0, 0, look.Width(), look.Height()}, kOuter));
    // The glyph may stand over the second line, and the edit control within it.
    const int glyph = look.Width() - 1 - 17;
    EXPECT_TRUE(ts::AreaIs(look, {1, 1, glyph, 2}, kWhite));
    EXPECT_TRUE(ts::AreaIs(look, {1, 1, 2, look.Height() - 1}, kWhite));
    EXPECT_TRUE(ts::AreaIs(look, {1, look.Height() - 2, glyph, look.Height() - 1}, kWhite));
}

TEST_F(SearchBox, MagnifierStandsOverTheButton)
{
    const HBITMAP bitmap = ::LoadBitmapW(ts::Library(), MAKEINTRESOURCEW(IDB_SEARCH));
    ASSERT_NE(nullptr, bitmap);
    const ts::Picture glyph = ts::PictureOf(bitmap);
    ::DeleteObject(bitmap);
    ASSERT_EQ(16, glyph.Width());
    ASSERT_EQ(17, glyph.Height());
    const ts::Picture look = ts::LookOf(m_box);
    const int x = look.Width() - 1 - 17;
    const int y = (look.Height() - 2 - 16) / 2;
    EXPECT_TRUE(ts::SamePicture(glyph, look.Crop({x, y, x + 16, y + 17})));
}

TEST_F(SearchBox, WithoutItsBitmapOrAMemoryDcTheButtonIsLeftAsItIs)
{
    // What is under the magnifier: the same two frames over a plain combo box.
    const auto magnifier = [this](const ts::Picture& look) {
        const int x = look.Width() - 1 - 17;
        return look.Crop({x, 2, x + 15, look.Height() - 2});
    };
    const HWND plain = ::CreateWindowW(L"COMBOBOX", L"", WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, 10, 40, 140, 150,
                                       m_host.m_hWnd, nullptr, nullptr, nullptr);
    ::SendMessageW(plain, WM_SETFONT, reinterpret_cast<WPARAM>(ts::GuiFont()), FALSE);
    const ts::Picture bare = magnifier(ts::LookOf(*CWnd::FromHandle(plain)));
    {
        const ts::ReplacedImport none(L"QorUI.dll", "LoadBitmapW", &ts::NoBitmapResource);
        EXPECT_TRUE(ts::SamePicture(bare, magnifier(ts::LookOf(m_box))));
    }
    {
        const ts::ReplacedImport none(L"QorUI.dll", "CreateCompatibleDC", &ts::NoMemoryDc);
        EXPECT_TRUE(ts::SamePicture(bare, magnifier(ts::LookOf(m_box))));
    }
    EXPECT_FALSE(ts::SamePicture(bare, magnifier(ts::LookOf(m_box))));
}

TEST_F(SearchBox, ButtonStillDropsTheList)
{
    m_box.AddString(L"before");
    CRect client;
    m_box.GetClientRect(&client);
    ts::Click(m_box, client.right - 8, client.Height() / 2);
    EXPECT_TRUE(m_box.GetDroppedState());
    m_box.ShowDropDown(FALSE);
}

TEST_F(SearchBox, BoxWithoutEditControlPaintsToo)
{
    Create(CBS_DROPDOWNLIST);
    EXPECT_TRUE(ts::FrameIs(ts::LookOf(m_box), {0, 0, ts::LookOf(m_box).Width(), ts::LookOf(m_box).Height()}, kOuter));
}

TEST_F(SearchBox, ShowingPaintingAndClosingLeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CSearchBox box;
        box.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(10, 60, 150, 160), &m_host, ts::kOtherId);
        ts::LookOf(box);
        box.DestroyWindow();
    }));
}

} // namespace
