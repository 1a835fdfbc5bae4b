#include <QorUI/app/draw/Draw.h>
#include <tests/app/res/resource.h>
#include <tests/support/Imports.h>
#include <tests/support/Resources.h>
#include <tests/support/ui/Drawn.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <span>

namespace
{

ts::Picture DrawnBox()
{
    return ts::Drawn(60, 40, [](CDC& dc) { QorDrawBox(dc, 5, 6, 40, 20, RGB(9, 8, 7)); });
}

TEST(DrawBox, OuterEdgeIsDarkAtTopAndLeftAndLightAtBottomAndRight)
{
    const ts::Picture picture = DrawnBox();
    EXPECT_EQ(RGB(168, 168, 152), picture.At(5, 6));
    EXPECT_EQ(RGB(168, 168, 152), picture.At(44, 6));
    EXPECT_EQ(RGB(168, 168, 152), picture.At(5, 25));
    EXPECT_EQ(RGB(248, 252, 248), picture.At(45, 26));
    EXPECT_EQ(RGB(248, 252, 248), picture.At(45, 7));
    EXPECT_EQ(RGB(248, 252, 248), picture.At(6, 26));
}

TEST(DrawBox, EdgeLinesExcludeTheirEndPoints)
{
    const ts::Picture picture = DrawnBox();
    EXPECT_EQ(ts::kPaper, picture.At(45, 6));
    EXPECT_EQ(ts::kPaper, picture.At(5, 26));
}

TEST(DrawBox, InnerEdgeLiesOnePixelFurtherIn)
{
    const ts::Picture picture = DrawnBox();
    EXPECT_EQ(RGB(112, 108, 96), picture.At(6, 7));
    EXPECT_EQ(RGB(112, 108, 96), picture.At(43, 7));
    EXPECT_EQ(RGB(112, 108, 96), picture.At(6, 24));
    EXPECT_EQ(RGB(240, 236, 224), picture.At(44, 25));
    EXPECT_EQ(RGB(240, 236, 224), picture.At(44, 8));
    EXPECT_EQ(RGB(240, 236, 224), picture.At(7, 25));
    EXPECT_EQ(ts::kPaper, picture.At(44, 7));
    EXPECT_EQ(ts::kPaper, picture.At(6, 25));
}

TEST(DrawBox, FillsTheInside)
{
    const ts::Picture picture = DrawnBox();
    EXPECT_EQ(36 * 16, picture.Count(RGB(9, 8, 7)));
    EXPECT_EQ(RGB(9, 8, 7), picture.At(7, 8));
    EXPECT_EQ(RGB(9, 8, 7), picture.At(42, 23));
    EXPECT_NE(RGB(9, 8, 7), picture.At(43, 24));
}

TEST(DrawBox, StaysInsideItsRectangle)
{
    const ts::Picture picture = DrawnBox();
    EXPECT_EQ(CRect(5, 6, 46, 27), CRect(picture.BoundsOfOthers(ts::kPaper)));
}

TEST(DrawBox, NullDeviceContextDoesNothing)
{
    const ts::Picture picture = ts::Drawn(20, 20, [](CDC&) { QorDrawBox(nullptr, 0, 0, 10, 10, 0); });
    EXPECT_EQ(400, picture.Count(ts::kPaper));
}

TEST(DrawBox, LeavesTheDeviceContextAsItWasAndNothingBehind)
{
    ts::Drawn(60, 40, [](CDC& dc) {
        const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN);
        const HGDIOBJ brush = ::GetCurrentObject(dc, OBJ_BRUSH);
        QorDrawBox(dc, 5, 6, 40, 20, RGB(9, 8, 7));
        EXPECT_EQ(pen, ::GetCurrentObject(dc, OBJ_PEN));
        EXPECT_EQ(brush, ::GetCurrentObject(dc, OBJ_BRUSH));
    });
    EXPECT_TRUE(ts::NoLeak([] { DrawnBox(); }));
}

