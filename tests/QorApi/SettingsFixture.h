#pragma once

#include "StoreFixture.h"

constexpr UINT kOwnId = 500;

class SettingsTest : public StoreTest
{
  protected:
    static DWORD ReadNumber(UINT id)
    {
        DWORD value = 0xCCCCCCCC;
        EXPECT_EQ(QorGetInfo(id, &value, sizeof(value)), kSuccess);
        return value;
    }

    static DWORD WriteNumber(UINT id, DWORD value) { return QorSetInfo(id, &value, sizeof(value)); }

    static DWORD WriteTexts(std::initializer_list<LPCWSTR> texts, int flag, UINT id = QORINFO_SYNC_REG)
    {
        CStringArray array;
        for (LPCWSTR text : texts) {
            array.Add(text);
        }
        return QorSetMultiString(id, array, flag);
    }

    static std::vector<std::wstring> ReadTexts(UINT id = QORINFO_SYNC_REG)
    {
        CStringArray array;
        array.Add(L"old");
        EXPECT_EQ(QorGetMultiString(id, array), kSuccess);
        std::vector<std::wstring> texts;
        texts.reserve(array.GetSize());
        for (int i = 0; i < array.GetSize(); ++i) {
            texts.emplace_back(array.GetAt(i));
        }
        return texts;
    }

    using Texts = std::vector<std::wstring>;
};
