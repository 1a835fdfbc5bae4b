#include <hosts/console/ConsoleFrame.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>
#include <QorApi/QorApi.h>
#include <tests/support/Support.h>

#include <algorithm>
#include <array>

namespace
{

constexpr int kMargin = 2;        // of check boxes and radio buttons
constexpr int kGlyph = 17;        // and what their glyph takes
constexpr int kPushMargin = 3;    // of push buttons, at each side: border, bevel, focus
constexpr int kCommandMargin = 5; // of command buttons
constexpr int kCommandIcon = 38;  // and what their icon takes
constexpr int kHeaderMargin = 6;  // of header items, at each side
constexpr int kSortArrow = 18;    // and what the arrow takes

/** Size of a text in a window's font. @param width where lines are broken; 0 for a single line. */
CSize SizeOf(CWnd& wnd, const CString& text, int width, UINT flags = 0)
{
    CClientDC dc(&wnd);
    CFont* old = wnd.GetFont() ? dc.SelectObject(wnd.GetFont()) : nullptr;
    CRect rect(0, 0, width, 0);
    const UINT lines = width > 0 ? DT_WORDBREAK | DT_EDITCONTROL : DT_SINGLELINE;
    dc.DrawText(text, rect, DT_CALCRECT | lines | flags);
    if (old) {
        dc.SelectObject(old);
    }
    return rect.Size();
}

testing::AssertionResult FitsInto(const CString& text, CSize needed, CSize place)
{
    if (needed.cx <= place.cx && needed.cy <= place.cy) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << ts::ToUtf8(text.GetString()) << " needs " << needed.cx << " x " << needed.cy
                                       << " and has " << place.cx << " x " << place.cy;
}

/** Whether a command button has nothing kMore to show under its title when it is higher. */
testing::AssertionResult NoteFits(CWnd& button, const CString& title, const CRect& client)
{
    constexpr int kMore = 100;
    button.SetWindowPos(nullptr, 0, 0, client.Width(), client.Height() + kMore, SWP_NOMOVE | SWP_NOZORDER);
    const ts::Picture below = ts::CaptureWindow(button).Crop(CRect(
        kCommandMargin, client.bottom - kCommandMargin, client.right - kCommandMargin, client.bottom + kMore / 2));
    button.SetWindowPos(nullptr, 0, 0, client.Width(), client.Height(), SWP_NOMOVE | SWP_NOZORDER);
    if (below.Count(below.At(0, 0)) == below.Width() * below.Height()) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "the text under " << ts::ToUtf8(title.GetString()) << " is cut off";
}

/** Whether a button's whole text can be seen. */
testing::AssertionResult ButtonFits(CWnd& button, const CString& text, CRect client)
{
    if (dynamic_cast<CCheckBox*>(&button) || dynamic_cast<CRadioBox*>(&button)) {
        client.DeflateRect(kMargin, kMargin);
        client.left += kGlyph;
        return FitsInto(text, SizeOf(button, text, client.Width()), client.Size());
    }
    if (dynamic_cast<CCmdBtn*>(&button)) {
        const testing::AssertionResult note = NoteFits(button, text, client);
        client.DeflateRect(kCommandMargin, kCommandMargin);
        client.left += kCommandIcon;
        return note ? FitsInto(text, SizeOf(button, text, 0), client.Size()) : note;
    }
    client.DeflateRect(kPushMargin, 0);
    return FitsInto(text, SizeOf(button, text, 0), client.Size());
}

testing::AssertionResult LabelFits(CWnd& label, const CString& text, CRect client)
{
    const UINT prefix = (label.GetStyle() & SS_NOPREFIX) ? DT_NOPREFIX : 0;
    const int width = (label.GetStyle() & SS_CENTERIMAGE) ? 0 : client.Width();
    return FitsInto(text, SizeOf(label, text, width, prefix), client.Size());
}

void ExpectHeaderFits(CWnd& wnd)
{
    CHeaderCtrl header;
    header.Attach(wnd.m_hWnd);
    for (int i = 0; i < header.GetItemCount(); ++i) {
        std::array<wchar_t, 100> text = {};
        HDITEMW item = {};
        item.mask = HDI_TEXT | HDI_WIDTH;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        header.GetItem(i, &item);
        const CSize needed = SizeOf(header, text.data(), 0, DT_NOPREFIX);
        EXPECT_TRUE(FitsInto(text.data(), needed, CSize(item.cxy - 2 * kHeaderMargin - kSortArrow, needed.cy)));
    }
    header.Detach();
}

void ExpectFits(HWND handle)
{
    CWnd& wnd = *CWnd::FromHandle(handle);
    CString text;
    wnd.GetWindowText(text);
    CRect client;
    wnd.GetClientRect(client);
    std::array<wchar_t, 40> name = {};
    ::GetClassNameW(handle, name.data(), static_cast<int>(name.size()));
    const CString kind = name.data();
    if (kind.CompareNoCase(WC_BUTTONW) == 0 && !text.IsEmpty()) {
        EXPECT_TRUE(ButtonFits(wnd, text, client));
    } else if (kind.CompareNoCase(WC_STATICW) == 0 && !text.IsEmpty()) {
        EXPECT_TRUE(LabelFits(wnd, text, client));
    } else if (kind.CompareNoCase(WC_HEADERW) == 0) {
        ExpectHeaderFits(wnd);
    }
}

BOOL CALLBACK ExpectChildFits(HWND child, LPARAM)
{
    if (::IsWindowVisible(child)) {
        ExpectFits(child);
    }
    return TRUE;
}

/** The console in this process, in each of the product's languages. */
class TextFit : public testing::TestWithParam<const wchar_t*>
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(QorSetLanguage(GetParam()));
        ASSERT_EQ(static_cast<DWORD>(ERROR_SUCCESS), QorOpen());
        ASSERT_TRUE(m_frame.Create());
        m_frame.ShowWindow(SW_SHOW);
        ASSERT_TRUE(ts::BringToFront(m_frame));
    }

    void TearDown() override
    {
        if (m_frame.m_hWnd) {
            m_frame.DestroyWindow();
        }
        QorClose();
        QorSetLanguage(L"en");
    }

    ts::TempFolder m_folder;
    ts::EnvironmentVariable m_store{L"QOR_STORE", m_folder.File(L"store.db").c_str()};
    CConsoleFrame m_frame;
};

