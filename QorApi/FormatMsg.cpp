#include "FormatMsg.h"

#include <common/Owner.h>

namespace
{

CString GetSystemText(DWORD code)
{
    own::LocalMemory text;
    const DWORD length =
        FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                       nullptr, code, 0, reinterpret_cast<LPWSTR>(text.Receive()), 0, nullptr);
    CString result(length ? static_cast<LPCWSTR>(text.Get()) : L"");
    result.TrimRight();
    return result;
}

} // namespace

CString QorFormatMsg(DWORD code)
{
    CString text = GetSystemText(code);
    if (text.IsEmpty() && HRESULT_FACILITY(code) == FACILITY_WIN32) {
        text = GetSystemText(HRESULT_CODE(code));
    }
    if (text.IsEmpty()) {
        text.Format(L"0x%08X", code);
    }
    return text;
}