TEST(DrawGradientLine, IsTheRowAboveItsStart)
{
    const ts::Picture picture = ts::Drawn(120, 10, [](CDC& dc) { QorDrawGradientLine(&dc, CPoint(10, 5), 100); });
    EXPECT_EQ(CRect(10, 4, 110, 5), CRect(picture.BoundsOfOthers(ts::kPaper)));
}

TEST(DrawGradientLine, FadesFromBlueToWhite)
{
    const ts::Picture picture = ts::Drawn(120, 10, [](CDC& dc) { QorDrawGradientLine(&dc, CPoint(10, 5), 100); });
    const auto expectNear = [](COLORREF expected, COLORREF pixel) {
        EXPECT_NEAR(GetRValue(expected), GetRValue(pixel), 4);
        EXPECT_NEAR(GetGValue(expected), GetGValue(pixel), 4);
        EXPECT_NEAR(GetBValue(expected), GetBValue(pixel), 4);
    };
    expectNear(RGB(0, 0, 200), picture.At(10, 4));
    expectNear(RGB(127, 127, 227), picture.At(60, 4));
    expectNear(RGB(255, 255, 255), picture.At(109, 4));
}

/** A gradient as the system was asked for it: position, red, green, blue and alpha of each corner, and the mesh. */
struct Gradient
{
    std::vector<std::vector<LONG>> corners;
    std::vector<std::pair<ULONG, ULONG>> rects;
    ULONG mode;
    bool operator==(const Gradient&) const = default;
};

std::vector<Gradient> g_gradients;

BOOL WINAPI RecordGradient(HDC, TRIVERTEX* corners, ULONG count, void* mesh, ULONG rects, ULONG mode)
{
    Gradient gradient = {{}, {}, mode};
    for (const TRIVERTEX& corner : std::span(corners, count)) {
        gradient.corners.push_back({corner.x, corner.y, corner.Red, corner.Green, corner.Blue, corner.Alpha});
    }
    for (const GRADIENT_RECT& rect : std::span(static_cast<GRADIENT_RECT*>(mesh), rects)) {
        gradient.rects.emplace_back(rect.UpperLeft, rect.LowerRight);
    }
    g_gradients.push_back(gradient);
    return TRUE;
}

TEST(DrawGradientLine, IsOneGradientWithItsEndsInSixteenBitsAndNoAlpha)
{
    const ts::ReplacedImport record(L"afx.dll", "GdiGradientFill", &RecordGradient);
    g_gradients.clear();
    ts::Drawn(120, 10, [](CDC& dc) { QorDrawGradientLine(&dc, CPoint(10, 5), 100); });
    const Gradient rule = {
        {{10, 4, 0, 0, 0xC800, 0}, {110, 5, 0xFF00, 0xFF00, 0xFF00, 0}}, {{0, 1}}, GRADIENT_FILL_RECT_H};
    EXPECT_EQ(std::vector{rule}, g_gradients);
}

TEST(DrawGradientLine, NullDeviceContextDoesNothing)
{
    const ts::Picture picture = ts::Drawn(20, 20, [](CDC&) { QorDrawGradientLine(nullptr, CPoint(1, 1), 10); });
    EXPECT_EQ(400, picture.Count(ts::kPaper));
}

/** A bitmap of the screen's depth with one pixel of each colour. */
class ColourRow
{
  public:
    explicit ColourRow(std::initializer_list<COLORREF> colours)
    {
        CClientDC screen(nullptr);
        m_bitmap.CreateCompatibleBitmap(&screen, static_cast<int>(colours.size()), 1);
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        const HGDIOBJ old = ::SelectObject(dc.m_hDC, m_bitmap.GetSafeHandle());
        int x = 0;
        for (const COLORREF colour : colours) {
            ::SetPixel(dc.m_hDC, x++, 0, colour);
        }
        ::SelectObject(dc.m_hDC, old);
    }
    HBITMAP Handle() { return m_bitmap; }

