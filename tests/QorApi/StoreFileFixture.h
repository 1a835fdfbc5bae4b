#pragma once

#include "StoreFixture.h"

#include <tests/support/MemoryShortage.h>

#include <sqlite3.h>

#include <atomic>
#include <thread>

constexpr DWORD kCorrupt = ERROR_FILE_CORRUPT;

/** A connection to the file beside the library. */
class RawDatabase
{
  public:
    explicit RawDatabase(const std::wstring& path) { sqlite3_open(ts::ToUtf8(path).c_str(), &m_db); }
    ~RawDatabase() { sqlite3_close(m_db); }
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;

    void Run(const char* sql) { EXPECT_EQ(sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sql; }

    std::string Query(const char* sql)
    {
        std::string result;
        const auto note = [](void* text, int, char** values, char**) {
            *static_cast<std::string*>(text) = values[0] ? values[0] : "";
            return 0;
        };
        EXPECT_EQ(sqlite3_exec(m_db, sql, note, &result, nullptr), SQLITE_OK) << sql;
        return result;
    }

  private:
    sqlite3* m_db = nullptr;
};

/** Keeps other threads from loading, looking up and leaving modules. */
class LoaderLock
{
  public:
    LoaderLock() { Call<LONG(NTAPI*)(ULONG, ULONG*, ULONG_PTR*)>("LdrLockLoaderLock")(0, nullptr, &m_cookie); }
    ~LoaderLock() { Call<LONG(NTAPI*)(ULONG, ULONG_PTR)>("LdrUnlockLoaderLock")(0, m_cookie); }
    LoaderLock(const LoaderLock&) = delete;
    LoaderLock& operator=(const LoaderLock&) = delete;

  private:
    template <class Function>
    static Function Call(const char* name)
    {
        return reinterpret_cast<Function>(
            reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name)));
    }

    ULONG_PTR m_cookie = 0;
};

class StoreFileTest : public StoreTest
{
  protected:
    /** Makes a store with something in it. */
    static void MakeStore()
    {
        ASSERT_EQ(QorOpen(), kSuccess);
        LogonBuiltin();
        ASSERT_EQ(QorFillDemoStore(), kSuccess);
        QorClose();
    }

    /** Expects the code from QorOpen() and from calls of every kind, and that the file stays as it is. */
    void ExpectRefused(DWORD code) const
    {
        const std::string before = ts::ReadBytes(StorePath());
        ExpectEveryCall(code);
        EXPECT_TRUE(ts::ReadBytes(StorePath()) == before) << "the file was changed";
    }

    static void ExpectEveryCall(DWORD code)
    {
        EXPECT_EQ(QorOpen(), code);
        ExpectUserCalls(code);
        ExpectOtherCalls(code);
    }

    static void ExpectUserCalls(DWORD code)
    {
        _QORVEX_USER user = NewUser(L"a");
        EXPECT_EQ(QorAddUser(user, nullptr), code);
        user.wNumber = 0;
        EXPECT_EQ(QorGetUserInfo(user), code);
        EXPECT_EQ(QorSetUserInfo(user, nullptr), code);
        EXPECT_EQ(QorDeleteUser(1), code);
        EXPECT_EQ(QorGetLogonUser(user), code);
        EXPECT_EQ(QorLogonUser(L"Administrator", nullptr), code);
        EXPECT_FALSE(QorHasUserRight(0));
        CString name;
        EXPECT_FALSE(QorGetLastLogonInfo(name));
        EXPECT_EQ(QorSetLastLogonInfo(TRUE, L"a"), code);
    }

    static void ExpectOtherCalls(DWORD code)
    {
        DWORD value = 1;
        EXPECT_EQ(QorGetInfo(QORINFO_UPDATE_CHECK, &value, 4), code);
        EXPECT_EQ(QorSetInfo(QORINFO_UPDATE_CHECK, &value, 4), code);
        CStringArray texts;
        EXPECT_EQ(QorGetMultiString(QORINFO_SYNC_REG, texts), code);
        EXPECT_EQ(QorSetMultiString(QORINFO_SYNC_REG, texts, 1), code);
        EXPECT_EQ(QorGetAllInfo(QORLIST_USERS, 256, nullptr, 0), nullptr);
        EXPECT_EQ(GetLastError(), code);
        EXPECT_EQ(QorDeleteSnapshot(1), code);
        EXPECT_EQ(QorDeleteTask(1), code);
        EXPECT_EQ(QorCheckUpdate(), code);
        EXPECT_EQ(QorFillDemoStore(), code);
    }

    static std::string Integrity(const std::wstring& path) { return RawDatabase(path).Query("PRAGMA integrity_check"); }
};
