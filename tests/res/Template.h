#pragma once

#include <windows.h>

#include <string>
#include <vector>

/** One control of a dialog template, in dialog units. */
struct TemplateItem
{
    DWORD id;
    std::wstring className; /**< in lower case */
    DWORD style;
    DWORD exStyle;
    int x, y, cx, cy;
    WORD picture; /**< number of the picture of a static control, else 0 */

    bool IsButton(DWORD type) const { return className == L"button" && (style & BS_TYPEMASK) == type; }
};

/** A dialog template of QorUI.dll as its resource states it. */
struct Template
{
    DWORD style = 0;
    int cx = 0, cy = 0;
    std::wstring caption;
    std::wstring font;
    WORD pointSize = 0;
    std::vector<TemplateItem> items;

    /** The control with an id; fails the running test when there is none or more than one. */
    const TemplateItem& Item(DWORD id) const;
    bool Has(DWORD id) const;
};

/** QorUI.dll, opened for its resources only. */
HMODULE Resources();

/** The bytes of a resource; empty when there is none. */
std::vector<BYTE> ResourceBytes(UINT id, LPCWSTR type);

/** Reads an extended dialog template; fails the running test when it is missing or has another form. */
Template ReadTemplate(UINT id);