TEST_P(TextFit, NothingIsCutOffOnThePages)
{
    for (size_t page = 0; page < AllPages().size(); ++page) {
        SCOPED_TRACE(ts::ToUtf8(AllPages()[page].name));
        ASSERT_TRUE(m_frame.ShowPage(page));
        ts::Settle();
        ::EnumChildWindows(*m_frame.CurrentPage(), &ExpectChildFits, 0);
    }
}

TEST_P(TextFit, NothingIsCutOffInTheListOfPages)
{
    auto& list = static_cast<CPageList&>(*CWnd::FromHandlePermanent(::GetDlgItem(m_frame, ids::frame::kPageList)));
    CRect client;
    list.GetClientRect(client);
    ASSERT_GT(list.GetCount(), 0);
    for (int i = 0; i < list.GetCount(); ++i) {
        CString text;
        list.GetText(i, text);
        EXPECT_TRUE(FitsInto(text, SizeOf(list, text, 0, DT_NOPREFIX),
                             CSize(client.Width() - 2 * CPageList::kMargin, CPageList::kRowHeight)));
    }
}

TEST_P(TextFit, NothingIsCutOffInMessageBoxes)
{
    for (const UINT kind :
         {QOR_MSG_ERROR, QOR_MSG_WARNING, QOR_MSG_INFO, QOR_MSG_CONFIRM, QOR_MSG_RETRY, QOR_MSG_YESNO}) {
        SCOPED_TRACE(kind);
        ts::ModalDriver driver;
        driver.InDialog([](HWND box) {
            ::EnumChildWindows(box, &ExpectChildFits, 0);
            ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
            ::PostMessageW(box, WM_COMMAND, IDOK, 0);
        });
        QorMsgBox(L"?", kind, 0, &m_frame);
        EXPECT_TRUE(driver.Finished());
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, TextFit, testing::Values(L"en", L"de", L"zh-CN"),
                         [](const testing::TestParamInfo<const wchar_t*>& info) {
                             std::string name = ts::ToUtf8(info.param);
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

} // namespace
