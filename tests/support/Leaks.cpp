#include <tests/support/Leaks.h>
#include <tests/support/Pump.h>
#include <tests/support/Surroundings.h>

#include <windows.h>

#include <winternl.h>

#include <algorithm>
#include <sstream>
#include <vector>

namespace ts
{
namespace
{
constexpr size_t kGdiTableInPeb = 0xF8;
constexpr int kGdiTableEntries = 0x4000;
constexpr ULONG_PTR kFirstUserHandle = 0x20;
constexpr ULONG_PTR kLastUserHandle = 0xFFFE;
constexpr int kHandleInformation = 16;
constexpr NTSTATUS kTooSmall = static_cast<NTSTATUS>(0xC0000004);
constexpr int kWarmUp = 5;
constexpr int kRounds = 3;

/** An entry of Wine's table of GDI objects. */
struct GdiEntry
{
    ULONGLONG object;
    DWORD owner;
    WORD unique; ///< Upper half of the handle.
    BYTE type;   ///< 0: free.
    BYTE flags;
    ULONGLONG user;
};
static_assert(sizeof(GdiEntry) == 24);

struct KernelEntry
{
    ULONG process;
    BYTE type;
    BYTE flags;
    USHORT handle;
    void* object;
    ULONG access;
};
static_assert(sizeof(KernelEntry) == 24);

const char* GdiName(DWORD type)
{
    switch (type) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return "pen";
    case OBJ_BRUSH:
        return "brush";
    case OBJ_DC:
    case OBJ_MEMDC:
    case OBJ_METADC:
    case OBJ_ENHMETADC:
        return "DC";
    case OBJ_PAL:
        return "palette";
    case OBJ_FONT:
        return "font";
    case OBJ_BITMAP:
        return "bitmap";
    case OBJ_REGION:
        return "region";
    default:
        return "other GDI object";
    }
}

void CountGdi(HandleCounts& counts)
{
    PROCESS_BASIC_INFORMATION process = {};
    NtQueryInformationProcess(GetCurrentProcess(), ProcessBasicInformation, &process, sizeof(process), nullptr);
    const auto* peb = reinterpret_cast<const BYTE*>(process.PebBaseAddress);
    const auto* table = *reinterpret_cast<const GdiEntry* const*>(peb + kGdiTableInPeb);
    for (ULONG_PTR i = 0; i < kGdiTableEntries; ++i) {
        if (table[i].type != 0) {
            ++counts[GdiName(GetObjectType(reinterpret_cast<HGDIOBJ>(i | (ULONG_PTR{table[i].unique} << 16))))];
        }
    }
}

bool IsOurs(HWND window)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

BOOL CALLBACK CountChild(HWND window, LPARAM count)
{
    *reinterpret_cast<int*>(count) += IsOurs(window) ? 1 : 0;
    return TRUE;
}

BOOL CALLBACK CountTopLevel(HWND window, LPARAM count)
{
    CountChild(window, count);
    if (IsOurs(window)) {
        EnumChildWindows(window, CountChild, count);
    }
    return TRUE;
}

int CountWindows()
{
    int count = 0;
    EnumWindows(CountTopLevel, reinterpret_cast<LPARAM>(&count));
    HWND window = nullptr;
    while ((window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr) {
        CountTopLevel(window, reinterpret_cast<LPARAM>(&count));
    }
    return count;
}

bool IsIcon(ULONG_PTR handle)
{
    ICONINFO info = {};
    if (!GetIconInfo(reinterpret_cast<HICON>(handle), &info)) {
        return false;
    }
    DeleteObject(info.hbmMask);
    if (info.hbmColor) {
        DeleteObject(info.hbmColor);
    }
    return true;
}

void CountUser(HandleCounts& counts)
{
    counts["window"] = CountWindows();
    for (ULONG_PTR handle = kFirstUserHandle; handle <= kLastUserHandle; handle += 2) {
        counts["menu"] += IsMenu(reinterpret_cast<HMENU>(handle)) ? 1 : 0;
        counts["accelerators"] += CopyAcceleratorTableW(reinterpret_cast<HACCEL>(handle), nullptr, 0) > 0 ? 1 : 0;
        counts["icon"] += IsIcon(handle) ? 1 : 0;
    }
}

std::string KernelTypeName(HANDLE handle)
{
    alignas(void*) BYTE buffer[512] = {};
    ULONG size = 0;
    if (NtQueryObject(handle, ObjectTypeInformation, buffer, sizeof(buffer), &size) != 0) {
        return "kernel object";
    }
    const auto& name = *reinterpret_cast<const UNICODE_STRING*>(buffer);
    return ToUtf8({name.Buffer, name.Length / sizeof(wchar_t)});
}

void CountKernel(HandleCounts& counts)
{
    std::vector<BYTE> buffer(1 << 16);
    ULONG size = 0;
    NTSTATUS status;
    while ((status = NtQuerySystemInformation(static_cast<SYSTEM_INFORMATION_CLASS>(kHandleInformation), buffer.data(),
                                              static_cast<ULONG>(buffer.size()), &size)) == kTooSmall) {
        buffer.resize(buffer.size() * 2);
    }
    if (status != 0) {
        ADD_FAILURE() << "the kernel handles cannot be listed";
        return;
    }
    const ULONG count = *reinterpret_cast<const ULONG*>(buffer.data());
    const auto* entries = reinterpret_cast<const KernelEntry*>(buffer.data() + sizeof(void*));
    std::map<BYTE, std::string> names;
    for (ULONG i = 0; i < count; ++i) {
        if (entries[i].process != GetCurrentProcessId()) {
            continue;
        }
        std::string& name = names[entries[i].type];
        if (name.empty()) {
            name = KernelTypeName(reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(entries[i].handle)));
        }
        ++counts[name];
    }
}

void CountBySystem(HandleCounts& counts)
{
    DWORD kernel = 0;
    GetProcessHandleCount(GetCurrentProcess(), &kernel);
    counts["GDI objects"] = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
    counts["USER objects"] = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS));
    counts["kernel handles"] = static_cast<int>(kernel);
}

