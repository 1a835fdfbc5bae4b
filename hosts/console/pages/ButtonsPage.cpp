#include <hosts/console/ConsoleLook.h>
#include <hosts/console/ConsoleText.h>
#include <hosts/console/ControlIds.h>
#include <hosts/console/PageRegistry.h>
#include <hosts/console/res/ConsoleResource.h>

#include <type_traits>

namespace
{

using namespace ids::buttons;

/** How a sample of the table looks, whatever the mouse and the focus do. */
enum class Look
{
    Normal,
    Hot,
    Pressed,
    Disabled,
    Focused,
    Count
};

/** A button that keeps one look: a sample in the table of states. */
template <class Button>
class CSample : public Button
{
  public:
    explicit CSample(Look look) : m_look(look) {}

    /** To be called when the button has its window. */
    void Freeze()
    {
        switch (m_look) {
        case Look::Hot:
            this->SendMessage(WM_MOUSEMOVE, 0, 0);
            break;
        case Look::Pressed:
            this->SendMessage(BM_SETSTATE, TRUE);
            break;
        case Look::Disabled:
            this->EnableWindow(FALSE);
            break;
        default:
            break;
        }
        m_frozen = true;
    }

  protected:
    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        if (m_look == Look::Focused && !(item->itemAction & ODA_FOCUS)) {
            item->itemState |= ODS_FOCUS;
        }
        Button::DrawItem(item);
    }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const bool mouse = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
        if (m_frozen && (mouse || message == WM_MOUSELEAVE)) {
            return 0;
        }
        const bool paint = message == WM_PAINT && m_look == Look::Focused;
        if (paint) {
            this->Invalidate(FALSE); // a part of the focus rectangle drawn twice would vanish
        }
        const LRESULT result = Button::WindowProc(message, wParam, lParam);
        if constexpr (std::is_same_v<Button, CCheckBox> || std::is_same_v<Button, CRadioBox>) {
            if (paint) {
                this->DrawFocus();
            }
        }
        return result;
    }

  private:
    Look m_look;
    bool m_frozen = false;
};

constexpr int kColumns = static_cast<int>(Look::Count);
constexpr int kColumnWidth = 112;
constexpr int kColumnLeft = 100;

constexpr int kRowPush = 62;
constexpr int kRowCheck = 96;
constexpr int kRowChecked = 122;
constexpr int kRowRadio = 148;
constexpr int kRowRadioSet = 174;
constexpr int kRowBitmap = 204;
constexpr int kCommandTop = 290;
constexpr int kCommandLeft = 12;
constexpr int kCommandStep = 178;
constexpr SIZE kCommandSize = {168, 56};
constexpr int kLiveTop = 396;

/** A sample of a command button; there is none of a pressed one, which has no look of its own. */
struct CommandSample
{
    Look look;
    LPCWSTR lookKey;
    UINT icon;
    LPCWSTR titleKey;
    LPCWSTR noteKey;
};

constexpr CommandSample kCommands[] = {
    {Look::Normal, L"STR_CON_NORMAL", IDI_CMD_SNAPSHOT, L"STR_CON_CMD_TITLE", L"STR_CON_CMD_NOTE"},
    {Look::Hot, L"STR_CON_HOT", IDI_CMD_RESTORE, L"STR_CON_CMD_RESTORE", L"STR_CON_CMD_RESTORE_NOTE"},
    {Look::Disabled, L"STR_CON_DISABLED", IDI_CMD_SCHEDULE, L"STR_CON_CMD_SCHEDULE", L"STR_CON_CMD_SCHEDULE_NOTE"},
    {Look::Focused, L"STR_CON_FOCUSED", IDI_CMD_USERS, L"STR_CON_CMD_USERS", L"STR_CON_CMD_USERS_NOTE"},
};

class CButtonsPage : public CConsolePage
{
  protected:
    bool Build() override
    {
        for (int i = 0; i < kColumns; ++i) {
            if (!BuildColumn(static_cast<Look>(i))) {
                return false;
            }
        }
        return BuildCommandSamples() && BuildLive();
    }

