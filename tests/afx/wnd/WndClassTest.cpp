#include <tests/afx/TestWindows.h>

TEST(WindowClass, SameAttributesGiveTheSameClassAndOthersAnother)
{
    const HCURSOR hCursor = ::LoadCursor(nullptr, IDC_CROSS);
    const CString strFirst = AfxRegisterWndClass(CS_DBLCLKS, hCursor);
    EXPECT_EQ(strFirst, AfxRegisterWndClass(CS_DBLCLKS, hCursor));
    EXPECT_NE(strFirst, AfxRegisterWndClass(0, hCursor));
    WNDCLASS info = {};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), strFirst, &info));
    EXPECT_EQ(hCursor, info.hCursor);
    EXPECT_EQ(static_cast<UINT>(CS_DBLCLKS), info.style);
}

TEST(WindowClass, NameOfARegisteredClassStaysValid)
{
    const LPCTSTR lpszFirst = AfxRegisterWndClass(CS_DBLCLKS);
    const CString strCopy = lpszFirst;
    for (UINT style = 1; style < 8; ++style) {
        AfxRegisterWndClass(style);
    }
    EXPECT_EQ(strCopy, lpszFirst);
}

TEST(WindowClass, RegisteringTwiceSucceeds)
{
    WNDCLASS wndClass = {};
    wndClass.lpfnWndProc = ::DefWindowProc;
    wndClass.hInstance = AfxGetInstanceHandle();
    wndClass.lpszClassName = _T("afx_wnd_test_class");
    EXPECT_TRUE(AfxRegisterClass(&wndClass));
    EXPECT_TRUE(AfxRegisterClass(&wndClass));
    EXPECT_FALSE(AfxRegisterClass(nullptr));
}
