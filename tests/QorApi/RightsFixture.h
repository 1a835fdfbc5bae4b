#pragma once

#include "StoreFixture.h"

constexpr DWORD kDenied = ERROR_ACCESS_DENIED;
constexpr DWORD kNobody = ERROR_NOT_LOGGED_ON;

class RightsTest : public StoreTest
{
  protected:
    static _QORVEX_USER Change(WORD number, WORD mask)
    {
        _QORVEX_USER user = NewUser(L"Changed");
        user.wNumber = number;
        user.wFieldMask = mask;
        return user;
    }

    static DWORD Set(WORD number, WORD mask, DWORD rights = 0)
    {
        _QORVEX_USER user = Change(number, mask);
        user.dwRights = rights;
        return QorSetUserInfo(user, nullptr);
    }

    static DWORD Add(LPCWSTR name, DWORD rights)
    {
        _QORVEX_USER user = NewUser(name, rights);
        return QorAddUser(user, nullptr);
    }

    static _QORVEX_SNAP Snapshot()
    {
        _QORVEX_SNAP snapshot = {};
        SetField(snapshot.szName, L"Snapshot");
        return snapshot;
    }

    static _QORVEX_TASK Task(int kind)
    {
        _QORVEX_TASK task = {};
        task.nKind = static_cast<BYTE>(kind << 2);
        task.nSchedule = QORSCHED_DAILY;
        SetField(task.szName, L"Task");
        return task;
    }

    static DWORD AddTask(int kind)
    {
        _QORVEX_TASK task = Task(kind);
        return QorAddTask(task);
    }

    static DWORD SetTask(int kind)
    {
        _QORVEX_TASK task = Task(kind);
        task.wNumber = 0;
        return QorSetTask(task);
    }

    static DWORD SetNumber(UINT id)
    {
        const DWORD value = 1;
        return QorSetInfo(id, &value, sizeof(value));
    }

    static DWORD SetList()
    {
        CStringArray texts;
        texts.Add(L"text");
        return QorSetMultiString(QORINFO_SYNC_REG, texts, 1);
    }

    /** Makes one snapshot and one roll-back task as the built-in account. */
    static void MakeRecords()
    {
        LogonBuiltin();
        _QORVEX_SNAP snapshot = Snapshot();
        ASSERT_EQ(QorAddSnapshot(snapshot), kSuccess);
        ASSERT_EQ(AddTask(QORTASK_ROLLBACK), kSuccess);
    }
};
