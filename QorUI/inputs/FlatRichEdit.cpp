#include "FlatRichEdit.h"

#include "FlatBorder.h"

BEGIN_MESSAGE_MAP(CFlatRichEdit, CRichEditCtrl)
    ON_WM_NCPAINT()
END_MESSAGE_MAP()

namespace
{

constexpr LONG kTwipsPerPixel = 15;
constexpr int kEnd = -1;
constexpr int kEndWithLineFeed = -2;

PARAFORMAT ParagraphFormat(DWORD mask)
{
    PARAFORMAT format = {};
    format.cbSize = sizeof(format);
    format.dwMask = mask;
    return format;
}

} // namespace

CFlatRichEdit::CFlatRichEdit() : m_cf()
{
    m_cf.cbSize = sizeof(m_cf);
    m_cf.dwMask = CFM_BOLD | CFM_ITALIC | CFM_UNDERLINE | CFM_STRIKEOUT | CFM_COLOR | CFM_SIZE;
    LOGFONTW font = {};
    if (::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof(font), &font) != 0) {
        m_cf.dwMask |= CFM_FACE;
        ::lstrcpynW(m_cf.szFaceName, font.lfFaceName, LF_FACESIZE);
    }
}

BOOL CFlatRichEdit::SetFormat(long height, COLORREF text, DWORD effects)
{
    m_cf.dwEffects = effects;
    m_cf.crTextColor = text;
    m_cf.yHeight = height * kTwipsPerPixel;
    return TRUE;
}

void CFlatRichEdit::InsertText(int pos, LPCWSTR format, ...)
{
    if (!format) {
        return;
    }
    CString text;
    va_list arguments;
    va_start(arguments, format);
    text.FormatV(format, arguments);
    va_end(arguments);
    if (pos == kEndWithLineFeed) {
        text += L'\n';
        pos = kEnd;
    }
    SetSelectionCharFormat(m_cf);
    Replace(pos, pos, text);
}

void CFlatRichEdit::DeleteText(int start, int end)
{
    Replace(start, end, L"");
}

void CFlatRichEdit::ClearText()
{
    SetWindowText(L"");
}

BOOL CFlatRichEdit::SetAlign(WORD align)
{
    PARAFORMAT format = ParagraphFormat(PFM_ALIGNMENT);
    format.wAlignment = align;
    return SetParaFormat(format);
}

BOOL CFlatRichEdit::SetIndent(long start, long right)
{
    PARAFORMAT format = ParagraphFormat(PFM_STARTINDENT | PFM_RIGHTINDENT | PFM_OFFSET);
    format.dxStartIndent = start;
    format.dxRightIndent = right;
    return SetParaFormat(format);
}

BOOL CFlatRichEdit::AutoURLDetect(BOOL enable)
{
    const LRESULT mask = SendMessage(EM_GETEVENTMASK);
    SendMessage(EM_SETEVENTMASK, 0, enable ? mask | ENM_LINK : mask & ~static_cast<LRESULT>(ENM_LINK));
    return static_cast<BOOL>(SendMessage(EM_AUTOURLDETECT, static_cast<WPARAM>(enable)));
}

void CFlatRichEdit::Replace(long start, long end, LPCWSTR text)
{
    SetSel(start, end);
    SendMessage(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
}

void CFlatRichEdit::OnNcPaint()
{
    Default();
    QorDrawFlatBorder(this, TRUE);
}
