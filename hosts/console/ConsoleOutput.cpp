#include "ConsoleOutput.h"

#include <QorPub/QorPub.h>

bool ConsoleWriteLine(DWORD stream, const CString& text)
{
    const HANDLE out = ::GetStdHandle(stream);
    if (!out || out == INVALID_HANDLE_VALUE) {
        return false;
    }
    const CStringA line = WStrToUTF8(text + L"\n");
    DWORD written = 0;
    return ::WriteFile(out, line.GetString(), static_cast<DWORD>(line.GetLength()), &written, nullptr) != FALSE;
}
