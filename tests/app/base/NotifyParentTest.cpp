#include <QorUI/app/base/NotifyParent.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Control.h>

namespace
{

TEST(NotifyParent, TellsWhoAndWhat)
{
    ts::AfxHost host;
    CStatic control;
    ASSERT_TRUE(control.Create(L"", WS_CHILD, CRect(0, 0, 9, 9), &host, ts::kControlId));
    HWND from = nullptr;
    host.Log().Answer(WM_NOTIFY, [&](const ts::Message& message) -> std::optional<LRESULT> {
        from = reinterpret_cast<const NMHDR*>(message.lParam)->hwndFrom;
        return TRUE;
    });
    QorNotifyParent(control, NM_CLICK);
    EXPECT_EQ(control.m_hWnd, from);
    EXPECT_TRUE(host.Log().Is({ts::Notify(ts::kControlId, NM_CLICK)}));
}

TEST(NotifyParent, WithoutWindowOrParentTellsNobody)
{
    ts::AfxHost host;
    QorNotifyParent(CStatic(), NM_CLICK);
    CWnd alone;
    ASSERT_TRUE(alone.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    QorNotifyParent(alone, NM_CLICK);
    EXPECT_TRUE(host.Log().Is({}));
}

} // namespace
