#pragma once

#include <afx/str.h>

/** A dialog template in memory that can be measured and changed before a dialog is made from it. */
class AFX_LIB CDialogTemplate
{
  public:
    /** Copies the template. */
    explicit CDialogTemplate(const DLGTEMPLATE* pTemplate = nullptr);
    /** Takes over a global memory block with a template. */
    explicit CDialogTemplate(HGLOBAL hGlobal);
    ~CDialogTemplate();
    CDialogTemplate(const CDialogTemplate&) = delete;
    CDialogTemplate& operator=(const CDialogTemplate&) = delete;

    /** Copies a template resource found by AfxFindResourceHandle. */
    BOOL Load(LPCTSTR lpDialogTemplateID);
    /** Takes over a global memory block with a template, and frees the one it had. */
    HGLOBAL Attach(HGLOBAL hGlobal);
    /** Gives the memory block to the caller. */
    HGLOBAL Detach();

    BOOL HasFont() const;
    /** @param nFontSize points. */
    BOOL SetFont(LPCTSTR lpFaceName, WORD nFontSize);
    /** Sets the system's interface font; wSize 0 keeps its size (points). */
    BOOL SetSystemFont(WORD nFontSize = 0);
    BOOL GetFont(CString& strFaceName, WORD& nFontSize) const;
    /** Size of the client area in dialog units. */
    void GetSizeInDialogUnits(SIZE* pSize) const;
    /** Size of the client area in pixels for the template's font. */
    void GetSizeInPixels(SIZE* pSize) const;

    static BOOL GetFont(const DLGTEMPLATE* pTemplate, CString& strFaceName, WORD& nFontSize);

    HGLOBAL m_hTemplate;
    DWORD m_dwTemplateSize; ///< Bytes in use.
    BOOL m_bSystemFont;

  protected:
    static BOOL HasFont(const DLGTEMPLATE* pTemplate);
    BOOL SetTemplate(const void* pTemplate, UINT cb);
};
