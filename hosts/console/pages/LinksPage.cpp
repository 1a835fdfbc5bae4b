#include <hosts/console/ConsoleLook.h>
#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>

namespace
{

using namespace ids::links;

constexpr int kLeft = 12;
constexpr int kRight = 704;
constexpr int kColumnLeft = 130;
constexpr int kColumnWidth = 142;
constexpr int kRowStandard = 60;
constexpr int kRowOwn = 84;
constexpr int kBoxWidth = 130;
constexpr int kBoxStep = 140;
constexpr int kBoxTop = 168;
constexpr int kBoxHeight = 44;
constexpr int kLiveTop = 376;
constexpr int kFieldLeft = 90;
constexpr COLORREF kOwnLink = RGB(0, 112, 60);
constexpr COLORREF kOwnVisited = RGB(128, 96, 32);
constexpr COLORREF kOwnHover = RGB(208, 72, 0);
constexpr COLORREF kBoxFrame = RGB(160, 176, 192);
constexpr COLORREF kBandTop = RGB(72, 128, 184);

const CRect kBand(kLeft, 264, kRight, 320);

/** How a sample of the table looks, whatever the mouse does. */
enum class Look
{
    Normal,
    Hot,
    Visited,
    Underlined,
    Count
};

/** A link that keeps one look. */
class CSampleLink : public CQorLink
{
  public:
    /** To be called when the link has its window. */
    void Freeze(Look look)
    {
        SetVisited(look == Look::Visited);
        SetUnderline(look == Look::Underlined);
        if (look == Look::Hot) {
            SendMessage(WM_MOUSEMOVE, 0, 0);
            ::ReleaseCapture(); // the look stays, as no mouse message comes through any more
        }
        m_frozen = true;
    }

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const bool mouse = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
        return m_frozen && mouse ? 0 : CQorLink::WindowProc(message, wParam, lParam);
    }

  private:
    bool m_frozen = false;
};

/** Links in every look and alignment, labels on a painted background, and some to try. */
class CLinksPage : public CConsolePage
{
  public:
    std::vector<PageState> States() override
    {
        return {{L"fresh",
                 [this] {
                     Show(BST_UNCHECKED);
                     SetDlgItemText(kResult, ConText(L"STR_CON_NOTHING"));
                 }},
                {L"visited", [this] {
                     Show(BST_CHECKED);
                     OnLabel();
                 }}};
    }

  protected:
    bool Build() override { return BuildLooks() && BuildAlignments() && BuildLabels() && BuildLive(); }

    void Draw(CDC& dc) override
    {
        DrawHeading(dc, ConText(L"STR_CON_LINK_LOOKS"), CRect(kLeft, 8, kRight, 28));
        DrawTableNames(dc);
        DrawHeading(dc, ConText(L"STR_CON_LINK_PLACES"), CRect(kLeft, 116, kRight, 136));
        DrawBoxes(dc);
        DrawHeading(dc, ConText(L"STR_CON_LINK_LABELS"), CRect(kLeft, 228, kRight, 248));
        DrawBand(dc);
        DrawHeading(dc, ConText(L"STR_CON_TRY"), CRect(kLeft, kLiveTop - 36, kRight, kLiveTop - 16));
    }

    afx_msg void OnSet()
    {
        CString address;
        GetDlgItemText(kAddress, address);
        m_link->SetURL(address);
    }

    afx_msg void OnOpen()
    {
        // What the control itself sends when it is clicked.
        SendMessage(WM_COMMAND, MAKEWPARAM(kLink, STN_CLICKED), reinterpret_cast<LPARAM>(m_link->m_hWnd));
    }

    afx_msg void OnUnderlined() { m_link->SetUnderline(IsChecked(kUnderlined)); }

    afx_msg void OnVisited()
    {
        m_link->SetVisited(IsChecked(kVisited));
        CRect place; // on the page: the link has no background of its own
        m_link->GetWindowRect(place);
        ScreenToClient(place);
        InvalidateRect(place, FALSE);
    }

    afx_msg void OnAutoSize()
    {
        m_link->MoveWindow(LivePlace());
        m_link->SetAutoSize(IsChecked(kAutoSize));
    }

    afx_msg void OnLabel()
    {
        CString name;
        CString result;
        GetDlgItemText(kLabel, name);
        result.Format(ConFormat(L"STR_CON_CLICKED", L"%s: %d"), name.GetString(), ++m_clicks);
        SetDlgItemText(kResult, result);
    }

    afx_msg LRESULT OnDrawParentBack(WPARAM dc, LPARAM control)
    {
        auto& target = *reinterpret_cast<CDC*>(dc);
        CRect place;
        reinterpret_cast<CWnd*>(control)->GetWindowRect(place);
        ScreenToClient(place);
        const CPoint origin = target.SetViewportOrg(-place.left, -place.top);
        DrawBand(target);
        target.SetViewportOrg(origin);
        return 0;
    }
    DECLARE_MESSAGE_MAP()

