#include <QorUI/QorUI.h>
#include <tests/support/Support.h>
#include <tests/support/ui/AfxHost.h>
#include <tests/support/ui/Control.h>
#include <tests/support/ui/Look.h>

#include <algorithm>

namespace
{

constexpr COLORREF kSoft = RGB(236, 245, 250);
constexpr COLORREF kInk = RGB(0, 0, 0);

class Info : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_info.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &m_host, ts::kControlId));
    }

    /** What GDI draws for texts at places. */
    static ts::Picture Texts(const std::vector<std::tuple<CRect, CString, UINT>>& texts)
    {
        return ts::DrawTo(
            200, 100,
            [&texts](HDC dc) {
                ::SelectObject(dc, ts::GuiFont());
                ::SetBkMode(dc, TRANSPARENT);
                for (auto [rect, text, format] : texts) {
                    ::DrawTextW(dc, text, -1, &rect, format);
                }
            },
            kSoft);
    }

    static int Width(const wchar_t* text)
    {
        CClientDC dc(nullptr);
        const HGDIOBJ old = ::SelectObject(dc, ts::GuiFont());
        const int width = dc.GetTextExtent(text).cx;
        ::SelectObject(dc, old);
        return width;
    }

    static constexpr UINT kLine = DT_SINGLELINE | DT_END_ELLIPSIS;
    static constexpr UINT kLast = DT_WORDBREAK | DT_EDITCONTROL | DT_END_ELLIPSIS;
    const wchar_t* const kLong = L"a value that is much too long for a single line of this panel";

    ts::AfxHost m_host{220, 120};
    CQorInfo m_info;
};

TEST_F(Info, WithoutItemsIsTheSoftColour)
{
    EXPECT_TRUE(ts::AreaIs(ts::LookOf(m_info), CRect(0, 0, 200, 100), kSoft));
}

TEST_F(Info, IsPaintedAgainWhenTheSystemHasDrawnOverIt)
{
    m_info.AddItem(L"Label", L"value");
    const ts::Picture look = ts::LookOf(m_info);
    m_info.SetWindowText(L"Text");
    EXPECT_TRUE(ts::SamePicture(look, ts::CaptureWindow(m_info)));
    m_info.EnableWindow(FALSE);
    EXPECT_TRUE(ts::SamePicture(look, ts::CaptureWindow(m_info)));
}

TEST_F(Info, RowsAreSixteenPixelsHighAndValuesStandRightOfTheWidestLabel)
{
    m_info.AddItem(L"A", L"one");
    m_info.AddItem(L"Wide label", L"two");
    m_info.AddItem(L"B", L"three");
    const int left = Width(L"Wide label:") + 6;
    const ts::Picture expected = Texts({{CRect(0, 0, Width(L"A:"), 16), L"A:", kLine},
                                        {CRect(0, 16, Width(L"Wide label:"), 32), L"Wide label:", kLine},
                                        {CRect(0, 32, Width(L"B:"), 48), L"B:", kLine},
                                        {CRect(left, 0, 200, 16), L"one", kLine},
                                        {CRect(left, 16, 200, 32), L"two", kLine},
                                        {CRect(left, 32, 200, 100), L"three", kLast}});
    EXPECT_TRUE(ts::SamePicture(expected, ts::LookOf(m_info)));
}

TEST_F(Info, OnlyTheLastValueWraps)
{
    m_info.AddItem(L"A", kLong);
    m_info.AddItem(L"B", kLong);
    const int left = (std::max)(Width(L"A:"), Width(L"B:")) + 6;
    const ts::Picture look = ts::LookOf(m_info);
    EXPECT_TRUE(ts::SamePicture(Texts({{CRect(0, 0, Width(L"A:"), 16), L"A:", kLine},
                                       {CRect(0, 16, Width(L"B:"), 32), L"B:", kLine},
                                       {CRect(left, 0, 200, 16), kLong, kLine},
                                       {CRect(left, 16, 200, 100), kLong, kLast}}),
                                look));
    EXPECT_GT(look.BoundsOf(kInk).bottom, 32);
}

TEST_F(Info, OneItemWrapsToTheBottom)
{
    m_info.AddItem(L"A", kLong);
    EXPECT_GT(ts::LookOf(m_info).BoundsOf(kInk).bottom, 16);
}

TEST_F(Info, ValuesReachToTheRightEdge)
{
    const int left = Width(L"A:") + 6;
    for (int length = 40; length < 70; ++length) {
        const CString value(L'i', length);
        m_info.RemoveAll();
        m_info.AddItem(L"A", value);
        m_info.AddItem(L"", L"");
        ASSERT_TRUE(ts::SamePicture(
            Texts({{CRect(0, 0, Width(L"A:"), 16), L"A:", kLine}, {CRect(left, 0, 200, 16), value, kLine}}),
            ts::LookOf(m_info)))
            << length;
    }
}

