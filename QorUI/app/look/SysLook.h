#pragma once

#include <QorUI/app/module/QorUIDef.h>

/**
 * Message font and system colours, read once when the library is loaded and not refreshed afterwards.
 *
 * A colour that the system gives to several parts of a control stands once for each part, so that the fields can be
 * copied as one block.
 */
struct QORUI_API CQorSysLook
{
    /** Reads font and colours from the system. */
    CQorSysLook();
    CQorSysLook(const CQorSysLook&) = delete;
    CQorSysLook& operator=(const CQorSysLook&) = delete;

    CFont m_font;               ///< the system's message font
    COLORREF m_clrBtnHighlight; ///< `COLOR_BTNHIGHLIGHT`
    COLORREF m_clrBtnShadow;    ///< `COLOR_BTNSHADOW`
    COLORREF m_clrBtnFace;      ///< `COLOR_BTNFACE`
    COLORREF m_clrBtnText;      ///< `COLOR_BTNTEXT`: text of enabled controls
    COLORREF m_clrGrayText;     ///< `COLOR_GRAYTEXT`: text of disabled controls
    COLORREF m_clrWindowFrame;  ///< `COLOR_WINDOWFRAME`
    COLORREF m_clrBarFace;      ///< `COLOR_BTNFACE`
    COLORREF m_clrBarHighlight; ///< `COLOR_BTNHIGHLIGHT`
    COLORREF m_clrBarShadow;    ///< `COLOR_BTNSHADOW`
    COLORREF m_clrHighlight;    ///< `COLOR_HIGHLIGHT`
    COLORREF m_clrWindow;       ///< `COLOR_WINDOW`
    COLORREF m_clrWindowText;   ///< `COLOR_WINDOWTEXT`

    /** Text colour of a control: `COLOR_BTNTEXT`, or `COLOR_GRAYTEXT` for a disabled one. */
    COLORREF TextColor(bool disabled) const { return disabled ? m_clrGrayText : m_clrBtnText; }
};

/** The one object of its kind, built when the library is loaded. */
extern QORUI_API CQorSysLook QorSysLook;