  private:
    void Show(UINT check)
    {
        CheckDlgButton(kUnderlined, check);
        CheckDlgButton(kVisited, check);
        OnUnderlined();
        OnVisited();
        m_clicks = 0;
    }

    static CRect Cell(Look look, int top)
    {
        const int left = kColumnLeft + static_cast<int>(look) * kColumnWidth;
        return CRect(left, top, left + kColumnWidth - 8, top + 18);
    }

    static CRect Box(int index)
    {
        return CRect(CPoint(kLeft + index * kBoxStep, kBoxTop), CSize(kBoxWidth, kBoxHeight));
    }

    static CRect LivePlace() { return CRect(kFieldLeft, kLiveTop + 34, kFieldLeft + 330, kLiveTop + 52); }

    BOOL IsChecked(UINT id) { return IsDlgButtonChecked(static_cast<int>(id)) == BST_CHECKED; }

    void DrawTableNames(CDC& dc) const
    {
        static constexpr LPCWSTR kColumnKeys[] = {L"STR_CON_NORMAL", L"STR_CON_HOT", L"STR_CON_LINK_VISITED",
                                                  L"STR_CON_LINK_LINE"};
        for (int i = 0; i < static_cast<int>(Look::Count); ++i) {
            CRect cell = Cell(static_cast<Look>(i), 36);
            dc.DrawText(ConText(kColumnKeys[i]), -1, cell, DT_SINGLELINE | DT_NOPREFIX);
        }
        CRect standard(kLeft, kRowStandard, kColumnLeft - 8, kRowStandard + 18);
        CRect own(kLeft, kRowOwn, kColumnLeft - 8, kRowOwn + 18);
        dc.DrawText(ConText(L"STR_CON_LINK_STANDARD"), -1, standard, DT_SINGLELINE | DT_NOPREFIX);
        dc.DrawText(ConText(L"STR_CON_LINK_OWN"), -1, own, DT_SINGLELINE | DT_NOPREFIX);
    }

