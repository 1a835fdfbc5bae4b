/* Entry function of a program with an application object. */

#include <afxwin.h>

int WINAPI wWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPWSTR lpCmdLine, int nCmdShow)
{
    return AfxWinMain(hInstance, hPrevInstance, lpCmdLine, nCmdShow);
}
