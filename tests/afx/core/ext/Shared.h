#pragma once

#include <afx.h>

#ifdef SHARED_BUILD
#define SHARED_API __declspec(dllexport)
#else
#define SHARED_API __declspec(dllimport)
#endif

class SHARED_API CSharedBase : public CObject
{
    DECLARE_DYNCREATE(CSharedBase)

  public:
    ~CSharedBase() override;
    virtual int Answer() const;
};

/** An exception class of a DLL of one's own. */
class SHARED_API CSharedException : public CException
{
    DECLARE_DYNAMIC(CSharedException)

  public:
    explicit CSharedException(int nCode);
    ~CSharedException() override;
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;

    int m_nCode;
    static int s_nAlive;
};

enum class Thrown
{
    Memory,
    NotSupported,
    Resource,
    User,
    InvalidArg,
    Shared
};

SHARED_API void SharedThrow(Thrown what);
/** Calls back and tells which exception came through the DLL: 0 none, 1 invalid argument, 2 another one. */
SHARED_API int SharedCatch(void (*pfnThrowing)());
SHARED_API CString SharedEcho(const CString& str);