  private:
    CBitmap m_bitmap;
};

std::vector<COLORREF> PixelsOf(HBITMAP bitmap)
{
    const ts::Picture picture = ts::PictureOf(bitmap);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            pixels.push_back(picture.At(x, y));
        }
    }
    return pixels;
}

TEST(GrayBmp, WeighsTheColoursAndCutsOff)
{
    ColourRow source({RGB(255, 255, 255), RGB(255, 0, 0), RGB(250, 0, 0), RGB(0, 250, 0), RGB(0, 0, 250)});
    CBitmap gray;
    ASSERT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
    const std::vector<COLORREF> expected = {RGB(255, 255, 255), RGB(76, 76, 76), RGB(74, 74, 74), RGB(146, 146, 146),
                                            RGB(28, 28, 28)};
    EXPECT_EQ(expected, PixelsOf(gray));
}

TEST(GrayBmp, BlackStaysBlack)
{
    ColourRow source({0, RGB(255, 0, 0), 0});
    CBitmap gray;
    ASSERT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
    EXPECT_EQ((std::vector<COLORREF>{0, RGB(76, 76, 76), 0}), PixelsOf(gray));
}

TEST(GrayBmp, HasTheSizeAndDepthOfTheSourceAndLeavesItAlone)
{
    ColourRow source({RGB(255, 0, 0), RGB(0, 255, 0)});
    CBitmap gray;
    ASSERT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
    BITMAP of = {};
    BITMAP copy = {};
    ::GetObjectW(source.Handle(), sizeof(of), &of);
    gray.GetBitmap(&copy);
    EXPECT_EQ(of.bmWidth, copy.bmWidth);
    EXPECT_EQ(of.bmHeight, copy.bmHeight);
    EXPECT_EQ(of.bmPlanes, copy.bmPlanes);
    EXPECT_EQ(of.bmBitsPixel, copy.bmBitsPixel);
    EXPECT_EQ((std::vector<COLORREF>{RGB(255, 0, 0), RGB(0, 255, 0)}), PixelsOf(source.Handle()));
}

TEST(GrayBmp, CopyOfABlackAndWhiteBitmapIsTheSame)
{
    const WORD bits[] = {0x00A0, 0x0060}; // of each row, the first byte's upper bits
    CBitmap source;
    ASSERT_TRUE(source.CreateBitmap(3, 2, 1, 1, bits));
    CBitmap gray;
    ASSERT_TRUE(gray.Attach(QorCreateGrayBmp(source)));
    BITMAP copy = {};
    gray.GetBitmap(&copy);
    EXPECT_EQ(3, copy.bmWidth);
    EXPECT_EQ(2, copy.bmHeight);
    EXPECT_EQ(1, copy.bmPlanes);
    EXPECT_EQ(1, copy.bmBitsPixel);
    const COLORREF white = RGB(255, 255, 255);
    EXPECT_EQ((std::vector<COLORREF>{white, 0, white, 0, white, white}), PixelsOf(gray));
}

TEST(GrayBmp, NoBitmapGivesNull)
{
    EXPECT_EQ(nullptr, QorCreateGrayBmp(nullptr));
    EXPECT_EQ(nullptr, QorCreateGrayBmp(static_cast<HBITMAP>(::GetStockObject(WHITE_BRUSH))));
}

TEST(GrayBmp, LeavesNothingBehind)
{
    ColourRow source({RGB(255, 0, 0), 0});
    EXPECT_TRUE(ts::NoLeak([&] {
        CBitmap gray;
        EXPECT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
        EXPECT_EQ(nullptr, QorCreateGrayBmp(nullptr));
    }));
}

TEST(GrayBmp, BitmapThatIsInUseGivesNullAndLeavesNothingBehind)
{
    ColourRow source({RGB(255, 0, 0), 0});
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HGDIOBJ old = ::SelectObject(dc.m_hDC, source.Handle());
    EXPECT_TRUE(ts::NoLeak([&] { EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle())); }));
    ::SelectObject(dc.m_hDC, old);
}

