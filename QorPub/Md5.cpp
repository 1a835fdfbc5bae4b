#include "QorPub.h"

#include <bcrypt.h>

namespace
{

/** The digest functions of the system's cryptography, with its MD5 algorithm opened. */
struct Cng
{
    decltype(&BCryptOpenAlgorithmProvider) openAlgorithm = nullptr;
    decltype(&BCryptCreateHash) createHash = nullptr;
    decltype(&BCryptHashData) hashData = nullptr;
    decltype(&BCryptFinishHash) finishHash = nullptr;
    decltype(&BCryptDestroyHash) destroyHash = nullptr;
    BCRYPT_ALG_HANDLE md5 = nullptr;

    Cng();

  private:
    template <typename F>
    static bool Find(HMODULE module, const char* name, F& function)
    {
        function = reinterpret_cast<F>(reinterpret_cast<void*>(GetProcAddress(module, name)));
        return function != nullptr;
    }
};

Cng::Cng()
{
    HMODULE module = LoadLibraryW(L"bcrypt.dll");
    if (!module) {
        return;
    }
    bool found = Find(module, "BCryptOpenAlgorithmProvider", openAlgorithm) &&
                 Find(module, "BCryptCreateHash", createHash) && Find(module, "BCryptHashData", hashData) &&
                 Find(module, "BCryptFinishHash", finishHash) && Find(module, "BCryptDestroyHash", destroyHash);
    if (!found || openAlgorithm(&md5, BCRYPT_MD5_ALGORITHM, nullptr, 0) < 0) {
        md5 = nullptr;
    }
}

const Cng& TheCng()
{
    static const Cng kCng;
    return kCng;
}

} // namespace

CQorMd5::CQorMd5() = default;

CQorMd5::~CQorMd5()
{
    Drop();
}

BOOL CQorMd5::Begin()
{
    const Cng& cng = TheCng();
    if (!m_hash && cng.md5 && cng.createHash(cng.md5, &m_hash, nullptr, 0, nullptr, 0, 0) < 0) {
        m_hash = nullptr;
    }
    return m_hash != nullptr;
}

void CQorMd5::Drop()
{
    if (m_hash) {
        TheCng().destroyHash(m_hash);
    }
    m_hash = nullptr;
}

BOOL CQorMd5::Update(const void* data, DWORD size)
{
    if ((!data && size != 0) || !Begin()) {
        return FALSE;
    }
    auto bytes = static_cast<PUCHAR>(const_cast<void*>(data));
    return size == 0 || TheCng().hashData(m_hash, bytes, size, 0) >= 0;
}

BOOL CQorMd5::Final(BYTE* digest)
{
    if (!digest || !Begin()) {
        return FALSE;
    }
    BOOL done = TheCng().finishHash(m_hash, digest, MD5_DIGEST_SIZE, 0) >= 0;
    Drop();
    return done;
}

BOOL CQorMd5::Digest(const void* data, DWORD size, BYTE* digest)
{
    CQorMd5 md5;
    return md5.Update(data, size) && md5.Final(digest);
}

CString CQorMd5::ToHex(const BYTE* digest)
{
    CString hex;
    for (DWORD i = 0; digest && i < MD5_DIGEST_SIZE; ++i) {
        hex.AppendFormat(L"%02x", digest[i]);
    }
    return hex;
}
