#include "private.h"

#include <new>
#include <unordered_map>
#include <utility>
#include <vector>

/* Blocks made while the tracking is on are entered in a table beside the heap and get guard bytes behind them. Blocks
 * made while it is off cost nothing, so that the same library serves both. */
namespace
{
struct TrackedBlock
{
    size_t nBytes;
    LONG lRequestNumber;
    bool bObject;
    LPCSTR lpszFileName;
    int nLine;
};

constexpr BYTE kGuardByte = 0xFD;
constexpr size_t kGuardSize = 16;

SRWLOCK g_lockHeap = SRWLOCK_INIT;
LONG g_lRequestNumber = 0;
volatile LONG g_nTracked = 0;
#ifdef _DEBUG
volatile LONG g_bTrack = TRUE;
#else
volatile LONG g_bTrack = FALSE;
#endif

/** Made at first use and never destroyed before the last string of any static object. */
struct BlockTable
{
    std::unordered_map<const void*, TrackedBlock> blocks;
};
BlockTable* g_pTable = nullptr;

bool g_bOmitReport = false;

void ReportLeftBlocks();

struct TableEnd
{
    ~TableEnd()
    {
        if (g_bTrack && !g_bOmitReport) {
            ReportLeftBlocks();
        }
        ExclusiveLock lock(g_lockHeap);
        g_bTrack = FALSE;
        g_nTracked = 0;
        delete std::exchange(g_pTable, nullptr);
    }
};
TableEnd g_tableEnd __attribute__((init_priority(101)));

bool IsGuardIntact(const void* p, size_t nBytes)
{
    const BYTE* const pGuard = static_cast<const BYTE*>(p) + nBytes;
    for (size_t i = 0; i < kGuardSize; ++i) {
        if (pGuard[i] != kGuardByte) {
            return false;
        }
    }
    return true;
}

/** The copy lets reports, which allocate strings themselves, run without the lock. */
std::vector<std::pair<const void*, TrackedBlock>> CopyBlocks()
{
    ExclusiveLock lock(g_lockHeap);
    if (!g_pTable) {
        return {};
    }
    return {g_pTable->blocks.begin(), g_pTable->blocks.end()};
}

void ReportLeftBlocks()
{
    const CMemoryState none;
    CMemoryState left;
    left.Checkpoint();
    if (left.m_lCounts[CMemoryState::objectBlock] == 0 && left.m_lCounts[CMemoryState::bitBlock] == 0) {
        return;
    }
    AfxTrace(L"blocks are left when the framework ends:\n");
    left.DumpStatistics();
    none.DumpAllObjectsSince();
}

bool Enter(const void* p, const TrackedBlock& block)
{
    ExclusiveLock lock(g_lockHeap);
    try {
        if (!g_pTable) {
            g_pTable = new BlockTable;
        }
        TrackedBlock& entry = g_pTable->blocks[p] = block;
        entry.lRequestNumber = ++g_lRequestNumber;
    } catch (const std::bad_alloc&) {
        return false;
    }
    InterlockedIncrement(&g_nTracked);
    return true;
}
} // namespace

void* AfxAllocTracked(size_t nBytes, bool bObject, LPCSTR lpszFileName, int nLine) noexcept
{
    const bool bTrack = g_bTrack != FALSE;
    if (nBytes > static_cast<size_t>(PTRDIFF_MAX) - kGuardSize) {
        return nullptr;
    }
    void* const p = malloc(nBytes + (bTrack ? kGuardSize : 0));
    if (p && bTrack) {
        memset(static_cast<BYTE*>(p) + nBytes, kGuardByte, kGuardSize);
        Enter(p, {nBytes, 0, bObject, lpszFileName, nLine});
    }
    return p;
}

void AfxFreeTracked(void* p) noexcept
{
    if (p && g_nTracked > 0) {
        ExclusiveLock lock(g_lockHeap);
        if (g_pTable && g_pTable->blocks.erase(p)) {
            InterlockedDecrement(&g_nTracked);
        }
    }
    free(p);
}

