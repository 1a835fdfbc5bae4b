#include "TestFrame.h"

#include <tests/support/Imports.h>

#include <algorithm>
#include <functional>

// What is asked to be painted anew is seen in the calls: the system adds what a change of size uncovers by itself.
namespace
{

struct Invalidated
{
    HWND wnd;
    CRect rect; // empty for the whole window
    bool erase;
};

std::vector<Invalidated> g_invalidated;

BOOL WINAPI RecordInvalidate(HWND wnd, const RECT* rect, BOOL erase)
{
    g_invalidated.push_back({wnd, rect ? CRect(*rect) : CRect(0, 0, 0, 0), erase != FALSE});
    return TRUE;
}

/** Gives a window another size. @return what was invalidated of the window itself; nothing of it is to be erased. */
std::vector<CRect> PartsAfter(HWND wnd, int cx, int cy)
{
    const ts::ReplacedImport hook(L"afx.dll", "InvalidateRect", &RecordInvalidate);
    g_invalidated.clear();
    ::SetWindowPos(wnd, nullptr, 0, 0, cx, cy, SWP_NOMOVE | SWP_NOZORDER);
    std::vector<CRect> parts;
    for (const Invalidated& call : g_invalidated) {
        if (call.wnd == wnd) {
            EXPECT_FALSE(call.erase);
            parts.push_back(call.rect);
        }
    }
    return parts;
}

using Parts = std::vector<CRect>;

TEST(DialogRepaint, SizingPaintsOnlyWhatChanges)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand | kSizable);
    ASSERT_TRUE(dialog.Open());
    ASSERT_EQ(CSize(300, 195), dialog.ClientSize());
    EXPECT_EQ((Parts{{192, 0, 400, 32}, {291, 0, 400, 195}, {0, 186, 400, 300}}), PartsAfter(dialog, 400, 300));
    EXPECT_EQ((Parts{{292, 0, 320, 32}, {311, 0, 320, 300}, {0, 241, 320, 250}}), PartsAfter(dialog, 320, 250));
}

TEST(DialogRepaint, TheWholeDialogIsPaintedWhenItsCloseButtonWasMade)
{
    const ts::ReplacedImport hook(L"afx.dll", "InvalidateRect", &RecordInvalidate);
    g_invalidated.clear();
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Create(IDD_OK_CANCEL));
    EXPECT_TRUE(std::any_of(g_invalidated.begin(), g_invalidated.end(), [&dialog](const Invalidated& call) {
        return call.wnd == dialog.m_hWnd && call.rect.IsRectEmpty();
    }));
}

TEST(DialogRepaint, WithoutSizingBorderNothingIsPaintedAnew)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(Parts{}, PartsAfter(dialog, 400, 300));
}

TEST(FrameRepaint, SizingPaintsOnlyWhatChanges)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    EXPECT_EQ((Parts{{441, 0, 700, 84}, {591, 0, 700, 400}, {0, 391, 700, 500}}), PartsAfter(frame, 700, 500));
    EXPECT_EQ((Parts{{541, 0, 500, 84}, {491, 0, 500, 500}, {0, 291, 500, 300}}), PartsAfter(frame, 500, 300));
}

TEST(FrameRepaint, TheLowBannerIsPaintedInItsOwnHeight)
{
    QorSetAppIcon(nullptr, TRUE);
    CTestFrame frame;
    const bool opened = frame.Open();
    const Parts parts = PartsAfter(frame, 700, 500);
    QorSetAppIcon(nullptr, FALSE);
    ASSERT_TRUE(opened);
    ASSERT_EQ(3u, parts.size());
    EXPECT_EQ(CRect(441, 0, 700, 64), parts[0]);
}

std::vector<BOOL> g_repaints;

BOOL WINAPI RecordMove(HWND wnd, int x, int y, int cx, int cy, BOOL repaint)
{
    g_repaints.push_back(repaint);
    return ::MoveWindow(wnd, x, y, cx, cy, repaint);
}

TEST(FrameRepaint, TitleButtonsMoveWithoutRepaintAndAreInvalidated)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    const ts::ReplacedImport hook(L"afx.dll", "MoveWindow", &RecordMove);
    g_repaints.clear();
    PartsAfter(frame, 700, 500);
    EXPECT_EQ((std::vector<BOOL>{FALSE, FALSE, FALSE}), g_repaints);
    for (int id = IDC_FRAME_MINIMIZE; id <= IDC_FRAME_CLOSE; ++id) {
        const HWND button = ::GetDlgItem(frame, id);
        EXPECT_EQ(1, std::count_if(g_invalidated.begin(), g_invalidated.end(),
                                   [button](const Invalidated& call) { return call.wnd == button; }))
            << id;
    }
}

std::vector<BOOL> g_shapeRedraws;

int WINAPI RecordShape(HWND wnd, HRGN shape, BOOL redraw)
{
    g_shapeRedraws.push_back(redraw);
    return ::SetWindowRgn(wnd, shape, redraw);
}

TEST(FrameRepaint, ANewShapeIsRedrawn)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    const ts::ReplacedImport hook(L"afx.dll", "SetWindowRgn", &RecordShape);
    g_shapeRedraws.clear();
    frame.SetWindowPos(nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(std::vector<BOOL>{TRUE}, g_shapeRedraws);
}

std::vector<int> g_saved;
std::vector<int> g_restored;

int WINAPI RecordSave(HDC dc)
{
    g_saved.push_back(::SaveDC(dc));
    return g_saved.back();
}

BOOL WINAPI RecordRestore(HDC dc, int level)
{
    g_restored.push_back(level);
    return ::RestoreDC(dc, level);
}

/** Whether drawing saves the state of its device context once and goes back to what was saved. */
bool KeepsState(const std::function<void()>& draw)
{
    const ts::ReplacedImport save(L"QorUI.dll", "SaveDC", &RecordSave);
    const ts::ReplacedImport restore(L"QorUI.dll", "RestoreDC", &RecordRestore);
    g_saved.clear();
    g_restored.clear();
    draw();
    return g_saved.size() == 1 && g_saved == g_restored;
}

TEST(DialogRepaint, TheDeviceContextsStateIsSavedAndRestored)
{
    CTestDialog dialog(IDD_OK_CANCEL, kBand);
    ASSERT_TRUE(dialog.Open());
    CClientDC dc(&dialog);
    EXPECT_TRUE(KeepsState([&] { dialog.Paint(dc); }));
}

TEST(FrameRepaint, TheDeviceContextsStateIsSavedAndRestored)
{
    CTestFrame frame;
    ASSERT_TRUE(frame.Open());
    EXPECT_TRUE(KeepsState(
        [&frame] { frame.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_NOCHILDREN); }));
}

} // namespace
