#include <tests/support/Support.h>

namespace
{
constexpr int kPlanted = 40;

/** A kind of handle: how to make one, how to give it back, how the count calls it. */
struct Kind
{
    const char* name;
    void* (*make)();
    void (*end)(void*);
};

void EndGdi(void* object)
{
    DeleteObject(object);
}

void* MakeWindow()
{
    return CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
}

void* MakeMessageWindow()
{
    return CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
}

void* MakeIcon()
{
    const BYTE bits[16 * 16 / 8] = {};
    return CreateIcon(nullptr, 16, 16, 1, 1, bits, bits);
}

void* MakeAccelerators()
{
    ACCEL key = {FVIRTKEY, VK_F5, 1};
    return CreateAcceleratorTableW(&key, 1);
}

const Kind kKinds[] = {
    {"brush", [] { return static_cast<void*>(CreateSolidBrush(RGB(1, 2, 3))); }, EndGdi},
    {"pen", [] { return static_cast<void*>(CreatePen(PS_SOLID, 2, RGB(1, 2, 3))); }, EndGdi},
    {"font", [] { return static_cast<void*>(CreateFontW(-11, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma")); },
     EndGdi},
    {"bitmap", [] { return static_cast<void*>(CreateBitmap(4, 4, 1, 32, nullptr)); }, EndGdi},
    {"region", [] { return static_cast<void*>(CreateRectRgn(0, 0, 5, 5)); }, EndGdi},
    {"DC", [] { return static_cast<void*>(CreateCompatibleDC(nullptr)); },
     [](void* dc) { DeleteDC(static_cast<HDC>(dc)); }},
    {"window", MakeWindow, [](void* window) { DestroyWindow(static_cast<HWND>(window)); }},
    {"window", MakeMessageWindow, [](void* window) { DestroyWindow(static_cast<HWND>(window)); }},
    {"menu", [] { return static_cast<void*>(CreatePopupMenu()); },
     [](void* menu) { DestroyMenu(static_cast<HMENU>(menu)); }},
    {"icon", MakeIcon, [](void* icon) { DestroyIcon(static_cast<HICON>(icon)); }},
    {"accelerators", MakeAccelerators, [](void* table) { DestroyAcceleratorTable(static_cast<HACCEL>(table)); }},
    {"Event", [] { return static_cast<void*>(CreateEventW(nullptr, FALSE, FALSE, nullptr)); },
     [](void* event) { CloseHandle(event); }},
};

/** How the count calls a kind on this system. */
std::string CountedAs(const Kind& kind)
{
    if (ts::OnWine()) {
        return kind.name;
    }
    const std::string name = kind.name;
    if (name == "Event") {
        return "kernel handles";
    }
    const bool user = name == "window" || name == "menu" || name == "icon" || name == "accelerators";
    return user ? "USER objects" : "GDI objects";
}

class LeaksOfKind : public testing::TestWithParam<Kind>
{
};

TEST_P(LeaksOfKind, AreCountedExactly)
{
    // The first window of a thread brings helper windows of the system with it.
    const ts::HostWindow host;
    const std::string kind = CountedAs(GetParam());
    GetParam().end(GetParam().make());
    ts::HandleCounts before = ts::CountHandles();
    std::vector<void*> planted;
    planted.reserve(kPlanted);
    for (int i = 0; i < kPlanted; ++i) {
        planted.push_back(GetParam().make());
    }
    ts::HandleCounts during = ts::CountHandles();
    for (void* handle : planted) {
        GetParam().end(handle);
    }
    ts::HandleCounts after = ts::CountHandles();
    EXPECT_EQ(kPlanted, during[kind] - before[kind]);
    EXPECT_EQ(before[kind], after[kind]);
}

TEST_P(LeaksOfKind, AreFoundInACycle)
{
    std::vector<void*> planted;
    const testing::AssertionResult result = ts::NoLeak([&] { planted.push_back(GetParam().make()); }, kPlanted);
    EXPECT_FALSE(result);
    const std::string text = std::to_string(kPlanted) + " x " + CountedAs(GetParam());
    EXPECT_NE(std::string::npos, std::string(result.message()).find(text)) << result.message();
    for (void* handle : planted) {
        GetParam().end(handle);
    }
}

TEST_P(LeaksOfKind, AreNotSeenWhenEverythingIsGivenBack)
{
    EXPECT_TRUE(ts::NoLeak([] { GetParam().end(GetParam().make()); }, kPlanted));
}

INSTANTIATE_TEST_SUITE_P(Kinds, LeaksOfKind, testing::ValuesIn(kKinds),
                         [](const auto& info) { return std::to_string(info.index) + "_" + info.param.name; });

TEST(Leaks, AHandleLeftBehindNowAndThenIsFound)
{
    std::vector<HGDIOBJ> planted;
    int cycle = 0;
    const testing::AssertionResult result = ts::NoLeak(
        [&] {
            if (++cycle % 10 == 0) {
                planted.push_back(CreateSolidBrush(0));
            }
        },
        20);
    EXPECT_FALSE(result) << result.message();
    for (const HGDIOBJ brush : planted) {
        DeleteObject(brush);
    }
}

TEST(Leaks, ACacheThatFillsOnceIsNone)
{
    std::vector<HGDIOBJ> cache;
    int cycle = 0;
    EXPECT_TRUE(ts::NoLeak(
        [&] {
            if (++cycle <= 12) {
                cache.push_back(CreateSolidBrush(0));
            }
        },
        10));
    for (const HGDIOBJ brush : cache) {
        DeleteObject(brush);
    }
}

TEST(Leaks, OpeningPaintingAndClosingAWindowLeavesNothing)
{
    EXPECT_TRUE(ts::NoLeak(
        [] {
            ts::HostWindow host(100, 100);
            host.Add(L"BUTTON", L"x", 0, 0, 0, 50, 20, 1);
            ts::CaptureWindow(host.Hwnd());
        },
        20));
}

} // namespace