    static void DrawBoxes(CDC& dc)
    {
        static constexpr LPCWSTR kNameKeys[] = {L"STR_CON_LINK_LEFT", L"STR_CON_LINK_CENTER", L"STR_CON_LINK_RIGHT",
                                                L"STR_CON_LINK_MIDDLE", L"STR_CON_LINK_WRAPPED"};
        int index = 0;
        for (const LPCWSTR name : kNameKeys) {
            CRect box = Box(index++);
            CRect above(box.left, box.top - 20, box.right, box.top - 4);
            dc.DrawText(ConText(name), -1, above, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
            box.InflateRect(1, 1);
            dc.Draw3dRect(box, kBoxFrame, kBoxFrame);
        }
    }

    static void DrawBand(CDC& dc)
    {
        TRIVERTEX corners[] = {
            {kBand.left, kBand.top, Wide(GetRValue(kBandTop)), Wide(GetGValue(kBandTop)), Wide(GetBValue(kBandTop)), 0},
            {kBand.right, kBand.bottom, Wide(GetRValue(kAccent)), Wide(GetGValue(kAccent)), Wide(GetBValue(kAccent)),
             0}};
        GRADIENT_RECT whole = {0, 1};
        ::GdiGradientFill(dc.m_hDC, corners, 2, &whole, 1, GRADIENT_FILL_RECT_V);
    }

    static COLOR16 Wide(BYTE value) { return static_cast<COLOR16>(value << 8); }

    /** Takes over a static control that has its text and font already, as those of dialog templates do. */
    bool Take(CWnd& link, LPCWSTR text, DWORD style, const CRect& rect, UINT id = kNoId)
    {
        const HWND wnd = ::CreateWindowExW(0, WC_STATICW, text, WS_CHILD | WS_VISIBLE | style, rect.left, rect.top,
                                           rect.Width(), rect.Height(), m_hWnd, reinterpret_cast<HMENU>(UINT_PTR{id}),
                                           AfxGetInstanceHandle(), nullptr);
        if (!wnd) {
            return false;
        }
        ::SendMessageW(wnd, WM_SETFONT, reinterpret_cast<WPARAM>(PageFont()->GetSafeHandle()), FALSE);
        return link.SubclassWindow(wnd) != FALSE;
    }

    template <class Link = CQorLink>
    Link& OwnLink()
    {
        auto& link = Own<Link>();
        link.SetURL(kSite);
        return link;
    }

    bool BuildLooks()
    {
        for (int i = 0; i < static_cast<int>(Look::Count); ++i) {
            const auto look = static_cast<Look>(i);
            for (const int top : {kRowStandard, kRowOwn}) {
                auto& link = OwnLink<CSampleLink>();
                if (top == kRowOwn) {
                    link.SetColors(kOwnLink, kOwnVisited, kOwnHover);
                }
                if (!Take(link, ConText(L"STR_CON_LINK_TEXT"), SS_LEFT, Cell(look, top))) {
                    return false;
                }
                link.Freeze(look);
            }
        }
        return true;
    }

    bool BuildAlignments()
    {
        static constexpr DWORD kStyles[] = {SS_LEFT, SS_CENTER, SS_RIGHT, SS_CENTER | SS_CENTERIMAGE};
        int index = 0;
        for (const DWORD style : kStyles) {
            if (!Take(OwnLink(), ConText(L"STR_CON_LINK_TEXT"), style, Box(index++))) {
                return false;
            }
        }
        CQorLink& wrapped = OwnLink();
        wrapped.SetAutoSize(FALSE);
        return Take(wrapped, ConText(L"STR_CON_LINK_LONG"), SS_LEFT, Box(index));
    }

    bool BuildLabels()
    {
        auto& label = Own<CTextLink>();
        auto& note = Own<CTextLink>();
        const CRect right(kBand.right - 340, kBand.top + 15, kBand.right - 12, kBand.bottom - 8);
        CSize size;
        if (!Take(label, ConText(L"STR_CON_LINK_LABEL"), SS_NOTIFY, kBand, kLabel) || !label.GetExtent(size)) {
            return false;
        }
        label.MoveWindow(CRect(CPoint(kBand.left + 16, kBand.CenterPoint().y - size.cy / 2), size));
        return Take(note, ConText(L"STR_CON_LINK_NOTE"), 0, right);
    }

    bool BuildLive()
    {
        auto& address = Own<CFlatEdit>();
        const CRect field(kFieldLeft, kLiveTop, kFieldLeft + 330, kLiveTop + 21);
        const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP | ES_AUTOHSCROLL;
        if (!AddCaption(ConText(L"STR_CON_LINK_ADDRESS"), CRect(kLeft, kLiveTop, kFieldLeft - 8, kLiveTop + 21)) ||
            !address.CreateEx(WS_EX_CLIENTEDGE, WC_EDITW, kSite, style, field, this, kAddress)) {
            return false;
        }
        address.SetFont(PageFont());
        m_link = &OwnLink();
        return Take(*m_link, ConText(L"STR_CON_LINK_TEXT"), SS_LEFT, LivePlace(), kLink) && BuildChoices() &&
               AddLabel(ConText(L"STR_CON_NOTHING"), CRect(kLeft, kLiveTop + 98, kRight, kLiveTop + 116), kResult);
    }

    bool BuildChoices()
    {
        const CRect button(kFieldLeft + 342, kLiveTop, kFieldLeft + 472, kLiveTop + 21);
        const CRect box(kFieldLeft, kLiveTop + 64, kFieldLeft + 150, kLiveTop + 82);
        if (!AddPush(ConText(L"STR_CON_LINK_SET"), button, kSet) ||
            !AddPush(ConText(L"STR_CON_LINK_OPEN"), button + CPoint(140, 0), kOpen) ||
            !AddPush(ConText(L"STR_CON_LINK_CLICK"), button + CPoint(0, 32), kClickLabel) ||
            !AddCheck(ConText(L"STR_CON_LINK_UNDERLINE"), box, kUnderlined) ||
            !AddCheck(ConText(L"STR_CON_LINK_SEEN"), box + CPoint(160, 0), kVisited) ||
            !AddCheck(ConText(L"STR_CON_LINK_SIZE"), box + CPoint(320, 0), kAutoSize)) {
            return false;
        }
        CheckDlgButton(kAutoSize, BST_CHECKED);
        return true;
    }

    CQorLink* m_link = nullptr;
    int m_clicks = 0;
};

BEGIN_MESSAGE_MAP(CLinksPage, CConsolePage)
    ON_MESSAGE(WM_DRAWPARENTBACK, &CLinksPage::OnDrawParentBack)
    ON_BN_CLICKED(kSet, &CLinksPage::OnSet)
    ON_BN_CLICKED(kOpen, &CLinksPage::OnOpen)
    ON_BN_CLICKED(kUnderlined, &CLinksPage::OnUnderlined)
    ON_BN_CLICKED(kVisited, &CLinksPage::OnVisited)
    ON_BN_CLICKED(kAutoSize, &CLinksPage::OnAutoSize)
    ON_BN_CLICKED(kClickLabel, &CLinksPage::OnLabel)
    ON_CONTROL(STN_CLICKED, kLabel, &CLinksPage::OnLabel)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakeLinksPage()
{
    return std::make_unique<CLinksPage>();
}
