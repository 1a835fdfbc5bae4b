#include "QorApiDouble.h"

#include <map>
#include <mutex>
#include <string>

namespace
{

struct CallState
{
    DWORD status = ERROR_SUCCESS;
    int failures = 0;
    int calls = 0;
};

std::mutex g_lock;

std::map<std::string, CallState>& GetCalls()
{
    static std::map<std::string, CallState> calls;
    return calls;
}

/** Counts a call. @return whether it fails, then with its status. */
bool DoesFail(const char* call, DWORD& status)
{
    const std::lock_guard guard(g_lock);
    CallState& state = GetCalls()[call];
    ++state.calls;
    if (state.failures == 0) {
        return false;
    }
    --state.failures;
    status = state.status;
    return true;
}

CXmlElem* GetEmptyElement()
{
    static CXmlElem element;
    return &element;
}

/** What a failing call answers, by the type of its answer. */
template <class Answer>
Answer Failure(DWORD status)
{
    return static_cast<Answer>(status);
}

template <>
BOOL Failure(DWORD)
{
    return FALSE;
}

template <>
void* Failure(DWORD status)
{
    SetLastError(status);
    return nullptr;
}

template <>
CXmlElem* Failure(DWORD)
{
    return GetEmptyElement();
}

} // namespace

void qordouble::Fail(const char* call, DWORD status, int times)
{
    const std::lock_guard guard(g_lock);
    CallState& state = GetCalls()[call];
    state.status = status;
    state.failures = times;
}

int qordouble::CountCalls(const char* call)
{
    const std::lock_guard guard(g_lock);
    return GetCalls()[call].calls;
}

void qordouble::Reset()
{
    const std::lock_guard guard(g_lock);
    GetCalls().clear();
}

// The library's own functions have the names Real... here.
#define FORWARD(answer, name, parameters, arguments)                                                                   \
    answer Real##name parameters;                                                                                      \
    answer name parameters                                                                                             \
    {                                                                                                                  \
        DWORD status = ERROR_SUCCESS;                                                                                  \
        return DoesFail(#name, status) ? Failure<answer>(status) : Real##name arguments;                               \
    }

FORWARD(CXmlElem*, QorSetDlgLang, (HWND window, LPCWSTR module, LPCWSTR key, int flag), (window, module, key, flag))
FORWARD(CXmlElem*, QorGetModuleLang, (LPCWSTR module, LPCWSTR section), (module, section))
FORWARD(DWORD, QorOpen, (), ())
FORWARD(DWORD, QorCheckUpdate, (), ())
FORWARD(BOOL, QorTime2SysTime, (const _QORTIME& time, SYSTEMTIME& sysTime), (time, sysTime))
FORWARD(BOOL, SysTime2QorTime, (const SYSTEMTIME& sysTime, _QORTIME& time), (sysTime, time))
FORWARD(DWORD, QorGetUserInfo, (_QORVEX_USER & user), (user))
FORWARD(DWORD, QorSetUserInfo, (_QORVEX_USER & user, LPCWSTR password), (user, password))
FORWARD(DWORD, QorAddUser, (_QORVEX_USER & user, LPCWSTR password), (user, password))
FORWARD(DWORD, QorDeleteUser, (WORD number), (number))
FORWARD(BOOL, QorHasUserRight, (DWORD rights), (rights))
FORWARD(DWORD, QorLogonUser, (LPCWSTR name, LPCWSTR password), (name, password))
FORWARD(DWORD, QorGetLogonUser, (_QORVEX_USER & user), (user))
FORWARD(BOOL, QorGetLastLogonInfo, (CString & name), (name))
FORWARD(DWORD, QorSetLastLogonInfo, (BOOL remember, LPCWSTR name), (remember, name))
FORWARD(DWORD, QorAddSnapshot, (_QORVEX_SNAP & snapshot), (snapshot))
FORWARD(DWORD, QorDeleteSnapshot, (WORD number), (number))
FORWARD(DWORD, QorRenameSnapshot, (WORD number, LPCWSTR name), (number, name))
FORWARD(DWORD, QorLockSnapshot, (WORD number, BOOL lock), (number, lock))
FORWARD(DWORD, QorGetTask, (_QORVEX_TASK & task), (task))
FORWARD(DWORD, QorAddTask, (_QORVEX_TASK & task), (task))
FORWARD(DWORD, QorSetTask, (const _QORVEX_TASK& task), (task))
FORWARD(DWORD, QorDeleteTask, (WORD number), (number))
FORWARD(DWORD, QorGetInfo, (UINT id, void* data, int size), (id, data, size))
FORWARD(DWORD, QorSetInfo, (UINT id, const void* data, int size), (id, data, size))
FORWARD(void*, QorGetAllInfo, (UINT kind, int size, int* count, int flags), (kind, size, count, flags))
FORWARD(DWORD, QorGetMultiString, (UINT id, CStringArray& texts), (id, texts))
FORWARD(DWORD, QorSetMultiString, (UINT id, const CStringArray& texts, int flag), (id, texts, flag))
FORWARD(DWORD, QorConvertKeyName, (CString & entry), (entry))
FORWARD(DWORD, QorFillDemoStore, (), ())
FORWARD(BOOL, QorSetLanguage, (LPCWSTR locale), (locale))

#undef FORWARD

// What always succeeds is counted only.
#define COUNTED(answer, name, parameters, arguments)                                                                   \
    answer Real##name parameters;                                                                                      \
    answer name parameters                                                                                             \
    {                                                                                                                  \
        DWORD status = ERROR_SUCCESS;                                                                                  \
        DoesFail(#name, status);                                                                                       \
        return Real##name arguments;                                                                                   \
    }

COUNTED(void, QorClose, (), ())
COUNTED(void, QorLogoff, (), ())
COUNTED(CString, QorFormatMsg, (DWORD code), (code))
COUNTED(CString, QorGetLanguage, (), ())
COUNTED(BOOL, QorIsSameFormat, (LPCWSTR text, LPCWSTR model), (text, model))
COUNTED(QORWAITPROC, QorSetLogonWait, (QORWAITPROC wait), (wait))

#undef COUNTED

LPCWSTR RealQorGetString(LPCWSTR key);

LPCWSTR QorGetString(LPCWSTR key)
{
    DWORD status = ERROR_SUCCESS;
    return DoesFail("QorGetString", status) ? GetEmptyElement()->GetChildData(key, 1) : RealQorGetString(key);
}
