#pragma once

#include <tests/support/Support.h>

#include <afxcmn.h>
#include <afxwin.h>

#include <vector>

constexpr COLORREF kPaint = RGB(1, 200, 3);

/** Paints its items in one colour and remembers what it was asked to draw. */
template <class Base>
class Painted : public Base
{
  public:
    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        ++draws;
        type = item->CtlType;
        lastItem = static_cast<int>(item->itemID);
        CDC::FromHandle(item->hDC)->FillSolidRect(&item->rcItem, kPaint);
    }

    int draws = 0;
    int lastItem = -2;
    UINT type = 0;
};

/** Has items of one height, greater values first, and remembers which were deleted. */
template <class Base>
class Measured : public Painted<Base>
{
  public:
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        ++measures;
        item->itemHeight = 31;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT item) override
    {
        ++compares;
        // Greater values first.
        return item->itemData1 < item->itemData2 ? 1 : -1;
    }
    void DeleteItem(LPDELETEITEMSTRUCT item) override { deleted.push_back(item->itemData); }

    int measures = 0;
    int compares = 0;
    std::vector<ULONG_PTR> deleted;
};

inline bool IsPainted(CWnd& wnd, int x = 3, int y = 3)
{
    return ts::CaptureWindow(wnd).At(x, y) == kPaint;
}
