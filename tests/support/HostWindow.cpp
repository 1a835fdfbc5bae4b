#include <tests/support/HostWindow.h>
#include <tests/support/Pump.h>

namespace ts
{
namespace
{
constexpr wchar_t kClass[] = L"QorTestHost";
constexpr int kLeft = 40;
constexpr int kTop = 40;

/** The brush travels as creation parameter and then as user data of the window. */
LRESULT CALLBACK Procedure(HWND window, UINT id, WPARAM wParam, LPARAM lParam)
{
    if (id == WM_NCCREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    const auto brush = reinterpret_cast<HBRUSH>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (id == WM_ERASEBKGND && brush) {
        RECT client;
        GetClientRect(window, &client);
        FillRect(reinterpret_cast<HDC>(wParam), &client, brush);
        return TRUE;
    }
    return DefWindowProcW(window, id, wParam, lParam);
}

bool RegisterHostClass()
{
    WNDCLASSEXW info = {};
    info.cbSize = sizeof(info);
    if (GetClassInfoExW(GetModuleHandleW(nullptr), kClass, &info)) {
        return true;
    }
    info.cbSize = sizeof(info);
    info.style = CS_DBLCLKS;
    info.lpfnWndProc = Procedure;
    info.hInstance = GetModuleHandleW(nullptr);
    info.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    info.lpszClassName = kClass;
    return RegisterClassExW(&info) != 0;
}
} // namespace

HostWindow::HostWindow(int cx, int cy, DWORD style, COLORREF background)
{
    if (!RegisterHostClass()) {
        ADD_FAILURE() << "HostWindow: the class was refused, error " << GetLastError();
        return;
    }
    m_background = CreateSolidBrush(background == CLR_DEFAULT ? GetSysColor(COLOR_BTNFACE) : background);
    RECT frame = {0, 0, cx, cy};
    AdjustWindowRectEx(&frame, style, FALSE, 0);
    m_window = CreateWindowExW(0, kClass, L"Host", style & ~WS_VISIBLE, kLeft, kTop, frame.right - frame.left,
                               frame.bottom - frame.top, nullptr, nullptr, GetModuleHandleW(nullptr), m_background);
    if (!m_window) {
        ADD_FAILURE() << "HostWindow: no window, error " << GetLastError();
        return;
    }
    m_log = std::make_unique<MessageRecorder>(m_window);
    if (style & WS_VISIBLE) {
        ShowWindow(m_window, SW_SHOWNORMAL);
        SetForegroundWindow(m_window);
        UpdateWindow(m_window);
    }
    Restart();
}

HostWindow::~HostWindow()
{
    if (m_window && IsWindow(m_window)) {
        DestroyWindow(m_window);
    }
    m_log.reset();
    if (m_background) {
        DeleteObject(m_background);
    }
    Settle();
}

HWND HostWindow::Add(const wchar_t* className, const wchar_t* text, DWORD style, int x, int y, int cx, int cy, int id)
{
    return CreateWindowExW(0, className, text, style | WS_CHILD | WS_VISIBLE, x, y, cx, cy, m_window,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
}

void HostWindow::Restart()
{
    Settle();
    if (m_log) {
        m_log->Clear();
    }
}

} // namespace ts
