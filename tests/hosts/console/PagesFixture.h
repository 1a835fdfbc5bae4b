#pragma once

#include <hosts/console/ConsoleFrame.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>
#include <QorApi/QorApi.h>
#include <tests/support/Support.h>
#include <tests/support/ui/Control.h>

#include <gtest/gtest.h>

/** The console's main window in this process, with a store of sample data, worked by mouse and keyboard. */
class Pages : public testing::Test
{
  protected:
    static constexpr int kMostTabStops = 30;

    void SetUp() override
    {
        ASSERT_TRUE(QorSetLanguage(L"en"));
        ASSERT_EQ(static_cast<DWORD>(ERROR_SUCCESS), QorOpen());
        ASSERT_EQ(static_cast<DWORD>(ERROR_SUCCESS), QorLogonUser(QORUSER_BUILTIN_NAME, L""));
        ASSERT_EQ(static_cast<DWORD>(ERROR_SUCCESS), QorFillDemoStore());
        QorLogoff();
        ASSERT_TRUE(m_frame.Create());
        m_frame.ShowWindow(SW_SHOW);
        ASSERT_TRUE(ts::BringToFront(m_frame));
        ts::SetPreTranslate([this](MSG& msg) { return CWnd::WalkPreTranslateTree(m_frame, &msg) != FALSE; });
    }

    void TearDown() override
    {
        if (m_frame.m_hWnd) {
            m_frame.DestroyWindow();
        }
        QorClose();
    }

    void Show(const wchar_t* page)
    {
        ASSERT_TRUE(m_frame.ShowPage(FindPage(page).value()));
        ::SetFocus(PageList());
        ts::Settle();
    }

    void ShowState(const wchar_t* name) { ASSERT_TRUE(m_frame.CurrentPage()->ShowState(name)); }

    HWND PageList() { return ::GetDlgItem(m_frame, ids::frame::kPageList); }
    HWND Control(UINT id) { return ::GetDlgItem(*m_frame.CurrentPage(), static_cast<int>(id)); }

    template <class T>
    T& ControlAs(UINT id)
    {
        return static_cast<T&>(*CWnd::FromHandlePermanent(Control(id)));
    }

    /** The control of the frame or the page that has the focus, itself or in a window of its own inside. */
    HWND FocusedControl()
    {
        HWND control = ::GetFocus();
        while (control && ::GetParent(control) != m_frame.m_hWnd && ::GetParent(control) != *m_frame.CurrentPage()) {
            control = ::GetParent(control);
        }
        return control;
    }

    /** Presses Tab until a control of the page has the focus. */
    testing::AssertionResult TabTo(UINT id)
    {
        for (int i = 0; i < kMostTabStops; ++i) {
            if (FocusedControl() == Control(id)) {
                return testing::AssertionSuccess();
            }
            ts::Key(VK_TAB);
        }
        return testing::AssertionFailure() << "Tab does not lead to control " << id;
    }

    /** Goes to a control and presses a key there. */
    void Press(UINT id, WORD key)
    {
        ASSERT_TRUE(TabTo(id));
        ts::Key(key);
    }

    /** Goes to an edit control, which selects what it holds, and types. */
    void TypeInto(UINT id, std::wstring_view text)
    {
        ASSERT_TRUE(TabTo(id));
        ts::Type(text);
    }

    CString Text(UINT id) { return ts::TextOf(Control(id)); }

    ts::TempFolder m_folder;
    ts::EnvironmentVariable m_store{L"QOR_STORE", m_folder.File(L"store.db").c_str()};
    CConsoleFrame m_frame;
};