    void Draw(CDC& dc) override
    {
        CRect client;
        GetClientRect(client);
        DrawHeading(dc, ConText(L"STR_CON_STATES"), CRect(12, 8, client.right - 16, 28));
        static constexpr LPCWSTR kColumnKeys[] = {L"STR_CON_NORMAL", L"STR_CON_HOT", L"STR_CON_PRESSED",
                                                  L"STR_CON_DISABLED", L"STR_CON_FOCUSED"};
        for (int i = 0; i < kColumns; ++i) {
            CRect cell(ColumnLeft(i), 36, ColumnLeft(i) + kColumnWidth, 54);
            dc.DrawText(ConText(kColumnKeys[i]), -1, cell, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        }
        struct RowName
        {
            LPCWSTR key;
            int top;
            int height;
        };
        static constexpr RowName kRows[] = {
            {L"STR_CON_PUSH", kRowPush, 20},          {L"STR_CON_CHECK", kRowCheck, 16},
            {L"STR_CON_CHECKED", kRowChecked, 16},    {L"STR_CON_RADIO", kRowRadio, 16},
            {L"STR_CON_RADIO_SET", kRowRadioSet, 16}, {L"STR_CON_BITMAP", kRowBitmap, 16},
        };
        for (const RowName& row : kRows) {
            CRect cell(12, row.top, kColumnLeft - 4, row.top + row.height);
            dc.DrawText(ConText(row.key), -1, cell, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
        }
        DrawCommandNames(dc, client.right - 16);
        DrawHeading(dc, ConText(L"STR_CON_TRY"), CRect(12, kLiveTop - 30, client.right - 16, kLiveTop - 10));
    }

    afx_msg void OnLive(UINT id)
    {
        CString result;
        CString name;
        GetDlgItem(static_cast<int>(id))->GetWindowText(name);
        name.Remove(L'&');
        if (name.IsEmpty()) {
            name = ConText(L"STR_CON_BITMAP");
        }
        result.Format(ConFormat(L"STR_CON_CLICKED", L"%s: %d"), name.GetString(), ++m_clicks);
        SetDlgItemText(kResult, result);
    }
    DECLARE_MESSAGE_MAP()

  private:
    static int ColumnLeft(int column) { return kColumnLeft + column * kColumnWidth; }

    static CPoint CommandPlace(int index) { return {kCommandLeft + index * kCommandStep, kCommandTop}; }

    void DrawCommandNames(CDC& dc, int right) const
    {
        DrawHeading(dc, ConText(L"STR_CON_COMMAND"), CRect(12, kCommandTop - 54, right, kCommandTop - 34));
        int index = 0;
        for (const CommandSample& command : kCommands) {
            CRect cell(CommandPlace(index++) - CSize(0, 24), CSize(kCommandSize.cx, 18));
            dc.DrawText(ConText(command.lookKey), -1, cell, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        }
    }

    static CRect Cell(Look look, int top, int width, int height)
    {
        return CRect(CPoint(ColumnLeft(static_cast<int>(look)), top), CSize(width, height));
    }

    template <class Button>
    bool AddSample(Look look, LPCWSTR text, const CRect& rect, DWORD style, bool checked = false)
    {
        auto& sample = Own<CSample<Button>>(look);
        CButton& button = sample;
        if (!button.Create(text, WS_CHILD | WS_VISIBLE | style, rect, this, kNoId)) {
            return false;
        }
        sample.SetFont(PageFont());
        if (checked) {
            // Through the message, not the group: every column shows a set radio button.
            sample.SendMessage(BM_SETCHECK, BST_CHECKED);
        }
        sample.Freeze();
        return true;
    }

    bool BuildColumn(Look look)
    {
        const LPCWSTR text = ConText(L"STR_CON_TEXT");
        const CRect check = Cell(look, kRowCheck, kColumnWidth - 8, 18);
        const CRect checked = Cell(look, kRowChecked, kColumnWidth - 8, 18);
        const CRect radio = Cell(look, kRowRadio, kColumnWidth - 8, 18);
        const CRect radioSet = Cell(look, kRowRadioSet, kColumnWidth - 8, 18);
        return AddSample<CQorBtn>(look, text, Cell(look, kRowPush, 80, 21), BS_OWNERDRAW | WS_GROUP) &&
               AddSample<CCheckBox>(look, text, check, BS_AUTOCHECKBOX) &&
               AddSample<CCheckBox>(look, text, checked, BS_AUTOCHECKBOX, true) &&
               AddSample<CRadioBox>(look, text, radio, BS_AUTORADIOBUTTON | WS_GROUP) &&
               AddSample<CRadioBox>(look, text, radioSet, BS_AUTORADIOBUTTON | WS_GROUP, true) && AddBitmapSample(look);
    }

    bool AddBitmapSample(Look look)
    {
        auto& sample = Own<CSample<CBmpBtn>>(look);
        if (!sample.Create(Cell(look, kRowBitmap, 42, 17), this, kNoId)) {
            return false;
        }
        sample.SetImage(AfxFindResourceHandle(MAKEINTRESOURCEW(kDialogCloseStrip), RT_BITMAP), kDialogCloseStrip,
                        nullptr, CLR_NONE);
        sample.Freeze();
        return true;
    }

    bool BuildCommandSamples()
    {
        int index = 0;
        for (const CommandSample& command : kCommands) {
            auto& sample = Own<CSample<CCmdBtn>>(command.look);
            const CRect rect(CommandPlace(index++), kCommandSize);
            if (!sample.Create(command.icon, ConText(command.noteKey), rect, this, kNoId)) {
                return false;
            }
            sample.SetFont(PageFont());
            sample.SetWindowText(ConText(command.titleKey));
            sample.Freeze();
        }
        return true;
    }

    bool BuildLive()
    {
        auto& command = Own<CCmdBtn>();
        auto& bitmap = Own<CBmpBtn>();
        if (!AddPush(ConText(L"STR_CON_PRESS_ME"), CRect(12, kLiveTop, 132, kLiveTop + 21), kLivePush) ||
            !command.Create(IDI_CMD_SNAPSHOT, ConText(L"STR_CON_CMD_NOTE"), CRect(150, kLiveTop, 350, kLiveTop + 56),
                            this, kLiveCommand) ||
            !AddCheck(ConText(L"STR_CON_CHECK_ME"), CRect(370, kLiveTop, 530, kLiveTop + 18), kLiveCheck)) {
            return false;
        }
        command.SetFont(PageFont());
        command.SetWindowText(ConText(L"STR_CON_CMD_TITLE"));
        command.ModifyStyle(0, WS_TABSTOP);
        for (UINT id = kLiveRadioFirst; id <= kLiveRadioLast; ++id) {
            const int top = kLiveTop + 26 + static_cast<int>(id - kLiveRadioFirst) * 22;
            CString text;
            text.Format(ConFormat(L"STR_CON_CHOICE", L"%d"), static_cast<int>(id - kLiveRadioFirst) + 1);
            if (!AddRadio(text, CRect(370, top, 530, top + 18), id, id == kLiveRadioFirst)) {
                return false;
            }
        }
        SendDlgItemMessage(kLiveRadioFirst, BM_SETCHECK, BST_CHECKED);
        if (!bitmap.Create(CRect(12, kLiveTop + 36, 54, kLiveTop + 53), this, kLiveBitmap)) {
            return false;
        }
        bitmap.ModifyStyle(0, WS_TABSTOP | WS_GROUP);
        bitmap.SetImage(AfxFindResourceHandle(MAKEINTRESOURCEW(kDialogCloseStrip), RT_BITMAP), kDialogCloseStrip,
                        nullptr, CLR_NONE);
        return AddLabel(ConText(L"STR_CON_NOTHING"), CRect(12, kLiveTop + 100, 660, kLiveTop + 118), kResult);
    }

    int m_clicks = 0;
};

BEGIN_MESSAGE_MAP(CButtonsPage, CConsolePage)
    ON_CONTROL_RANGE(BN_CLICKED, kFirstLive, kLiveBitmap, &CButtonsPage::OnLive)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CConsolePage> MakeButtonsPage()
{
    return std::make_unique<CButtonsPage>();
}
