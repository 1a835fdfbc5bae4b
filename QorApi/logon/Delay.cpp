#include "Delay.h"

#include <QorApi/logon/Logon.h>

#include <algorithm>
#include <atomic>

namespace
{

constexpr int kFreeFailures = 5;
constexpr DWORD kFirstDelay = 2000; // ms
constexpr int kDoublings = 4;

std::atomic<QORWAITPROC> g_wait = nullptr;

void Wait(DWORD milliseconds)
{
    if (const QORWAITPROC wait = g_wait) {
        wait(milliseconds);
    } else {
        Sleep(milliseconds);
    }
}

} // namespace

void DelayAnswer(int failures)
{
    if (failures >= kFreeFailures) {
        Wait(kFirstDelay << (std::min)(failures - kFreeFailures, kDoublings));
    }
}

QORWAITPROC QorSetLogonWait(QORWAITPROC wait)
{
    return g_wait.exchange(wait);
}