int g_dcsLeft = 0;

HDC WINAPI FewMemoryDcs(HDC like)
{
    return g_dcsLeft-- > 0 ? ::CreateCompatibleDC(like) : nullptr;
}

TEST(GrayBmp, WithoutADeviceContextGivesNullAndReleasesTheOthers)
{
    ColourRow source({RGB(255, 0, 0), 0});
    const ts::ReplacedImport few(L"QorUI.dll", "CreateCompatibleDC", &FewMemoryDcs);
    for (const int left : {0, 1}) {
        EXPECT_TRUE(ts::NoLeak([&] {
            g_dcsLeft = left;
            EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle()));
        })) << left;
    }
}

int g_screenDcs = 0;

HDC WINAPI TakeScreenDc(HWND wnd)
{
    ++g_screenDcs;
    return ::GetDC(wnd);
}

HDC WINAPI NoScreenDc(HWND)
{
    return nullptr;
}

int WINAPI GiveBackScreenDc(HWND wnd, HDC dc)
{
    --g_screenDcs;
    return ::ReleaseDC(wnd, dc);
}

TEST(GrayBmp, GivesTheScreenBack)
{
    ColourRow source({RGB(255, 0, 0), 0});
    const ts::ReplacedImport take(L"QorUI.dll", "GetDC", &TakeScreenDc);
    const ts::ReplacedImport giveBack(L"QorUI.dll", "ReleaseDC", &GiveBackScreenDc);
    g_screenDcs = 0;
    CBitmap gray;
    EXPECT_TRUE(gray.Attach(QorCreateGrayBmp(source.Handle())));
    EXPECT_EQ(0, g_screenDcs);
    const ts::ReplacedImport few(L"QorUI.dll", "CreateCompatibleDC", &FewMemoryDcs);
    g_dcsLeft = 1;
    EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle()));
    EXPECT_EQ(0, g_screenDcs);
}

TEST(GrayBmp, WithoutScreenGivesNull)
{
    ColourRow source({RGB(255, 0, 0), 0});
    const ts::ReplacedImport none(L"QorUI.dll", "GetDC", &NoScreenDc);
    EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle()));
}

TEST(GrayIcon, IsDrawnGreyWithTheSameMask)
{
    const HICON icon = ::LoadIconW(ts::Program(), MAKEINTRESOURCEW(IDI_SQUARE));
    const HICON gray = QorCreateGrayIcon(icon);
    ASSERT_NE(nullptr, gray);
    ICONINFO info = {};
    ASSERT_TRUE(::GetIconInfo(gray, &info));
    CBitmap mask;
    mask.Attach(info.hbmMask);
    CBitmap colour;
    colour.Attach(info.hbmColor);
    const std::vector<COLORREF> pixels = PixelsOf(colour);
    ASSERT_EQ(1024u, pixels.size());
    EXPECT_EQ(RGB(76, 76, 76), pixels[0]);
    EXPECT_EQ(RGB(255, 255, 255), pixels[31]);
    EXPECT_EQ(0u, pixels[992]);
    EXPECT_EQ(1024u, PixelsOf(mask).size());
    EXPECT_EQ(0u, PixelsOf(mask)[0]);
    ::DestroyIcon(gray);
    ICONINFO still = {};
    EXPECT_TRUE(::GetIconInfo(icon, &still)) << "the source icon lives on";
    ::DeleteObject(still.hbmColor);
    ::DeleteObject(still.hbmMask);
}

/** A black icon of the screen's depth. */
HICON IconWithMask(const std::vector<BYTE>& mask)
{
    CBitmap colours;
    CClientDC screen(nullptr);
    colours.CreateCompatibleBitmap(&screen, 32, 32);
    CBitmap shape;
    shape.CreateBitmap(32, 32, 1, 1, mask.data());
    ICONINFO info = {TRUE, 0, 0, shape, colours};
    return ::CreateIconIndirect(&info);
}