TEST_F(Info, LastValueEndsAtTheBottomWithAnEllipsis)
{
    CString text;
    for (int i = 0; i < 60; ++i) {
        text += L"several words ";
    }
    m_info.AddItem(L"A", text);
    EXPECT_TRUE(ts::SamePicture(
        Texts({{CRect(0, 0, Width(L"A:"), 16), L"A:", kLine}, {CRect(Width(L"A:") + 6, 0, 200, 100), text, kLast}}),
        ts::LookOf(m_info)));
}

TEST_F(Info, WordsThatAreTooLongAreBroken)
{
    const CString word(L'x', 100);
    m_info.AddItem(L"A", word);
    EXPECT_TRUE(ts::SamePicture(
        Texts({{CRect(0, 0, Width(L"A:"), 16), L"A:", kLine}, {CRect(Width(L"A:") + 6, 0, 200, 100), word, kLast}}),
        ts::LookOf(m_info)));
}

TEST_F(Info, SurvivesTheEndOfTheGdiObjects)
{
    m_info.AddItem(L"A", L"one");
    m_info.AddItem(L"B", L"two");
    EXPECT_TRUE(ts::SurvivesGdiShortage(m_info));
}

TEST_F(Info, EmptyLabelHasNoColon)
{
    m_info.AddItem(L"", L"value");
    EXPECT_TRUE(ts::SamePicture(Texts({{CRect(6, 0, 200, 100), L"value", kLast}}), ts::LookOf(m_info)));
}

TEST_F(Info, LabelWiderThanThePanelHidesTheValues)
{
    const CString wide(L'W', 60);
    m_info.AddItem(wide, L"value");
    m_info.AddItem(L"", L"value");
    EXPECT_EQ(CRect(0, 0, 0, 0), ts::LookOf(m_info).Crop(CRect(0, 17, 200, 100)).BoundsOfOthers(kSoft));
}

TEST_F(Info, ChangesRepaint)
{
    ::ValidateRect(m_info, nullptr);
    m_info.AddItem(L"A", L"b");
    EXPECT_TRUE(::GetUpdateRect(m_info, nullptr, FALSE));
    ::ValidateRect(m_info, nullptr);
    m_info.RemoveAll();
    EXPECT_TRUE(::GetUpdateRect(m_info, nullptr, FALSE));
    EXPECT_TRUE(ts::AreaIs(ts::LookOf(m_info), CRect(0, 0, 200, 100), kSoft));
}

TEST_F(Info, ChangesAskForErasing)
{
    m_info.UpdateWindow();
    ts::MessageRecorder log(m_info);
    log.RecordOnly({WM_ERASEBKGND});
    m_info.AddItem(L"A", L"b");
    m_info.UpdateWindow();
    EXPECT_EQ(1u, log.Messages().size());
    m_info.RemoveAll();
    m_info.UpdateWindow();
    EXPECT_EQ(2u, log.Messages().size());
}

TEST_F(Info, ErasesNothing)
{
    EXPECT_EQ(TRUE, m_info.SendMessage(WM_ERASEBKGND, 0));
}

TEST_F(Info, MissingAndHugeTextsAreNoHarm)
{
    m_info.AddItem(nullptr, nullptr);
    EXPECT_TRUE(ts::AreaIs(ts::LookOf(m_info), CRect(0, 0, 200, 100), kSoft));
    m_info.AddItem(L"A", CString(L'x', 20000));
    EXPECT_GT(ts::LookOf(m_info).Count(kInk), 0);
}

TEST(InfoAlone, ChildNeedsAParent)
{
    CQorInfo info;
    EXPECT_FALSE(info.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), nullptr, 1));
    EXPECT_EQ(nullptr, info.m_hWnd);
}

TEST_F(Info, TakesItemsBeforeItHasAWindow)
{
    m_info.AddItem(L"A", L"b");
    const ts::Picture look = ts::LookOf(m_info);
    m_info.DestroyWindow();
    CQorInfo info;
    info.AddItem(L"Gone", L"gone");
    info.RemoveAll();
    info.AddItem(L"A", L"b");
    ASSERT_TRUE(info.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &m_host, ts::kControlId));
    EXPECT_TRUE(ts::SamePicture(look, ts::LookOf(info)));
    info.DestroyWindow();
    info.RemoveAll();
    ASSERT_TRUE(info.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &m_host, ts::kControlId));
    EXPECT_TRUE(ts::AreaIs(ts::LookOf(info), CRect(0, 0, 200, 100), kSoft));
    info.DestroyWindow();
}

TEST_F(Info, LeavesNothingBehind)
{
    EXPECT_TRUE(ts::NoLeak([this] {
        CQorInfo info;
        info.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &m_host, ts::kOtherId);
        info.AddItem(L"A", L"b");
        info.AddItem(L"B", kLong);
        info.UpdateWindow();
        info.DestroyWindow();
    }));
}

} // namespace
