#include "Shots.h"

#include "ConsoleOutput.h"
#include "PageRegistry.h"

#include <common/Owner.h>

#include <shlobj.h>

#include <gdiplus.h>

namespace
{

constexpr DWORD kSettleTime = 150; // ms without a message that count as settled
constexpr DWORD kSettleLimit = 5000;
constexpr UINT kModalPoll = 100; // ms

using GdipBitmap = own::Owner<own::FreedBy<Gdiplus::GpBitmap*, Gdiplus::DllExports::GdipDisposeImage>>;

/** Handles messages until none comes for a while but those of running timers and what they paint. */
void Settle()
{
    const ULONGLONG limit = ::GetTickCount64() + kSettleLimit;
    ULONGLONG busy = ::GetTickCount64();
    for (ULONGLONG now = busy; now < limit && now < busy + kSettleTime; now = ::GetTickCount64()) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(busy + kSettleTime - now), QS_ALLINPUT);
        MSG msg;
        while (::PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
            if (msg.message != WM_TIMER && msg.message != WM_PAINT) {
                busy = ::GetTickCount64();
            }
            ::TranslateMessage(&msg);
            ::DispatchMessageW(&msg);
        }
    }
}

bool SavePng(CBitmap& picture, const CString& path)
{
    GUID png;
    GdipBitmap bitmap;
    if (!QorGetImageEncoder(L"image/png", png) ||
        Gdiplus::DllExports::GdipCreateBitmapFromHBITMAP(picture, nullptr, bitmap.Receive()) != Gdiplus::Ok) {
        return false;
    }
    return Gdiplus::DllExports::GdipSaveImageToFile(bitmap.Get(), path, &png, nullptr) == Gdiplus::Ok;
}

/** Copies what the screen shows of a window. */
bool SaveWindow(HWND wnd, const CString& path)
{
    ::RedrawWindow(wnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    CRect rect;
    ::GetWindowRect(wnd, rect);
    CWindowDC screen(CWnd::FromHandle(wnd));
    CDC memory;
    CBitmap picture;
    if (!memory.CreateCompatibleDC(&screen) || !picture.CreateCompatibleBitmap(&screen, rect.Width(), rect.Height())) {
        return false;
    }
    CBitmap* old = memory.SelectObject(&picture);
    const BOOL copied = memory.BitBlt(0, 0, rect.Width(), rect.Height(), &screen, 0, 0, SRCCOPY);
    memory.SelectObject(old);
    return copied && SavePng(picture, path);
}

/** Takes the picture of a modal dialog from a timer that runs in its message loop, and closes it. */
class ModalPhotographer
{
  public:
    ModalPhotographer(HWND owner, CString path) : m_owner(owner), m_path(std::move(path))
    {
        s_current = this;
        m_timer = ::SetTimer(nullptr, 0, kModalPoll, &OnTimer);
    }
    ~ModalPhotographer()
    {
        ::KillTimer(nullptr, m_timer);
        s_current = nullptr;
    }
    ModalPhotographer(const ModalPhotographer&) = delete;
    ModalPhotographer& operator=(const ModalPhotographer&) = delete;

    bool Saved() const { return m_saved; }

  private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        if (s_current) {
            s_current->Poll();
        }
    }

    void Poll()
    {
        const HWND dialog = ::GetActiveWindow();
        if (!dialog || dialog == m_owner || !::IsWindowVisible(dialog)) {
            return;
        }
        if (++m_polls == 1) {
            return; // its first paint may still be under way
        }
        m_saved = m_saved || SaveWindow(dialog, m_path);
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    }

    static inline ModalPhotographer* s_current = nullptr;
    HWND m_owner;
    CString m_path;
    UINT_PTR m_timer;
    int m_polls = 0;
    bool m_saved = false;
};

class ShotsWalk
{
  public:
    ShotsWalk(CConsoleFrame& frame, CString folder) : m_frame(frame), m_folder(std::move(folder)) {}

    int Run()
    {
        for (size_t i = 0; i < AllPages().size(); ++i) {
            WalkPage(i);
        }
        CString summary;
        summary.Format(L"%d pictures, %d failed", m_count, m_failed);
        ConsoleWriteLine(STD_OUTPUT_HANDLE, summary);
        return m_failed == 0 ? 0 : 1;
    }

  private:
    CString PathOf(const CString& name) const { return m_folder + L"\\" + name + L".png"; }

    void Count(bool saved, const CString& name)
    {
        ++m_count;
        if (!saved) {
            ++m_failed;
            ConsoleWriteLine(STD_ERROR_HANDLE, L"no picture of " + name);
        }
    }

    void WalkPage(size_t index)
    {
        const CString name(AllPages()[index].name);
        if (!m_frame.ShowPage(index)) {
            Count(false, name);
            return;
        }
        WalkStates(name);
        for (const PopupShot& popup : m_frame.CurrentPage()->Popups()) {
            const HWND wnd = popup.open();
            Settle();
            Count(wnd && SaveWindow(wnd, PathOf(popup.name)), popup.name);
            popup.close();
        }
        for (const ModalShot& modal : m_frame.CurrentPage()->Modals()) {
            ModalPhotographer photographer(m_frame, PathOf(modal.name));
            modal.show();
            Count(photographer.Saved(), modal.name);
        }
    }

    /** The first state's picture, the only one of a page without states, bears the page's name alone. */
    void WalkStates(const CString& page)
    {
        const std::vector<PageState> states = m_frame.CurrentPage()->States();
        if (states.empty()) {
            TakeFrame(page);
        }
        for (size_t i = 0; i < states.size(); ++i) {
            states[i].show();
            TakeFrame(i == 0 ? page : page + L"-" + states[i].name);
        }
    }

    void TakeFrame(const CString& name)
    {
        Settle();
        Count(SaveWindow(m_frame, PathOf(name)), name);
    }

    CConsoleFrame& m_frame;
    CString m_folder;
    int m_count = 0;
    int m_failed = 0;
};

} // namespace

int TakeShots(CConsoleFrame& frame, const CString& folder)
{
    WCHAR full[MAX_PATH] = {};
    if (::GetFullPathNameW(folder, MAX_PATH, full, nullptr) == 0) {
        ConsoleWriteLine(STD_ERROR_HANDLE, L"the folder's name is not valid: " + folder);
        return 1;
    }
    const int made = ::SHCreateDirectoryExW(nullptr, full, nullptr);
    if (made != ERROR_SUCCESS && made != ERROR_ALREADY_EXISTS && made != ERROR_FILE_EXISTS) {
        ConsoleWriteLine(STD_ERROR_HANDLE, CString(L"the folder cannot be made: ") + full);
        return 1;
    }
    // What the pointer happens to rest on would look different.
    ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
    frame.ShowWindow(SW_SHOW);
    Settle();
    return ShotsWalk(frame, full).Run();
}