void Run(const std::function<void()>& cycle, int times)
{
    for (int i = 0; i < times; ++i) {
        cycle();
        Settle();
    }
}

std::string Text(const HandleCounts& counts)
{
    std::ostringstream text;
    for (const auto& [kind, number] : counts) {
        text << (text.tellp() > 0 ? ", " : "") << number << " x " << kind;
    }
    return text.str();
}

/** What grew in both: a cache that fills up once is not among it. */
HandleCounts InBoth(const HandleCounts& one, const HandleCounts& other)
{
    HandleCounts both;
    for (const auto& [kind, number] : one) {
        const auto found = other.find(kind);
        if (number > 0 && found != other.end() && found->second > 0) {
            both[kind] = (std::min)(number, found->second);
        }
    }
    return both;
}
} // namespace

HandleCounts CountHandles()
{
    HandleCounts counts;
    if (!OnWine()) {
        CountBySystem(counts);
        return counts;
    }
    CountGdi(counts);
    CountUser(counts);
    CountKernel(counts);
    return counts;
}

HandleCounts Difference(const HandleCounts& before, const HandleCounts& after)
{
    HandleCounts difference = after;
    for (const auto& [kind, number] : before) {
        difference[kind] -= number;
    }
    std::erase_if(difference, [](const auto& entry) { return entry.second == 0; });
    return difference;
}

testing::AssertionResult NoLeak(const std::function<void()>& cycle, int cycles)
{
    Run(cycle, kWarmUp);
    HandleCounts leaked;
    HandleCounts before = CountHandles();
    for (int round = 0; round < kRounds; ++round) {
        Run(cycle, cycles);
        const HandleCounts after = CountHandles();
        const HandleCounts grown = Difference(before, after);
        leaked = round == 0 ? grown : InBoth(leaked, grown);
        std::erase_if(leaked, [](const auto& entry) { return entry.second < 0; });
        if (leaked.empty()) {
            return testing::AssertionSuccess() << "nothing was left behind";
        }
        before = after;
    }
    return testing::AssertionFailure() << cycles << " cycles left behind " << Text(leaked);
}

} // namespace ts