std::vector<COLORREF> MaskOf(HICON icon)
{
    ICONINFO info = {};
    EXPECT_TRUE(::GetIconInfo(icon, &info));
    CBitmap mask;
    mask.Attach(info.hbmMask);
    CBitmap colour;
    colour.Attach(info.hbmColor);
    return PixelsOf(mask);
}

TEST(GrayIcon, HasTheWholeMaskOfTheIcon)
{
    std::vector<BYTE> mask;
    for (int row = 0; row < 32; ++row) {
        mask.insert(mask.end(), {0x00, 0x00, 0xFF, static_cast<BYTE>(row < 16 ? 0xF0 : 0x0F)});
    }
    const HICON icon = IconWithMask(mask);
    ASSERT_NE(nullptr, icon);
    const HICON gray = QorCreateGrayIcon(icon);
    const std::vector<COLORREF> expected = MaskOf(icon);
    EXPECT_EQ(32 * 12, std::count(expected.begin(), expected.end(), RGB(255, 255, 255)));
    EXPECT_EQ(expected, MaskOf(gray));
    ::DestroyIcon(gray);
    ::DestroyIcon(icon);
}

HICON WINAPI NoIcon(ICONINFO*)
{
    return nullptr;
}

TEST(GrayIcon, ThatCannotBeMadeGivesNullAndLeavesNothingBehind)
{
    const HICON icon = ::LoadIconW(ts::Program(), MAKEINTRESOURCEW(IDI_SQUARE));
    const ts::ReplacedImport none(L"QorUI.dll", "CreateIconIndirect", &NoIcon);
    EXPECT_TRUE(ts::NoLeak([=] { EXPECT_EQ(nullptr, QorCreateGrayIcon(icon)); }));
}

TEST(GrayIcon, NoIconGivesNull)
{
    EXPECT_EQ(nullptr, QorCreateGrayIcon(nullptr));
}

TEST(GrayIcon, BitmapsAreFreedOnEveryPath)
{
    const HICON colours = ::LoadIconW(ts::Program(), MAKEINTRESOURCEW(IDI_SQUARE));
    EXPECT_TRUE(ts::NoLeak([=] {
        const HICON gray = QorCreateGrayIcon(colours);
        EXPECT_NE(nullptr, gray);
        ::DestroyIcon(gray);
    }));
    const HICON monochrome = ::LoadIconW(ts::Program(), MAKEINTRESOURCEW(IDI_MONO));
    ASSERT_NE(nullptr, monochrome);
    EXPECT_TRUE(ts::NoLeak([=] { EXPECT_EQ(nullptr, QorCreateGrayIcon(monochrome)); }));
}

TEST(ImageList, StripOf80By16GivesFiveSquareImages)
{
    CImageList list;
    UINT size = 0;
    EXPECT_EQ(5, QorCreateImageList(list, IDB_ICONS, ts::Program(), RGB(255, 255, 255), &size));
    EXPECT_EQ(16u, size);
    int cx = 0;
    int cy = 0;
    ASSERT_TRUE(::ImageList_GetIconSize(list.m_hImageList, &cx, &cy));
    EXPECT_EQ(16, cx);
    EXPECT_EQ(16, cy);
}

TEST(ImageList, NullModuleMeansTheProgram)
{
    CImageList list;
    EXPECT_EQ(5, QorCreateImageList(list, IDB_ICONS, nullptr, RGB(255, 255, 255), nullptr));
}

TEST(ImageList, MaskColourIsTransparent)
{
    CImageList list;
    ASSERT_EQ(5, QorCreateImageList(list, IDB_ICONS, ts::Program(), RGB(255, 255, 255), nullptr));
    const ts::Picture picture =
        ts::Drawn(16, 16, [&](CDC& dc) { ::ImageList_Draw(list.m_hImageList, 1, dc, 0, 0, ILD_TRANSPARENT); });
    EXPECT_EQ(ts::kPaper, picture.At(0, 5));
    EXPECT_EQ(RGB(0, 255, 0), picture.At(1, 5));
}

