#include "FlatEditEx.h"

#include <QorUI/app/module/LibText.h>

BEGIN_MESSAGE_MAP(CFlatEditEx, CFlatEdit)
    ON_CONTROL_REFLECT_EX(EN_UPDATE, &CFlatEditEx::OnUpdate)
END_MESSAGE_MAP()

namespace
{

enum TextState : int
{
    kTextRefused = -1,
    kTextEmpty = 0,
    kTextValid = 1
};

} // namespace

CFlatEditEx::CFlatEditEx() : m_nValid(kTextEmpty), m_lpszIllegal(nullptr) {}

void CFlatEditEx::SetIllegalChars(LPCWSTR chars)
{
    m_lpszIllegal = chars;
}

int CFlatEditEx::IsValidText()
{
    return m_nValid;
}

BOOL CFlatEditEx::OnUpdate()
{
    if (!m_lpszIllegal) {
        return FALSE;
    }
    CString text;
    GetWindowText(text);
    text.Trim();
    if (text.IsEmpty()) {
        m_nValid = kTextEmpty;
    } else if (text.FindOneOf(m_lpszIllegal) >= 0) {
        m_nValid = kTextRefused;
        ShowRefusal();
    } else {
        m_nValid = kTextValid;
        HideBalloonTip();
    }
    return FALSE;
}

void CFlatEditEx::ShowRefusal()
{
    CString text = QorLibFormat(L"STR_INVALID_TEXT", m_lpszIllegal);
    EDITBALLOONTIP tip = {};
    tip.cbStruct = sizeof(tip);
    tip.pszText = text;
    tip.ttiIcon = TTI_NONE;
    ShowBalloonTip(&tip);
}
