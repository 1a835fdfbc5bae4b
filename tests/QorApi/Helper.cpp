#include <common/Owner.h>
#include <QorApi/QorApi.h>

#include <cstdlib>
#include <string>

namespace
{

constexpr int kListSize = 200;

int AddSnapshots(int count, LPCWSTR name)
{
    for (int i = 0; i < count; ++i) {
        _QORVEX_SNAP snapshot = {};
        wcsncpy(snapshot.szName, name, std::size(snapshot.szName) - 1);
        if (const DWORD status = QorAddSnapshot(snapshot); status != ERROR_SUCCESS) {
            return static_cast<int>(status);
        }
    }
    return ERROR_SUCCESS;
}

// Writes the list again and again, each time with other texts that are all the same, until the process is ended.
int WriteWithoutEnd(LPCWSTR startedFile)
{
    for (int round = 0;; ++round) {
        CString text;
        text.Format(L"round %d", round);
        CStringArray texts;
        for (int i = 0; i < kListSize; ++i) {
            texts.Add(text);
        }
        if (const DWORD status = QorSetMultiString(QORINFO_SYNC_REG, texts, 1); status != ERROR_SUCCESS) {
            return static_cast<int>(status);
        }
        if (round == 0) {
            own::File(CreateFileW(startedFile, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        }
    }
}

// Replaces an account by another one of the same number.
int RenewUser(WORD number)
{
    _QORVEX_USER user = {};
    user.wNumber = number;
    user.wFieldMask = QORUSER_NEW;
    user.dwRights = QORRIGHT_ALL;
    wcscpy(user.szName, L"Renewed");
    const DWORD status = QorDeleteUser(number);
    return static_cast<int>(status == ERROR_SUCCESS ? QorAddUser(user, nullptr) : status);
}

int FailToLogOn(int count, LPCWSTR name)
{
    for (int i = 0; i < count; ++i) {
        const DWORD status = QorLogonUser(name, L"certainly wrong");
        if (status != ERROR_LOGON_FAILURE) {
            return static_cast<int>(status == ERROR_SUCCESS ? static_cast<DWORD>(ERROR_INVALID_DATA) : status);
        }
    }
    return ERROR_SUCCESS;
}

} // namespace

/** Arguments: rights | snapshots <count> <name> | write <file made after the first write> |
 *  renew <user number> | fail <count> <user name>. Status of the store's calls. */
int wmain(int argc, wchar_t** argv)
{
    const std::wstring command = argc > 1 ? argv[1] : L"";
    if (command == L"rights") {
        return QorHasUserRight(0) ? 1 : 0;
    }
    DWORD status = QorOpen();
    if (status == ERROR_SUCCESS) {
        status = QorLogonUser(QORUSER_BUILTIN_NAME, nullptr);
    }
    if (status != ERROR_SUCCESS) {
        return static_cast<int>(status);
    }
    int result = ERROR_INVALID_PARAMETER;
    if (command == L"snapshots" && argc == 4) {
        result = AddSnapshots(_wtoi(argv[2]), argv[3]);
    } else if (command == L"renew" && argc == 3) {
        result = RenewUser(static_cast<WORD>(_wtoi(argv[2])));
    } else if (command == L"fail" && argc == 4) {
        result = FailToLogOn(_wtoi(argv[2]), argv[3]);
    } else if (command == L"write" && argc == 3) {
        result = WriteWithoutEnd(argv[2]);
    }
    QorClose();
    return result;
}
