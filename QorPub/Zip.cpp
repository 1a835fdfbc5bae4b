#include "Guard.h"
#include "QorPub.h"
#include "ZipJob.h"

#include <process.h>

/** A packer with its thread. */
struct CQorZip::Job
{
    Job(HWND notify, DWORD flags) : packer(notify, flags) {}
    ~Job()
    {
        packer.Cancel();
        packer.Silence();
        Wait(INFINITE);
    }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    bool StartThread()
    {
        auto handle = _beginthreadex(nullptr, 0, ThreadMain, this, 0, nullptr);
        thread.Reset(reinterpret_cast<HANDLE>(handle));
        return static_cast<bool>(thread);
    }

    bool Wait(DWORD timeout);

    static unsigned __stdcall ThreadMain(void* job)
    {
        static_cast<Job*>(job)->packer.Run();
        return 0;
    }

    qor::ZipPacker packer;
    own::KernelObject thread;
};

bool CQorZip::Job::Wait(DWORD timeout)
{
    ULONGLONG start = GetTickCount64();
    while (thread) {
        // Inside the window's own handling of a report the thread would wait for us, and we for it.
        if (packer.IsReporting() && InSendMessage()) {
            ReplyMessage(0);
        }
        ULONGLONG passed = GetTickCount64() - start;
        DWORD rest = timeout == INFINITE ? INFINITE : static_cast<DWORD>(passed < timeout ? timeout - passed : 0);
        HANDLE handle = thread.Get();
        DWORD what = MsgWaitForMultipleObjectsEx(1, &handle, rest, QS_SENDMESSAGE, MWMO_INPUTAVAILABLE);
        if (what != WAIT_OBJECT_0 + 1) {
            return what == WAIT_OBJECT_0;
        }
        MSG message;
        PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
    return true;
}

CQorZip::CQorZip() = default;

CQorZip::~CQorZip() = default;

LONG CQorZip::Start(HWND notify, LPCWSTR source, LPCWSTR archive, DWORD flags)
{
    if (!source || *source == 0 || !archive || *archive == 0) {
        return E_INVALIDARG;
    }
    if (notify && !IsWindow(notify)) {
        return HRESULT_FROM_WIN32(ERROR_INVALID_WINDOW_HANDLE);
    }
    if (IsRunning()) {
        return HRESULT_FROM_WIN32(ERROR_BUSY);
    }
    DWORD status = qor::GuardMemory([&] {
        auto job = std::make_unique<Job>(notify, flags);
        DWORD opened = job->packer.Open(source, archive);
        if (opened == ERROR_SUCCESS && !job->StartThread()) {
            opened = ERROR_NOT_ENOUGH_MEMORY;
        }
        if (opened == ERROR_SUCCESS) {
            m_job = std::move(job);
        }
        return opened;
    });
    return HRESULT_FROM_WIN32(status);
}

void CQorZip::Cancel()
{
    if (m_job) {
        m_job->packer.Cancel();
    }
}

BOOL CQorZip::IsRunning() const
{
    return m_job && !m_job->packer.IsFinished();
}

BOOL CQorZip::Wait(DWORD timeout)
{
    return !m_job || m_job->Wait(timeout);
}

LONG CQorZip::GetResult() const
{
    return m_job && m_job->packer.IsFinished() ? m_job->packer.Result() : 0;
}