TEST(ImageList, MissingBitmapGivesNoImages)
{
    CImageList list;
    UINT size = 77;
    EXPECT_EQ(0, QorCreateImageList(list, IDB_MISSING, ts::Program(), 0, &size));
    EXPECT_EQ(77u, size);
    EXPECT_EQ(nullptr, list.m_hImageList);
}

TEST(ImageList, StripWithoutHeightGivesNoImages)
{
    CImageList list;
    EXPECT_EQ(0, QorCreateImageList(list, IDB_FLAT, ts::Program(), 0, nullptr));
}

/** Width, height, flags, initial number and growth of the image lists that were made. */
std::vector<std::vector<UINT>> g_imageLists;

HIMAGELIST WINAPI RecordImageList(int cx, int cy, UINT flags, int initial, int grow)
{
    g_imageLists.push_back(
        {static_cast<UINT>(cx), static_cast<UINT>(cy), flags, static_cast<UINT>(initial), static_cast<UINT>(grow)});
    return ::ImageList_Create(cx, cy, flags, initial, grow);
}

TEST(ImageList, IsMadeForTheImagesOfTheStripAndGrowsByOne)
{
    const ts::ReplacedImport record(L"afx.dll", "ImageList_Create", &RecordImageList);
    g_imageLists.clear();
    CImageList list;
    EXPECT_EQ(5, QorCreateImageList(list, IDB_ICONS, ts::Program(), 0, nullptr));
    EXPECT_EQ((std::vector<std::vector<UINT>>{{16, 16, ILC_COLORDDB | ILC_MASK, 5, 1}}), g_imageLists);
}

HIMAGELIST WINAPI NoImageList(int, int, UINT, int, int)
{
    return nullptr;
}

TEST(ImageList, ThatCannotBeMadeGivesNoImagesAndLeavesNothingBehind)
{
    const ts::ReplacedImport none(L"afx.dll", "ImageList_Create", &NoImageList);
    UINT size = 77;
    EXPECT_TRUE(ts::NoLeak([&] {
        CImageList list;
        EXPECT_EQ(0, QorCreateImageList(list, IDB_ICONS, ts::Program(), 0, &size));
        EXPECT_EQ(nullptr, list.m_hImageList);
    }));
    EXPECT_EQ(77u, size);
}

int WINAPI NoImages(HIMAGELIST, HBITMAP, COLORREF)
{
    return -1;
}

TEST(ImageList, ThatTakesNoImagesHasNoneButTheirSizeIsTold)
{
    const ts::ReplacedImport none(L"afx.dll", "ImageList_AddMasked", &NoImages);
    CImageList list;
    UINT size = 77;
    EXPECT_EQ(0, QorCreateImageList(list, IDB_ICONS, ts::Program(), 0, &size));
    EXPECT_EQ(16u, size);
}

TEST(ImageList, BitmapIsFreedOnEveryPath)
{
    EXPECT_TRUE(ts::NoLeak([] {
        CImageList list;
        EXPECT_EQ(5, QorCreateImageList(list, IDB_ICONS, ts::Program(), 0, nullptr));
        CImageList none;
        EXPECT_EQ(0, QorCreateImageList(none, IDB_FLAT, ts::Program(), 0, nullptr));
    }));
}

TEST(WithoutGdiHandles, BoxIsNotDrawnAndNothingIsThrown)
{
    const ts::Picture picture = ts::Drawn(60, 40, [](CDC& dc) {
        const ts::GdiShortage shortage;
        QorDrawBox(dc, 5, 6, 40, 20, RGB(9, 8, 7));
    });
    EXPECT_EQ(60 * 40, picture.Count(ts::kPaper));
}

