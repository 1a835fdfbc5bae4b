#include <common/Owner.h>
#include <hosts/console/ConsoleLook.h>
#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>
#include <hosts/console/res/ConsoleResource.h>

#include <algorithm>

namespace
{

using namespace ids::drawing;

constexpr COLORREF kUsed = RGB(47, 130, 200);
constexpr COLORREF kFree = RGB(180, 220, 140);
constexpr double kStep = 0.05;
constexpr double kFixedRatios[] = {0.0, 0.25, 0.6, 1.0};
constexpr int kPieTop = 60;
constexpr int kLivePieTop = 190;
constexpr int kBoxTop = 320;
constexpr int kGrayTop = 420;

class CDrawingPage : public CConsolePage
{
  public:
    std::vector<PageState> States() override
    {
        return {{L"smaller-share", [this] { Show(0.4); }}, {L"larger-share", [this] { Show(0.85); }}};
    }

  protected:
    bool Build() override
    {
        m_icon = ::LoadIconW(AfxGetInstanceHandle(), MAKEINTRESOURCEW(IDI_CONSOLE));
        m_grayIcon.Reset(QorCreateGrayIcon(m_icon));
        m_banner.Attach(::LoadBitmapW(AfxFindResourceHandle(MAKEINTRESOURCEW(kLogonPicture), RT_BITMAP),
                                      MAKEINTRESOURCEW(kLogonPicture)));
        m_grayBanner.Attach(QorCreateGrayBmp(m_banner));
        return AddPush(ConText(L"STR_CON_LESS"), CRect(200, kLivePieTop + 16, 290, kLivePieTop + 37), kLess) &&
               AddPush(ConText(L"STR_CON_MORE"), CRect(300, kLivePieTop + 16, 390, kLivePieTop + 37), kMore);
    }

    void Draw(CDC& dc) override
    {
        CRect client;
        GetClientRect(client);
        const int right = client.right - 16;
        DrawHeading(dc, ConText(L"STR_CON_PIES"), CRect(12, 8, right, 28));
        DrawPies(dc);
        DrawHeading(dc, ConText(L"STR_CON_BOXES"), CRect(12, kBoxTop - 36, right, kBoxTop - 16));
        DrawBoxes(dc);
        DrawHeading(dc, ConText(L"STR_CON_GRAY"), CRect(12, kGrayTop - 36, right, kGrayTop - 16));
        DrawGrayCopies(dc);
    }

    afx_msg void OnLess() { SetRatio(m_ratio - kStep); }
    afx_msg void OnMore() { SetRatio(m_ratio + kStep); }
    DECLARE_MESSAGE_MAP()

  private:
    void Show(double ratio)
    {
        m_ratio = ratio;
        Invalidate();
    }

    static void DrawPercent(CDC& dc, int x, int y, double ratio)
    {
        CString text;
        text.Format(L"%.0f %%", ratio * 100);
        dc.TextOut(x, y, text);
    }

    void DrawPies(CDC& dc)
    {
        int x = 12;
        for (const double ratio : kFixedRatios) {
            QorDrawPie(dc, x, kPieTop, kUsed, kFree, ratio);
            DrawPercent(dc, x, kPieTop - 20, ratio);
            x += 172;
        }
        QorDrawPie(dc, 12, kLivePieTop, kUsed, kFree, m_ratio);
        DrawPercent(dc, 12, kLivePieTop - 20, m_ratio);
    }

    static void DrawBoxes(CDC& dc)
    {
        QorDrawBox(dc, 12, kBoxTop, 60, 40, kUsed);
        QorDrawBox(dc, 84, kBoxTop, 60, 40, kFree);
        QorDrawBox(dc, 156, kBoxTop, 24, 40, QorLook::kWhite);
        QorDrawGradientLine(&dc, CPoint(200, kBoxTop + 20), 300);
    }

    void DrawGrayCopies(CDC& dc)
    {
        ::DrawIconEx(dc, 12, kGrayTop, m_icon, 32, 32, 0, nullptr, DI_NORMAL);
        ::DrawIconEx(dc, 56, kGrayTop, m_grayIcon.Get(), 32, 32, 0, nullptr, DI_NORMAL);
        DrawBitmap(dc, 110, m_banner);
        DrawBitmap(dc, 200, m_grayBanner);
    }

    static void DrawBitmap(CDC& dc, int x, CBitmap& bitmap)
    {
        BITMAP info = {};
        CDC memory;
        if (!bitmap.GetSafeHandle() || !bitmap.GetBitmap(&info) || !memory.CreateCompatibleDC(&dc)) {
            return;
        }
        CBitmap* old = memory.SelectObject(&bitmap);
        dc.BitBlt(x, kGrayTop, info.bmWidth, info.bmHeight, &memory, 0, 0, SRCCOPY);
        memory.SelectObject(old);
    }

    void SetRatio(double ratio)
    {
        m_ratio = (std::max)(0.0, (std::min)(1.0, ratio));
        InvalidateRect(CRect(0, kLivePieTop - 22, 190, kLivePieTop + 80), FALSE);
    }

    double m_ratio = 0.4;
    HICON m_icon = nullptr; // shared
    own::Icon m_grayIcon;
    CBitmap m_banner;
    CBitmap m_grayBanner;
};

BEGIN_MESSAGE_MAP(CDrawingPage, CConsolePage)
    ON_BN_CLICKED(kLess, &CDrawingPage::OnLess)
    ON_BN_CLICKED(kMore, &CDrawingPage::OnMore)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakeDrawingPage()
{
    return std::make_unique<CDrawingPage>();
}
