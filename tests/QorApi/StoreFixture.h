#pragma once

#include <common/Owner.h>
#include <QorApi/QorApi.h>
#include <tests/support/Status.h>
#include <tests/support/Support.h>

#include <gtest/gtest.h>

#include <vector>

/** A test with a fresh store of its own, nobody logged on, and log-on delays that are noted and not waited for. */
class StoreTest : public testing::Test
{
  protected:
    StoreTest();
    ~StoreTest() override;

    std::wstring StorePath() const { return m_folder.File(L"store.db"); }
    std::wstring File(std::wstring_view name) const { return m_folder.File(name); }

    /** Logs on as the built-in account, which has no password yet. */
    static void LogonBuiltin();

    /** Adds an account as the built-in one and logs it on. @return its number. */
    static WORD LogonAs(LPCWSTR name, DWORD rights);

    /** A record for QorAddUser(). */
    static _QORVEX_USER NewUser(LPCWSTR name, DWORD rights = 0);

    /** Delays that log-ons asked for, in milliseconds. */
    static std::vector<DWORD>& Delays();

  private:
    ts::TempFolder m_folder;
    ts::EnvironmentVariable m_store;
};

/** All records of one kind. */
template <class Record>
std::vector<Record> ListAll(UINT kind)
{
    int count = 0;
    const own::TaskMemory memory(QorGetAllInfo(kind, sizeof(Record), &count, 0));
    const auto* records = static_cast<const Record*>(memory.Get());
    return std::vector<Record>(records, records + count);
}

/** Command line of the helper program. */
std::wstring HelperCommand(const std::wstring& arguments);

/** Copies a text into a record's field. */
template <size_t count>
void SetField(WCHAR (&field)[count], LPCWSTR text)
{
    wcsncpy(field, text, count);
}
