#include "FlatListBox.h"

#include "FlatBorder.h"
#include "ListWidth.h"

BEGIN_MESSAGE_MAP(CFlatListBox, CListBox)
    ON_WM_NCPAINT()
END_MESSAGE_MAP()

CFlatListBox::CFlatListBox() : m_nMaxWidth(0) {}

int CFlatListBox::AddString(LPCWSTR text)
{
    const int index = m_hWnd ? CListBox::AddString(text) : LB_ERR;
    if (index >= 0) {
        UpdateWidth(text);
    }
    return index;
}

int CFlatListBox::InsertString(int index, LPCWSTR text)
{
    const int inserted = m_hWnd ? CListBox::InsertString(index, text) : LB_ERR;
    if (inserted >= 0) {
        UpdateWidth(text);
    }
    return inserted;
}

int CFlatListBox::SetString(int index, LPCWSTR text)
{
    return DeleteString(index) == LB_ERR ? -1 : InsertString(index, text);
}

int CFlatListBox::DeleteString(int index)
{
    const int left = m_hWnd ? CListBox::DeleteString(static_cast<UINT>(index)) : LB_ERR;
    if (left >= 0) {
        m_nMaxWidth = QorRefitList(*this, m_nMaxWidth);
    }
    return left;
}

void CFlatListBox::ResetContent()
{
    CListBox::ResetContent();
    m_nMaxWidth = 0;
}

void CFlatListBox::UpdateWidth(LPCWSTR text)
{
    if (!m_bound.Fits(*this, text, m_nMaxWidth)) {
        m_nMaxWidth = QorWidenList(*this, m_nMaxWidth, text);
    }
}

void CFlatListBox::PreSubclassWindow()
{
    m_bound.Forget();                 // the font of another window
    m_nMaxWidth = QorWidestOf(*this); // not that of a former window
    CListBox::PreSubclassWindow();
}

LRESULT CFlatListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETFONT) {
        m_bound.Forget();
    }
    return CListBox::WindowProc(message, wParam, lParam);
}

void CFlatListBox::OnNcPaint()
{
    Default();
    QorDrawFlatBorder(this, TRUE);
}
