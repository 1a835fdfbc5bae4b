#include "QorPub.h"

#include <algorithm>
#include <new>

namespace
{

class ReadOnlyMemStream final : public IStream
{
  public:
    ReadOnlyMemStream(const BYTE* data, DWORD size, ULONGLONG pos) : m_data(data), m_size(size), m_pos(pos) {}

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&m_refs)); }
    STDMETHODIMP_(ULONG) Release() override;

    STDMETHODIMP Read(void* buffer, ULONG size, ULONG* read) override;
    STDMETHODIMP Write(const void*, ULONG, ULONG*) override { return STG_E_ACCESSDENIED; }
    STDMETHODIMP Seek(LARGE_INTEGER move, DWORD origin, ULARGE_INTEGER* pos) override;
    STDMETHODIMP SetSize(ULARGE_INTEGER) override { return STG_E_ACCESSDENIED; }
    STDMETHODIMP CopyTo(IStream* to, ULARGE_INTEGER size, ULARGE_INTEGER* read, ULARGE_INTEGER* written) override;
    STDMETHODIMP Commit(DWORD) override { return S_OK; }
    STDMETHODIMP Revert() override { return S_OK; }
    STDMETHODIMP LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return STG_E_INVALIDFUNCTION; }
    STDMETHODIMP UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return STG_E_INVALIDFUNCTION; }
    STDMETHODIMP Stat(STATSTG* stat, DWORD flags) override;
    STDMETHODIMP Clone(IStream** clone) override;

  private:
    ~ReadOnlyMemStream() = default;
    ULONG Rest() const { return m_pos < m_size ? static_cast<ULONG>(m_size - m_pos) : 0; }

    const BYTE* m_data;
    DWORD m_size;
    ULONGLONG m_pos;
    LONG m_refs = 1;
};

HRESULT ReadOnlyMemStream::QueryInterface(REFIID iid, void** object)
{
    if (!object) {
        return E_POINTER;
    }
    bool known = iid == IID_IUnknown || iid == IID_ISequentialStream || iid == IID_IStream;
    *object = known ? static_cast<IStream*>(this) : nullptr;
    if (!known) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

ULONG ReadOnlyMemStream::Release()
{
    LONG refs = InterlockedDecrement(&m_refs);
    if (refs == 0) {
        delete this;
    }
    return static_cast<ULONG>(refs);
}

HRESULT ReadOnlyMemStream::Read(void* buffer, ULONG size, ULONG* read)
{
    if (!buffer) {
        return STG_E_INVALIDPOINTER;
    }
    ULONG count = (std::min)(size, Rest());
    if (count != 0) {
        memcpy(buffer, m_data + m_pos, count);
    }
    m_pos += count;
    if (read) {
        *read = count;
    }
    return S_OK;
}

HRESULT ReadOnlyMemStream::Seek(LARGE_INTEGER move, DWORD origin, ULARGE_INTEGER* pos)
{
    if (origin > STREAM_SEEK_END) {
        return STG_E_INVALIDFUNCTION;
    }
    ULONGLONG base = origin == STREAM_SEEK_SET ? 0 : origin == STREAM_SEEK_CUR ? m_pos : m_size;
    auto target = static_cast<LONGLONG>(base + static_cast<ULONGLONG>(move.QuadPart));
    if (target < 0) {
        return STG_E_INVALIDFUNCTION;
    }
    m_pos = static_cast<ULONGLONG>(target);
    if (pos) {
        pos->QuadPart = m_pos;
    }
    return S_OK;
}

HRESULT ReadOnlyMemStream::CopyTo(IStream* to, ULARGE_INTEGER size, ULARGE_INTEGER* read, ULARGE_INTEGER* written)
{
    if (!to) {
        return STG_E_INVALIDPOINTER;
    }
    auto count = static_cast<ULONG>((std::min)(size.QuadPart, static_cast<ULONGLONG>(Rest())));
    ULONG done = 0;
    HRESULT result = count != 0 ? to->Write(m_data + m_pos, count, &done) : S_OK;
    m_pos += count;
    if (read) {
        read->QuadPart = count;
    }
    if (written) {
        written->QuadPart = done;
    }
    return result;
}

HRESULT ReadOnlyMemStream::Stat(STATSTG* stat, DWORD)
{
    if (!stat) {
        return STG_E_INVALIDPOINTER;
    }
    *stat = {};
    stat->type = STGTY_STREAM;
    stat->cbSize.QuadPart = m_size;
    stat->grfMode = STGM_READ;
    return S_OK;
}

HRESULT ReadOnlyMemStream::Clone(IStream** clone)
{
    if (!clone) {
        return STG_E_INVALIDPOINTER;
    }
    *clone = new (std::nothrow) ReadOnlyMemStream(m_data, m_size, m_pos);
    return *clone ? S_OK : STG_E_INSUFFICIENTMEMORY;
}

} // namespace

const void* QorLoadResource(HINSTANCE inst, LPCWSTR name, LPCWSTR type, DWORD& size)
{
    size = 0;
    HRSRC found = name && type ? FindResourceW(inst, name, type) : nullptr;
    HGLOBAL loaded = found ? LoadResource(inst, found) : nullptr;
    const void* data = loaded ? LockResource(loaded) : nullptr;
    if (data) {
        size = SizeofResource(inst, found);
    }
    return data;
}

IStream* QorCreateReadOnlyMemStream(DWORD, const void* data, DWORD size)
{
    if (!data) {
        return nullptr;
    }
    return new (std::nothrow) ReadOnlyMemStream(static_cast<const BYTE*>(data), size, 0);
}
