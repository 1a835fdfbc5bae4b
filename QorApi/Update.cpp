#include "Settings.h"
#include "Version.h"

#include <objidl.h>
#include <urlmon.h>

#include <memory>

namespace
{

constexpr ULONG MAX_DESCRIPTION = 1024 * 1024; // bytes
constexpr LPCWSTR PRODUCT_VERSION = QOR_PRODUCT_VERSION;

/** Marks the check as running, for all processes, as long as the object lives. */
class CRunningMark
{
  public:
    CRunningMark() : m_event(CreateEventW(nullptr, TRUE, FALSE, GetUpdateEventName()))
    {
        m_status = m_event ? 0 : GetLastError();
        if (m_event && GetLastError() == ERROR_ALREADY_EXISTS) {
            m_status = ERROR_BUSY;
        }
    }
    ~CRunningMark()
    {
        if (m_event) {
            CloseHandle(m_event);
        }
    }
    CRunningMark(const CRunningMark&) = delete;
    CRunningMark& operator=(const CRunningMark&) = delete;

    DWORD GetStatus() const { return m_status; }

  private:
    HANDLE m_event;
    DWORD m_status;
};

struct ReleaseStream
{
    void operator()(IStream* stream) const { stream->Release(); }
};

struct FreeModule
{
    void operator()(HMODULE module) const { FreeLibrary(module); }
};

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
        if (content.size() > MAX_DESCRIPTION) {
            return ERROR_FILE_TOO_LARGE;
        }
        if (read == 0) {
            return 0;
        }
    }
}

DWORD ReadUrl(const CString& url, std::vector<BYTE>& content)
{
    const std::unique_ptr<std::remove_pointer_t<HMODULE>, FreeModule> module(
        LoadLibraryExW(L"urlmon.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
    if (!module) {
        return GetLastError();
    }
    const auto open = reinterpret_cast<decltype(&URLOpenBlockingStreamW)>(
        reinterpret_cast<void*>(GetProcAddress(module.get(), "URLOpenBlockingStreamW")));
    if (!open) {
        return ERROR_PROC_NOT_FOUND;
    }
    IStream* opened = nullptr;
    const HRESULT result = open(nullptr, url, &opened, 0, nullptr);
    if (FAILED(result)) {
        return result;
    }
    if (!opened) {
        return ERROR_HOST_UNREACHABLE;
    }
    const std::unique_ptr<IStream, ReleaseStream> stream(opened);
    return ReadAll(*stream, content);
}

DWORD LoadDescription(const CString& source, CQorXml& xml)
{
    if (!IsUrl(source)) {
        return xml.Load(source);
    }
    std::vector<BYTE> content;
    const DWORD status = ReadUrl(source, content);
    return status ? status : xml.LoadMemory(content.data(), content.size());
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
    if (!CompareVersions(offered.GetString(), PRODUCT_VERSION, order)) {
        return ERROR_INVALID_DATA;
    }
    newer = order > 0 ? offered : CString();
    return 0;
}

} // namespace

DWORD QorCheckUpdate()
{
    CString source;
    if (const DWORD status = GetInfoText(QORINFO_UPDATE_SOURCE, source)) {
        return status;
    }
    source.Trim();
    if (source.IsEmpty()) {
        return ERROR_HOST_UNREACHABLE;
    }
    const CRunningMark running;
    CQorXml xml;
    CString newer;
    DWORD status = running.GetStatus();
    if (status == 0) {
        status = LoadDescription(source, xml);
    }
    if (status == 0) {
        status = FindNewer(xml, newer);
    }
    if (status != 0) {
        return status;
    }
    return WriteStore([&](CDatabase& db) { return PutInfoText(db, QORINFO_UPDATE_VERSION, newer); });
}
