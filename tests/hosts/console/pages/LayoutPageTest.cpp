#include <hosts/console/ControlIds.h>
#include <hosts/console/res/ConsoleResource.h>
#include <tests/hosts/console/PagesFixture.h>

namespace
{

using namespace ids::layout;

class LayoutPage : public Pages
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(L"layout");
    }

    static CString StatusOf(HWND dialog) { return ts::TextOf(::GetDlgItem(dialog, IDC_LAYOUT_STATUS)); }
};

TEST_F(LayoutPage, DialogOpensAndClosesByKeyboard)
{
    ts::ModalDriver escape;
    escape.InDialog([](HWND) { ts::Key(VK_ESCAPE); });
    Press(kOpen, VK_SPACE);
    EXPECT_TRUE(escape.Finished());
    EXPECT_STREQ(L"Result: 2", Text(kResult));
    EXPECT_EQ(Control(kOpen), ::GetFocus());
    ts::ModalDriver accept;
    accept.InDialog([](HWND) { ts::Chord({VK_SHIFT, VK_TAB}); }).InDialog([](HWND) { ts::Chord({VK_SHIFT, VK_TAB}); });
    accept.InDialog([](HWND) { ts::Key(VK_RETURN); }); // on OK
    Press(kOpen, VK_RETURN);
    EXPECT_TRUE(accept.Finished());
    EXPECT_STREQ(L"Result: 1", Text(kResult));
    EXPECT_EQ(Control(kOpen), ::GetFocus());
}

TEST_F(LayoutPage, DialogIsWorkedByKeyboard)
{
    ts::ModalDriver driver;
    driver.InDialog([](HWND) { ts::Chord({VK_MENU, 'S'}); });
    driver.InDialog([](HWND dialog) {
        EXPECT_STREQ(L"The block is hidden.", StatusOf(dialog));
        ts::Key(VK_SPACE); // the button has the focus now
    });
    driver.InDialog([](HWND dialog) {
        EXPECT_STREQ(L"The block is shown.", StatusOf(dialog));
        ts::Key(VK_TAB);
    });
    driver.InDialog([](HWND) { ts::Key(VK_SPACE); });
    driver.InDialog([](HWND dialog) {
        EXPECT_STREQ(L"The block is disabled.", StatusOf(dialog));
        ts::Key(VK_ESCAPE);
    });
    Press(kOpen, VK_SPACE);
    EXPECT_TRUE(driver.Finished());
}

class LayoutDialog : public Pages
{
  protected:
    void SetUp() override
    {
        Pages::SetUp();
        Show(L"layout");
    }

    static CRect ClientOf(HWND wnd)
    {
        CRect client;
        ::GetClientRect(wnd, client);
        return client;
    }

    static void ExpectButtonsInTheBand(HWND dialog)
    {
        const CRect client = ClientOf(dialog);
        CRect ok;
        CRect cancel;
        EXPECT_TRUE(QorGetCtrlRect(CWnd::FromHandle(dialog), IDOK, ok));
        EXPECT_TRUE(QorGetCtrlRect(CWnd::FromHandle(dialog), IDCANCEL, cancel));
        EXPECT_EQ(CPoint(client.right - 18, client.bottom - 39), CPoint(cancel.right, cancel.top));
        EXPECT_EQ(CPoint(cancel.left - 9, cancel.top), CPoint(ok.right, ok.top));
    }

    /** Whether the dialog shows what it shows when all of it is painted anew. */
    static testing::AssertionResult IsPaintedCompletely(HWND dialog)
    {
        const ts::Picture shown = ts::CaptureWindow(dialog);
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        return ts::SamePicture(ts::CaptureWindow(dialog), shown);
    }
};

TEST_F(LayoutDialog, ButtonsStayInTheirCornerWhenItIsSized)
{
    ts::ModalDriver driver;
    driver.InDialog([](HWND dialog) {
        ExpectButtonsInTheBand(dialog);
        for (const CSize change : {CSize(60, 40), CSize(-90, -20)}) {
            const CSize size = ClientOf(dialog).Size() + change;
            ::SetWindowPos(dialog, nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
            EXPECT_EQ(size, ClientOf(dialog).Size());
            ExpectButtonsInTheBand(dialog);
            EXPECT_TRUE(IsPaintedCompletely(dialog));
        }
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    ts::Click(Control(kOpen));
    EXPECT_TRUE(driver.Finished());
}

} // namespace
