#pragma once

#include <common/Owner.h>
#include <QorApi/QorApi.h>
#include <tests/support/Support.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

/** Runs the console with a store of its own. */
class Console : public testing::Test
{
  protected:
    ts::ProcessResult Run(const std::wstring& arguments, DWORD limit = 120000)
    {
        const ts::EnvironmentVariable store(L"QOR_STORE", m_folder.File(L"store.db").c_str());
        return ts::RunProcess(L"\"" + ts::ProgramFolder() + L"\\QorConsole.exe\" " + arguments, limit);
    }

    std::set<std::wstring> Pictures()
    {
        std::set<std::wstring> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.File(L"shots"))) {
            EXPECT_GT(entry.file_size(), 500u) << entry.path();
            names.insert(entry.path().filename().wstring());
        }
        return names;
    }

    /** How many snapshots the console's store has now. */
    int SnapshotCount()
    {
        const ts::EnvironmentVariable store(L"QOR_STORE", m_folder.File(L"store.db").c_str());
        int count = 0;
        const own::TaskMemory list(QorGetAllInfo(QORLIST_SNAPSHOTS, sizeof(_QORVEX_SNAP), &count, 0));
        return count;
    }

    ts::TempFolder m_folder;
};
