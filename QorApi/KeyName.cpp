#include "KeyName.h"

#include <algorithm>
#include <cwchar>
#include <string>
#include <vector>

namespace
{

constexpr size_t kMaxKeyName = 255;
constexpr size_t kMaxValueName = 16383;

/** A root as entries may name it, and what stands for it in the list. */
struct Root
{
    LPCWSTR name;
    LPCWSTR stored;
    size_t minDepth; ///< least number of names that an entry must have below the root
};

constexpr LPCWSTR kClasses = L"HKLM\\SOFTWARE\\Classes\\";

constexpr Root kRoots[] = {
    {L"HKCU", L"HKCU\\", 1}, {L"HKEY_CURRENT_USER", L"HKCU\\", 1},
    {L"HKLM", L"HKLM\\", 2}, {L"HKEY_LOCAL_MACHINE", L"HKLM\\", 2},
    {L"HKU", L"HKU\\", 2},   {L"HKEY_USERS", L"HKU\\", 2},
    {L"HKCC", L"HKCC\\", 1}, {L"HKEY_CURRENT_CONFIG", L"HKCC\\", 1},
    {L"HKCR", kClasses, 1},  {L"HKEY_CLASSES_ROOT", kClasses, 1},
};

const Root* FindRoot(const std::wstring& name)
{
    for (const Root& root : kRoots) {
        if (_wcsicmp(root.name, name.c_str()) == 0) {
            return &root;
        }
    }
    return nullptr;
}

std::vector<std::wstring> SplitNames(const std::wstring& path)
{
    std::vector<std::wstring> names;
    size_t start = 0;
    while (start < path.size()) {
        const size_t end = (std::min)(path.find(L'\\', start), path.size());
        if (end > start) {
            names.push_back(path.substr(start, end - start));
        }
        start = end + 1;
    }
    return names;
}

bool AreNamesValid(const std::vector<std::wstring>& names, bool isKey)
{
    for (size_t i = 0; i < names.size(); ++i) {
        const bool isValue = !isKey && i + 1 == names.size();
        if (names[i].size() > (isValue ? kMaxValueName : kMaxKeyName)) {
            return false;
        }
    }
    return true;
}

} // namespace

DWORD QorConvertKeyName(CString& entry)
{
    const std::wstring text(entry.GetString(), entry.GetLength());
    if (text.find(L'\0') != std::wstring::npos) {
        return ERROR_INVALID_NAME;
    }
    const size_t slash = text.find(L'\\');
    const Root* root = slash == std::wstring::npos ? nullptr : FindRoot(text.substr(0, slash));
    if (!root) {
        return ERROR_INVALID_PARAMETER;
    }
    const bool isKey = text.back() == L'\\';
    const std::vector<std::wstring> names = SplitNames(text.substr(slash));
    if (names.size() < root->minDepth) {
        return ERROR_NOT_SUPPORTED;
    }
    if (!AreNamesValid(names, isKey)) {
        return ERROR_INVALID_NAME;
    }
    std::wstring result = root->stored;
    for (const std::wstring& name : names) {
        result += name + L"\\";
    }
    if (!isKey) {
        result.pop_back();
    }
    entry = result.c_str();
    return ERROR_SUCCESS;
}
