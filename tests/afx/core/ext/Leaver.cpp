/* A program that leaves a GDI object and blocks behind when asked to ("leave"), and nothing else. What afx.dll says of
 * it at the end is read from the program's output. */

#include <afxwin.h>

int wmain(int argc, wchar_t** argv)
{
    AfxEnableMemoryTracking(TRUE);
    const CString strUsed(L'x', 10);
    CBrush usedBrush(RGB(1, 2, 3));
    CDC::FromHandle(::GetDC(nullptr)); // a temporary object, which nobody has to free
    if (argc > 1 && wcscmp(argv[1], L"leave") == 0) {
        (new ("Leaver.cpp", 14) CBrush)->CreateSolidBrush(RGB(4, 5, 6));
    }
    return 0;
}
