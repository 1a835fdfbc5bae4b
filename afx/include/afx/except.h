#pragma once

/** @file
 *  Exceptions of the framework. They are thrown and caught as pointers; who ends the exception calls Delete. */

#include <afx/object.h>

/** Base of the framework's exceptions. */
class AFX_LIB CException : public CObject
{
    DECLARE_DYNAMIC(CException)

  public:
    CException();
    /** @param bAutoDelete TRUE when the object is on the heap and Delete shall free it */
    explicit CException(BOOL bAutoDelete);

    /** Ends the exception: frees the object when it is on the heap. */
    void Delete();

    /** Gives the text of the error.
     *  @param lpszError    buffer, always terminated when nMaxError > 0
     *  @param nMaxError    size of the buffer in characters
     *  @param pnHelpContext receives the help context or 0; may be null
     *  @return FALSE when there is no text */
    virtual BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const;

    /** Shows the text of the error in a message box.
     *  @param nType      style of the box, as for MessageBox
     *  @param nMessageID string resource shown when the exception has no text of its own; 0 for a general one
     *  @return the button that ended the box */
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

  protected:
    BOOL m_bAutoDelete;
};

/** Base of the resource-critical exceptions: the text is fetched without allocating. */
class AFX_LIB CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)

  public:
    CSimpleException();
    explicit CSimpleException(BOOL bAutoDelete);
    /** @param nResourceID string resource with the text; 0 for none */
    CSimpleException(BOOL bAutoDelete, UINT nResourceID);

    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;

  protected:
    /** @param lpszDefault text used when the string resource is missing; must live as long as the exception */
    CSimpleException(BOOL bAutoDelete, UINT nResourceID, LPCWSTR lpszDefault);

  private:
    UINT m_nResourceID;
    LPCWSTR m_lpszDefault;
};

/** Memory is exhausted. */
class AFX_LIB CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)

  public:
    CMemoryException();
    explicit CMemoryException(BOOL bAutoDelete);
    CMemoryException(BOOL bAutoDelete, UINT nResourceID);
};

/** A feature was asked for that is not supported. */
class AFX_LIB CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)

  public:
    CNotSupportedException();
    explicit CNotSupportedException(BOOL bAutoDelete);
    CNotSupportedException(BOOL bAutoDelete, UINT nResourceID);
};

/** A resource was not found or could not be made. */
class AFX_LIB CResourceException : public CSimpleException
{
    DECLARE_DYNAMIC(CResourceException)

  public:
    CResourceException();
    explicit CResourceException(BOOL bAutoDelete);
    CResourceException(BOOL bAutoDelete, UINT nResourceID);
};

/** The end user's operation is to stop; the user has already been told why. */
class AFX_LIB CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)

  public:
    CUserException();
    explicit CUserException(BOOL bAutoDelete);
    CUserException(BOOL bAutoDelete, UINT nResourceID);
};

/** An argument is invalid. */
class AFX_LIB CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)

  public:
    CInvalidArgException();
    explicit CInvalidArgException(BOOL bAutoDelete);
    CInvalidArgException(BOOL bAutoDelete, UINT nResourceID);
};

[[noreturn]] AFX_LIB void AFXAPI AfxThrowMemoryException();
[[noreturn]] AFX_LIB void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] AFX_LIB void AFXAPI AfxThrowResourceException();
[[noreturn]] AFX_LIB void AFXAPI AfxThrowUserException();
[[noreturn]] AFX_LIB void AFXAPI AfxThrowInvalidArgException();

/** Holds the exception that a CATCH block handles and ends it when the TRY block is left. */
class AFX_EXCEPTION_LINK
{
  public:
    CException* m_pException = nullptr;

    AFX_EXCEPTION_LINK() = default;
    AFX_EXCEPTION_LINK(const AFX_EXCEPTION_LINK&) = delete;
    AFX_EXCEPTION_LINK& operator=(const AFX_EXCEPTION_LINK&) = delete;
    ~AFX_EXCEPTION_LINK()
    {
        if (m_pException) {
            m_pException->Delete();
        }
    }
    /** Gives the exception away, because it is thrown on. */
    void Release() { m_pException = nullptr; }
};

#define TRY                                                                                                            \
    {                                                                                                                  \
        AFX_EXCEPTION_LINK _afxExceptionLink;                                                                          \
        try {
#define CATCH(class_name, e)                                                                                           \
    }                                                                                                                  \
    catch (class_name * e)                                                                                             \
    {                                                                                                                  \
        _afxExceptionLink.m_pException = e;
#define AND_CATCH(class_name, e)                                                                                       \
    }                                                                                                                  \
    catch (class_name * e)                                                                                             \
    {                                                                                                                  \
        _afxExceptionLink.m_pException = e;
#define END_CATCH                                                                                                      \
    }                                                                                                                  \
    }
#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) AND_CATCH(CException, e)
#define END_CATCH_ALL END_CATCH
#define END_TRY                                                                                                        \
    CATCH(CException, e)                                                                                               \
    UNREFERENCED_PARAMETER(e);                                                                                         \
    END_CATCH
#define THROW(e) throw e
#define THROW_LAST()                                                                                                   \
    do {                                                                                                               \
        _afxExceptionLink.Release();                                                                                   \
        throw;                                                                                                         \
    } while (0)

/** Checks a condition in every build: asserts, and raises the exception when it does not hold. */
#define ENSURE_THROW(cond, exception)                                                                                  \
    do {                                                                                                               \
        const bool _afxCondition = !!(cond);                                                                           \
        ASSERT(_afxCondition);                                                                                         \
        if (!_afxCondition) {                                                                                          \
            exception;                                                                                                 \
        }                                                                                                              \
    } while (0)
#define ENSURE(cond) ENSURE_THROW(cond, ::AfxThrowInvalidArgException())
#define ENSURE_ARG(cond) ENSURE_THROW(cond, ::AfxThrowInvalidArgException())
#define ENSURE_VALID_THROW(pOb, exception)                                                                             \
    do {                                                                                                               \
        if (!(pOb)) {                                                                                                  \
            exception;                                                                                                 \
        }                                                                                                              \
        ASSERT_VALID(pOb);                                                                                             \
    } while (0)
#define ENSURE_VALID(pOb) ENSURE_VALID_THROW(pOb, ::AfxThrowInvalidArgException())
