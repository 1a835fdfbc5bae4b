#include "Update.h"

#include "InfoTable.h"
#include "UpdateMark.h"
#include "Version.h"

#include <objidl.h>
#include <urlmon.h>

namespace
{

constexpr ULONG kMaxDescription = 1024 * 1024; // bytes
constexpr LPCWSTR kProductVersion = QOR_PRODUCT_VERSION;

constexpr int kMaxSource = 4096; // bytes, as any setting

bool IsUrl(const CString& source)
{
    return source.Find(L"://") > 0;
}

DWORD ReadAll(IStream& stream, std::vector<BYTE>& content)
{
    BYTE buffer[4096];
    for (;;) {
        ULONG read = 0;
        const HRESULT result = stream.Read(buffer, sizeof(buffer), &read);
        if (FAILED(result)) {
            return result;
        }
        content.insert(content.end(), buffer, buffer + read);
        if (content.size() > kMaxDescription) {
            return ERROR_FILE_TOO_LARGE;
        }
        if (read == 0) {
            return ERROR_SUCCESS;
        }
    }
}

DWORD ReadUrl(const CString& url, std::vector<BYTE>& content)
{
    const own::Module module(LoadLibraryExW(L"urlmon.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
    if (!module) {
        return GetLastError();
    }
    const auto open = reinterpret_cast<decltype(&URLOpenBlockingStreamW)>(
        reinterpret_cast<void*>(GetProcAddress(module.Get(), "URLOpenBlockingStreamW")));
    if (!open) {
        return ERROR_PROC_NOT_FOUND;
    }
    own::Com<IStream> stream;
    const HRESULT result = open(nullptr, url, stream.Receive(), 0, nullptr);
    if (FAILED(result)) {
        return result;
    }
    return stream ? ReadAll(*stream.Get(), content) : static_cast<DWORD>(ERROR_HOST_UNREACHABLE);
}

DWORD GetSource(CString& source)
{
    WCHAR text[kMaxSource / sizeof(WCHAR)] = {};
    const DWORD status = QorGetInfo(QORINFO_UPDATE_SOURCE, text, sizeof(text));
    text[std::size(text) - 1] = 0;
    source = text;
    source.Trim();
    return status;
}

DWORD LoadDescription(const CString& source, CQorXml& xml)
{
    if (!IsUrl(source)) {
        return xml.Load(source);
    }
    std::vector<BYTE> content;
    const DWORD status = ReadUrl(source, content);
    return status == ERROR_SUCCESS ? xml.LoadMemory(content.data(), content.size()) : status;
}

/** The version that a description offers when it is newer than the product's, else an empty text. */
DWORD FindNewer(const CQorXml& xml, CString& newer)
{
    const CXmlElem* root = xml.GetRoot();
    if (!root || wcscmp(root->GetName(), L"QorUpdate") != 0) {
        return ERROR_INVALID_DATA;
    }
    const CString offered = root->GetAttr(L"Version", L"");
    int order = 0;
    if (!CompareVersions(offered.GetString(), kProductVersion, order)) {
        return ERROR_INVALID_DATA;
    }
    newer = order > 0 ? offered : CString();
    return ERROR_SUCCESS;
}

} // namespace

DWORD QorCheckUpdate()
{
    CString source;
    if (const DWORD status = GetSource(source); status != ERROR_SUCCESS) {
        return status;
    }
    if (source.IsEmpty()) {
        return ERROR_HOST_UNREACHABLE;
    }
    const UpdateMark running;
    CQorXml xml;
    CString newer;
    DWORD status = running.GetStatus();
    if (status == ERROR_SUCCESS) {
        status = LoadDescription(source, xml);
    }
    if (status == ERROR_SUCCESS) {
        status = FindNewer(xml, newer);
    }
    if (status != ERROR_SUCCESS) {
        return status;
    }
    return WriteStore([&](Database& db) {
        return StoreInfo(db, QORINFO_UPDATE_VERSION, newer.GetString(), (newer.GetLength() + 1) * sizeof(WCHAR));
    });
}