BOOL AFXAPI AfxEnableMemoryTracking(BOOL bTrack)
{
    return InterlockedExchange(&g_bTrack, bTrack ? TRUE : FALSE);
}

bool AfxIsMemoryTracked()
{
    return g_bTrack != FALSE;
}

void AfxOmitBlockReport()
{
    g_bOmitReport = true;
}

BOOL AFXAPI AfxCheckMemory()
{
    std::vector<std::pair<const void*, TrackedBlock>> damaged;
    {
        ExclusiveLock lock(g_lockHeap);
        if (g_pTable) {
            for (const auto& entry : g_pTable->blocks) {
                if (!IsGuardIntact(entry.first, entry.second.nBytes)) {
                    damaged.push_back(entry);
                }
            }
        }
    }
    for (const auto& [p, block] : damaged) {
        AfxTrace(L"memory damaged after block %ld at $%p, %u bytes long\n", block.lRequestNumber, p,
                 static_cast<UINT>(block.nBytes));
    }
    return damaged.empty();
}

BOOL AFXAPI AfxIsMemoryBlock(const void* p, UINT nBytes, LONG* plRequestNumber)
{
    ExclusiveLock lock(g_lockHeap);
    if (!g_pTable) {
        return FALSE;
    }
    const auto it = g_pTable->blocks.find(p);
    if (it == g_pTable->blocks.end() || it->second.nBytes != nBytes) {
        return FALSE;
    }
    if (plRequestNumber) {
        *plRequestNumber = it->second.lRequestNumber;
    }
    return TRUE;
}

void CMemoryState::Checkpoint()
{
    *this = CMemoryState();
    ExclusiveLock lock(g_lockHeap);
    m_lRequestNumber = g_lRequestNumber;
    if (!g_pTable) {
        return;
    }
    for (const auto& [p, block] : g_pTable->blocks) {
        const BlockUsage use = block.bObject ? objectBlock : bitBlock;
        ++m_lCounts[use];
        m_lSizes[use] += block.nBytes;
    }
}

BOOL CMemoryState::Difference(const CMemoryState& oldState, const CMemoryState& newState)
{
    BOOL bDifferent = FALSE;
    for (int use = 0; use < nBlockUseMax; ++use) {
        m_lCounts[use] = newState.m_lCounts[use] - oldState.m_lCounts[use];
        m_lSizes[use] = newState.m_lSizes[use] - oldState.m_lSizes[use];
        if (m_lCounts[use] != 0 || m_lSizes[use] != 0) {
            bDifferent = TRUE;
        }
    }
    m_lRequestNumber = newState.m_lRequestNumber - oldState.m_lRequestNumber;
    return bDifferent;
}

void CMemoryState::DumpStatistics() const
{
    AfxTrace(L"%I64d bytes in %I64d objects, %I64d bytes in %I64d other blocks\n",
             static_cast<LONGLONG>(m_lSizes[objectBlock]), static_cast<LONGLONG>(m_lCounts[objectBlock]),
             static_cast<LONGLONG>(m_lSizes[bitBlock]), static_cast<LONGLONG>(m_lCounts[bitBlock]));
}

void CMemoryState::DumpAllObjectsSince() const
{
    for (const auto& [p, block] : CopyBlocks()) {
        if (block.bObject && block.lRequestNumber > m_lRequestNumber) {
            AfxTrace(L"%hs(%d): {%ld} object at $%p, %u bytes long\n", block.lpszFileName ? block.lpszFileName : "",
                     block.nLine, block.lRequestNumber, p, static_cast<UINT>(block.nBytes));
        }
    }
}

void* AFX_CDECL operator new(std::size_t nSize, LPCSTR, int)
{
    return ::operator new(nSize);
}

void* AFX_CDECL operator new[](std::size_t nSize, LPCSTR, int)
{
    return ::operator new[](nSize);
}

void AFX_CDECL operator delete(void* p, LPCSTR, int) noexcept
{
    ::operator delete(p);
}

void AFX_CDECL operator delete[](void* p, LPCSTR, int) noexcept
{
    ::operator delete[](p);
}