TEST(WithoutGdiHandles, GreyPicturesAndImageListsAreRefused)
{
    ColourRow source({RGB(255, 0, 0), 0});
    const HICON icon = ::LoadIconW(ts::Program(), MAKEINTRESOURCEW(IDI_SQUARE));
    CImageList list;
    UINT size = 77;
    const ts::GdiShortage shortage;
    EXPECT_EQ(nullptr, QorCreateGrayBmp(source.Handle()));
    EXPECT_EQ(nullptr, QorCreateGrayIcon(icon));
    EXPECT_EQ(0, QorCreateImageList(list, IDB_ICONS, ts::Program(), 0, &size));
    EXPECT_EQ(77u, size);
}

/** A tree and a list, each with items, in a window. */
class PopupPoint : public testing::Test
{
  protected:
    void SetUp() override
    {
        m_tree.SubclassWindow(m_host.Add(WC_TREEVIEWW, L"", WS_CHILD | WS_VISIBLE, 10, 20, 150, 200, 1));
        m_list.SubclassWindow(
            m_host.Add(WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_LIST | LVS_SHOWSELALWAYS, 200, 30, 150, 200, 2));
        m_tree.InsertItem(L"first");
        m_second = m_tree.InsertItem(L"second");
        m_list.InsertItem(0, L"first");
        m_list.InsertItem(1, L"second");
        m_list.InsertItem(2, L"third");
    }
    void TearDown() override
    {
        m_tree.UnsubclassWindow();
        m_list.UnsubclassWindow();
    }

    static CPoint ScreenCentre(const CWnd& wnd, CRect rect)
    {
        CPoint centre((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
        ::ClientToScreen(wnd.m_hWnd, &centre);
        return centre;
    }

    ts::HostWindow m_host;
    CTreeCtrl m_tree;
    CListCtrl m_list;
    HTREEITEM m_second = nullptr;
};

TEST_F(PopupPoint, MousePointIsKept)
{
    for (const CPoint given : {CPoint(0, 0), CPoint(7, 9)}) {
        CPoint point = given;
        QorGetTreePopupPoint(m_tree, point);
        EXPECT_EQ(given, point);
        QorGetListPopupPoint(m_list, point);
        EXPECT_EQ(given, point);
    }
}

TEST_F(PopupPoint, KeyboardOverTreeGivesTheMiddleOfTheSelectedItem)
{
    m_tree.SelectItem(m_second);
    CRect item;
    ASSERT_TRUE(m_tree.GetItemRect(m_second, &item, TRUE));
    for (const CPoint given : {CPoint(-1, 5), CPoint(5, -1), CPoint(-1, -1)}) {
        CPoint point = given;
        QorGetTreePopupPoint(m_tree, point);
        EXPECT_EQ(ScreenCentre(m_tree, item), point);
    }
}

TEST_F(PopupPoint, KeyboardOverTreeWithoutSelectionGivesItsCorner)
{
    m_tree.SelectItem(nullptr);
    CPoint point(-1, -1);
    QorGetTreePopupPoint(m_tree, point);
    EXPECT_EQ(ScreenCentre(m_tree, CRect(0, 0, 0, 0)), point);
}

TEST_F(PopupPoint, KeyboardOverListGivesTheMiddleOfTheFirstSelectedLabel)
{
    m_list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    CRect label;
    ASSERT_TRUE(m_list.GetItemRect(1, &label, LVIR_LABEL));
    for (const CPoint given : {CPoint(-1, 5), CPoint(5, -1)}) {
        CPoint point = given;
        QorGetListPopupPoint(m_list, point);
        EXPECT_EQ(ScreenCentre(m_list, label), point);
    }
}

TEST_F(PopupPoint, KeyboardOverListWithoutSelectionGivesItsCorner)
{
    CPoint point(-1, -1);
    QorGetListPopupPoint(m_list, point);
    EXPECT_EQ(ScreenCentre(m_list, CRect(0, 0, 0, 0)), point);
}

} // namespace
