#include "dlginit.h"
#include "lockedtemplate.h"

#include <common/Owner.h>

#include <afx/dlgtemplate.h>

#include <utility>
#include <vector>

namespace
{
constexpr size_t kPlainHead = sizeof(DLGTEMPLATE);
constexpr size_t kPlainItem = sizeof(DLGITEMTEMPLATE);
constexpr size_t kExtendedHead = 26;
constexpr size_t kExtendedItem = 24;
constexpr WORD kExtendedMark = 0xFFFF;
constexpr int kPointsPerInch = 72;
constexpr int kUnitsPerWidth = 4;
constexpr int kUnitsPerHeight = 8;

/** Finds its way through a template of either kind. */
class TemplateReader
{
  public:
    explicit TemplateReader(const void* pTemplate) : m_p(static_cast<const BYTE*>(pTemplate)) {}

    bool IsExtended() const { return Word(2) == kExtendedMark; }
    DWORD Style() const { return Long(IsExtended() ? 12 : 0); }
    size_t StyleOffset() const { return IsExtended() ? 12 : 0; }
    bool HasFont() const { return (Style() & DS_SETFONT) != 0; }
    WORD ItemCount() const { return Word(IsExtended() ? 16 : 8); }
    SIZE Units() const
    {
        const size_t at = IsExtended() ? 22 : 14;
        return {static_cast<short>(Word(at)), static_cast<short>(Word(at + 2))};
    }

    /** Where the font is, or would be: behind menu, class and caption. */
    size_t FontOffset() const
    {
        size_t at = IsExtended() ? kExtendedHead : kPlainHead;
        for (int i = 0; i < 3; ++i) {
            at = SkipNameOrText(at);
        }
        return at;
    }
    /** Bytes of point size, weight, slant and character set in front of the face name. */
    size_t FontAttributes() const { return IsExtended() ? 6 : 2; }
    WORD PointSize() const { return Word(FontOffset()); }
    int Weight() const { return IsExtended() ? Word(FontOffset() + 2) : FW_NORMAL; }
    BYTE Italic() const { return IsExtended() ? m_p[FontOffset() + 4] : 0; }
    BYTE CharSet() const { return IsExtended() ? m_p[FontOffset() + 5] : DEFAULT_CHARSET; }
    const WCHAR* FaceName() const { return Text(FontOffset() + FontAttributes()); }

    size_t EndOfFont() const
    {
        const size_t at = FontOffset();
        return HasFont() ? SkipText(at + FontAttributes()) : at;
    }

    size_t EndOfItems() const
    {
        size_t at = EndOfFont();
        for (WORD i = 0; i < ItemCount(); ++i) {
            at = Aligned(at) + (IsExtended() ? kExtendedItem : kPlainItem);
            at = SkipNameOrText(at); // class
            at = SkipNameOrText(at); // text
            const WORD nExtra = Word(at);
            // The plain form counts the length itself in, the extended one does not.
            at += IsExtended() || nExtra == 0 ? sizeof(WORD) + nExtra : nExtra;
        }
        return at;
    }

    static size_t Aligned(size_t at) { return (at + 3) & ~static_cast<size_t>(3); }

  private:
    WORD Word(size_t at) const
    {
        WORD value;
        ::memcpy(&value, m_p + at, sizeof value);
        return value;
    }
    DWORD Long(size_t at) const
    {
        DWORD value;
        ::memcpy(&value, m_p + at, sizeof value);
        return value;
    }
    const WCHAR* Text(size_t at) const { return reinterpret_cast<const WCHAR*>(m_p + at); }
    size_t SkipText(size_t at) const { return at + (::wcslen(Text(at)) + 1) * sizeof(WCHAR); }
    size_t SkipNameOrText(size_t at) const { return Word(at) == kExtendedMark ? at + 2 * sizeof(WORD) : SkipText(at); }

