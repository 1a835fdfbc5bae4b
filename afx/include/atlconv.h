#pragma once

/** @file
 *  Conversion between wide text and text of the system's code page: the classes CT2W and their kin, and the older
 * macros that follow USES_CONVERSION. */

#include <afx/config.h>

/** Holds a converted text; null stays null, and is what is held when memory runs out. */
template <class Char>
class CAfxConvertedText
{
  public:
    CAfxConvertedText() = default;
    ~CAfxConvertedText() { free(m_psz); }
    CAfxConvertedText(const CAfxConvertedText&) = delete;
    CAfxConvertedText& operator=(const CAfxConvertedText&) = delete;

    operator Char*() const { return m_psz; }

    Char* m_psz = nullptr;

  protected:
    /** Room for nLength characters and a terminator. */
    bool Allocate(int nLength)
    {
        m_psz = static_cast<Char*>(calloc(static_cast<size_t>(nLength) + 1, sizeof(Char)));
        return m_psz != nullptr;
    }
};

/** Wide text of a code-page text, alive as long as the object. */
template <int t_nBufferLength = 128>
class CA2WEX : public CAfxConvertedText<wchar_t>
{
  public:
    CA2WEX(LPCSTR psz, UINT nCodePage = CP_ACP)
    {
        const int nLength = psz ? ::MultiByteToWideChar(nCodePage, 0, psz, -1, nullptr, 0) : 0;
        if (psz && Allocate(nLength)) {
            ::MultiByteToWideChar(nCodePage, 0, psz, -1, m_psz, nLength);
        }
    }
};

/** Code-page text of a wide text, alive as long as the object. */
template <int t_nBufferLength = 128>
class CW2AEX : public CAfxConvertedText<char>
{
  public:
    CW2AEX(LPCWSTR psz, UINT nCodePage = CP_ACP)
    {
        const int nLength = psz ? ::WideCharToMultiByte(nCodePage, 0, psz, -1, nullptr, 0, nullptr, nullptr) : 0;
        if (psz && Allocate(nLength)) {
            ::WideCharToMultiByte(nCodePage, 0, psz, -1, m_psz, nLength, nullptr, nullptr);
        }
    }
};

/** A copy of a wide text that may be changed. */
template <int t_nBufferLength = 128>
class CW2WEX : public CAfxConvertedText<wchar_t>
{
  public:
    CW2WEX(LPCWSTR psz, UINT = CP_ACP)
    {
        const int nLength = psz ? ::lstrlenW(psz) : 0;
        if (psz && Allocate(nLength)) {
            memcpy(m_psz, psz, nLength * sizeof(wchar_t));
        }
    }
};

/** Nothing to convert and nothing to change: the text itself. */
class CW2CW
{
  public:
    CW2CW(LPCWSTR psz, UINT = CP_ACP) : m_psz(psz) {}
    operator LPCWSTR() const { return m_psz; }

    LPCWSTR m_psz;
};

typedef CA2WEX<> CA2W;
typedef CA2WEX<> CA2CW;
typedef CA2WEX<> CA2T;
typedef CA2WEX<> CA2CT;
typedef CW2AEX<> CW2A;
typedef CW2AEX<> CW2CA;
typedef CW2AEX<> CT2A;
typedef CW2AEX<> CT2CA;
typedef CW2WEX<> CW2W;
typedef CW2WEX<> CW2T;
typedef CW2WEX<> CT2W;
typedef CW2CW CW2CT;
typedef CW2CW CT2CW;

template <int t_nBufferLength = 128>
using CA2TEX = CA2WEX<t_nBufferLength>;
template <int t_nBufferLength = 128>
using CT2AEX = CW2AEX<t_nBufferLength>;
template <int t_nBufferLength = 128>
using CT2WEX = CW2WEX<t_nBufferLength>;
template <int t_nBufferLength = 128>
using CW2TEX = CW2WEX<t_nBufferLength>;

/** What the conversion macros of one function hand out, kept until that function returns. */
class CAfxConversionArea
{
  public:
    CAfxConversionArea() = default;
    ~CAfxConversionArea()
    {
        Drop(m_pWide);
        Drop(m_pNarrow);
    }
    CAfxConversionArea(const CAfxConversionArea&) = delete;
    CAfxConversionArea& operator=(const CAfxConversionArea&) = delete;

    LPWSTR Wide(LPCSTR psz) { return Add<wchar_t>(m_pWide, psz); }
    LPSTR Narrow(LPCWSTR psz) { return Add<char>(m_pNarrow, psz); }

  private:
    template <class Text>
    struct Node
    {
        template <class Source>
        Node(Source psz, Node* pNextNode) : text(psz), pNext(pNextNode)
        {
        }
        Text text;
        Node* pNext;
    };

    template <class Char, class Text, class Source>
    static Char* Add(Node<Text>*& pFirst, Source psz)
    {
        pFirst = new Node<Text>(psz, pFirst);
        return pFirst->text.m_psz;
    }

    template <class Text>
    static void Drop(Node<Text>* pNode)
    {
        while (pNode) {
            Node<Text>* pNext = pNode->pNext;
            delete pNode;
            pNode = pNext;
        }
    }

    Node<CA2W>* m_pWide = nullptr;
    Node<CW2A>* m_pNarrow = nullptr;
};

/** To stand once in a function, before the macros below. */
#define USES_CONVERSION [[maybe_unused]] CAfxConversionArea afxConversionArea

#define A2W(psz) (afxConversionArea.Wide(psz))
#define W2A(psz) (afxConversionArea.Narrow(psz))
#define A2CW(psz) static_cast<LPCWSTR>(A2W(psz))
#define W2CA(psz) static_cast<LPCSTR>(W2A(psz))
#define T2A(psz) W2A(psz)
#define A2T(psz) A2W(psz)
#define T2CA(psz) W2CA(psz)
#define A2CT(psz) A2CW(psz)

inline LPWSTR T2W(LPTSTR psz)
{
    return psz;
}

inline LPTSTR W2T(LPWSTR psz)
{
    return psz;
}

inline LPCWSTR T2CW(LPCTSTR psz)
{
    return psz;
}

inline LPCTSTR W2CT(LPCWSTR psz)
{
    return psz;
}

inline LPCOLESTR T2COLE(LPCTSTR psz)
{
    return psz;
}

inline LPCTSTR OLE2CT(LPCOLESTR psz)
{
    return psz;
}
