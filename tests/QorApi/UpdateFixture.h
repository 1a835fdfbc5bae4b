#pragma once

#include "StoreFixture.h"

class UpdateTest : public StoreTest
{
  protected:
    /** Sets the source to a file with this content. */
    void Offer(const std::string& content)
    {
        ts::WriteBytes(File(L"update.xml"), content);
        SetSource(File(L"update.xml"));
    }

    static void SetSource(const std::wstring& source)
    {
        LogonBuiltin();
        ASSERT_EQ(QorSetInfo(QORINFO_UPDATE_SOURCE, source.c_str(), static_cast<int>(source.size() + 1) * 2), kSuccess);
    }

    static std::wstring Found()
    {
        WCHAR text[100] = {};
        EXPECT_EQ(QorGetInfo(QORINFO_UPDATE_VERSION, text, sizeof(text)), kSuccess);
        return text;
    }
};