    const BYTE* m_p;
};

/** The size of a dialog unit, in quarters and eighths of the average character of a font. */
SIZE MeasureBaseUnits(const TemplateReader& reader)
{
    const DWORD dwUnits = static_cast<DWORD>(::GetDialogBaseUnits());
    SIZE base = {LOWORD(dwUnits), HIWORD(dwUnits)};
    if (!reader.HasFont()) {
        return base;
    }
    CClientDC dc(nullptr);
    CFont font;
    const int nHeight = -::MulDiv(reader.PointSize(), dc.GetDeviceCaps(LOGPIXELSY), kPointsPerInch);
    if (!font.CreateFont(nHeight, 0, 0, 0, reader.Weight(), reader.Italic(), FALSE, 0, reader.CharSet(),
                         OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, PROOF_QUALITY, FF_DONTCARE, reader.FaceName())) {
        return base;
    }
    const HGDIOBJ hOldFont = ::SelectObject(dc.m_hDC, font.m_hObject);
    constexpr WCHAR kLetters[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kLetterPairs = 26;
    SIZE extent;
    TEXTMETRIC metrics;
    if (::GetTextExtentPoint32(dc.m_hDC, kLetters, 2 * kLetterPairs, &extent) && ::GetTextMetrics(dc.m_hDC, &metrics)) {
        base = {(extent.cx / kLetterPairs + 1) / 2, metrics.tmHeight};
    }
    ::SelectObject(dc.m_hDC, hOldFont);
    return base;
}

void Append(std::vector<BYTE>& bytes, const void* p, size_t nCount)
{
    const auto* pBytes = static_cast<const BYTE*>(p);
    bytes.insert(bytes.end(), pBytes, pBytes + nCount);
}

/** The font part of a template: size, for the extended kind weight, slant and character set, and the face name. */
std::vector<BYTE> FontPart(bool isExtended, LPCTSTR lpFaceName, WORD nFontSize)
{
    std::vector<BYTE> bytes;
    Append(bytes, &nFontSize, sizeof nFontSize);
    if (isExtended) {
        const WORD nWeight = FW_NORMAL;
        const BYTE slantAndCharSet[] = {FALSE, DEFAULT_CHARSET};
        Append(bytes, &nWeight, sizeof nWeight);
        Append(bytes, slantAndCharSet, sizeof slantAndCharSet);
    }
    Append(bytes, lpFaceName, (::wcslen(lpFaceName) + 1) * sizeof(WCHAR));
    return bytes;
}
} // namespace

CDialogTemplate::CDialogTemplate(const DLGTEMPLATE* pTemplate)
    : m_hTemplate(nullptr), m_dwTemplateSize(0), m_bSystemFont(FALSE)
{
    if (pTemplate) {
        SetTemplate(pTemplate, static_cast<UINT>(TemplateReader(pTemplate).EndOfItems()));
    }
}

CDialogTemplate::CDialogTemplate(HGLOBAL hGlobal) : CDialogTemplate(static_cast<const DLGTEMPLATE*>(nullptr))
{
    Attach(hGlobal);
}

CDialogTemplate::~CDialogTemplate()
{
    const own::GlobalMemory owned(m_hTemplate);
}

BOOL CDialogTemplate::SetTemplate(const void* pTemplate, UINT cb)
{
    own::GlobalMemory block(::GlobalAlloc(GPTR, cb + LF_FACESIZE * 2));
    if (!block) {
        return FALSE;
    }
    ::memcpy(::GlobalLock(block.Get()), pTemplate, cb);
    ::GlobalUnlock(block.Get());
    const own::GlobalMemory former(std::exchange(m_hTemplate, block.Release()));
    m_dwTemplateSize = cb;
    m_bSystemFont = FALSE;
    return TRUE;
}

BOOL CDialogTemplate::Load(LPCTSTR lpDialogTemplateID)
{
    HINSTANCE hInst = nullptr;
    const void* pTemplate = AfxLoadLockedResource(lpDialogTemplateID, RT_DIALOG, &hInst);
    if (!pTemplate) {
        return FALSE;
    }
    return SetTemplate(pTemplate, ::SizeofResource(hInst, ::FindResource(hInst, lpDialogTemplateID, RT_DIALOG)));
}

HGLOBAL CDialogTemplate::Attach(HGLOBAL hGlobal)
{
    const own::GlobalMemory former(m_hTemplate != hGlobal ? m_hTemplate : nullptr);
    m_hTemplate = hGlobal;
    const LockedTemplate locked(hGlobal);
    m_dwTemplateSize = locked.Get() ? static_cast<DWORD>(TemplateReader(locked.Get()).EndOfItems()) : 0;
    return m_hTemplate;
}

HGLOBAL CDialogTemplate::Detach()
{
    const HGLOBAL hTemplate = m_hTemplate;
    m_hTemplate = nullptr;
    m_dwTemplateSize = 0;
    return hTemplate;
}

BOOL CDialogTemplate::HasFont(const DLGTEMPLATE* pTemplate)
{
    return pTemplate && TemplateReader(pTemplate).HasFont();
}

BOOL CDialogTemplate::HasFont() const
{
    const LockedTemplate locked(m_hTemplate);
    return HasFont(locked.Get());
}

BOOL CDialogTemplate::GetFont(const DLGTEMPLATE* pTemplate, CString& strFaceName, WORD& nFontSize)
{
    if (!HasFont(pTemplate)) {
        return FALSE;
    }
    const TemplateReader reader(pTemplate);
    strFaceName = reader.FaceName();
    nFontSize = reader.PointSize();
    return TRUE;
}

BOOL CDialogTemplate::GetFont(CString& strFaceName, WORD& nFontSize) const
{
    const LockedTemplate locked(m_hTemplate);
    return GetFont(locked.Get(), strFaceName, nFontSize);
}

BOOL CDialogTemplate::SetFont(LPCTSTR lpFaceName, WORD nFontSize)
{
    if (!m_hTemplate || !lpFaceName) {
        return FALSE;
    }
    std::vector<BYTE> bytes;
    {
        const LockedTemplate locked(m_hTemplate);
        const auto* pOld = reinterpret_cast<const BYTE*>(locked.Get());
        const TemplateReader reader(pOld);
        Append(bytes, pOld, reader.FontOffset());
        const std::vector<BYTE> font = FontPart(reader.IsExtended(), lpFaceName, nFontSize);
        Append(bytes, font.data(), font.size());
        if (reader.ItemCount() > 0) {
            bytes.resize(TemplateReader::Aligned(bytes.size()));
            const size_t itemsAt = TemplateReader::Aligned(reader.EndOfFont());
            Append(bytes, pOld + itemsAt, reader.EndOfItems() - itemsAt);
        }
        const DWORD dwStyle = reader.Style() | DS_SETFONT;
        ::memcpy(bytes.data() + reader.StyleOffset(), &dwStyle, sizeof dwStyle);
    }
    return SetTemplate(bytes.data(), static_cast<UINT>(bytes.size()));
}

BOOL CDialogTemplate::SetSystemFont(WORD nFontSize)
{
    LOGFONT logFont = {};
    if (!::GetObject(::GetStockObject(DEFAULT_GUI_FONT), sizeof logFont, &logFont)) {
        return FALSE;
    }
    WORD nPoints = nFontSize;
    if (nPoints == 0) {
        CClientDC dc(nullptr);
        const int nHeight = logFont.lfHeight < 0 ? -logFont.lfHeight : logFont.lfHeight;
        nPoints = static_cast<WORD>(::MulDiv(nHeight, kPointsPerInch, dc.GetDeviceCaps(LOGPIXELSY)));
    }
    const BOOL bResult = SetFont(logFont.lfFaceName, nPoints);
    m_bSystemFont = bResult;
    return bResult;
}

void CDialogTemplate::GetSizeInDialogUnits(SIZE* pSize) const
{
    *pSize = {0, 0};
    const LockedTemplate locked(m_hTemplate);
    if (locked.Get()) {
        *pSize = TemplateReader(locked.Get()).Units();
    }
}

void CDialogTemplate::GetSizeInPixels(SIZE* pSize) const
{
    *pSize = {0, 0};
    const LockedTemplate locked(m_hTemplate);
    if (!locked.Get()) {
        return;
    }
    const TemplateReader reader(locked.Get());
    const SIZE base = MeasureBaseUnits(reader);
    const SIZE units = reader.Units();
    *pSize = {::MulDiv(units.cx, base.cx, kUnitsPerWidth), ::MulDiv(units.cy, base.cy, kUnitsPerHeight)};
}
