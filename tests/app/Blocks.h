#pragma once

#include <tests/support/Imports.h>

#include <gtest/gtest.h>

#include <malloc.h>

#include <functional>

/** @file Memory that pictures take, and streams that they do not get. */

/** Blocks in use in the run-time library's heap. */
inline int HeapBlocks()
{
    int blocks = 0;
    _HEAPINFO entry = {};
    while (::_heapwalk(&entry) == _HEAPOK) {
        blocks += entry._useflag == _USEDENTRY;
    }
    return blocks;
}

/** Expects fewer blocks to stay behind than one in each second cycle. */
inline void ExpectNoBlocksLeft(const std::function<void()>& cycle)
{
    constexpr int kCycles = 200;
    cycle();
    const int before = HeapBlocks();
    for (int i = 0; i < kCycles; ++i) {
        cycle();
    }
    EXPECT_LT(HeapBlocks() - before, kCycles / 2);
}

/** The library's blocks of local memory while one lives. */
class LocalBlocks
{
  public:
    LocalBlocks()
    {
        s_asked = s_held = 0;
        s_size = 0;
        s_refuse = false;
    }

    static void Refuse() { s_refuse = true; }
    /** How many the library asked for, and how large the last one was to be. */
    static int Asked() { return s_asked; }
    static SIZE_T Size() { return s_size; }
    /** How many it has not given back. */
    static int Held() { return s_held; }

  private:
    static HLOCAL WINAPI Take(UINT flags, SIZE_T size)
    {
        ++s_asked;
        s_size = size;
        const HLOCAL block = s_refuse ? nullptr : ::LocalAlloc(flags, size);
        s_held += block != nullptr;
        return block;
    }
    static HLOCAL WINAPI GiveBack(HLOCAL block)
    {
        s_held -= block != nullptr;
        return ::LocalFree(block);
    }

    static inline int s_asked, s_held;
    static inline SIZE_T s_size;
    static inline bool s_refuse;
    ts::ReplacedImport m_take{L"QorUI.dll", "LocalAlloc", &Take};
    ts::ReplacedImport m_giveBack{L"QorUI.dll", "LocalFree", &GiveBack};
};

/** The library without streams on memory while one lives. */
class StreamShortage
{
  public:
    StreamShortage() { s_asked = 0; }
    ~StreamShortage() { EXPECT_EQ(1, s_asked); }
    StreamShortage(const StreamShortage&) = delete;
    StreamShortage& operator=(const StreamShortage&) = delete;

  private:
    static IStream* NoStream(DWORD flags, const void*, DWORD)
    {
        EXPECT_EQ(0u, flags);
        ++s_asked;
        return nullptr;
    }

    static inline int s_asked = 0;
    ts::ReplacedImport m_none{L"QorUI.dll", "_Z26QorCreateReadOnlyMemStreammPKvm", &NoStream};
};
