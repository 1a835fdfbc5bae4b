#include "WndClass.h"

LPCWSTR QorRegisterWndClass(UINT style)
{
    try {
        return AfxRegisterWndClass(style);
    } catch (CResourceException* exception) {
        exception->Delete();
    }
    return nullptr;
}
