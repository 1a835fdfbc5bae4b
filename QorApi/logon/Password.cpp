#include "Password.h"

#include <common/Owner.h>
#include <QorPub/QorPub.h>

#include <bcrypt.h>

namespace
{

constexpr size_t kSaltSize = 16;
constexpr size_t kHashSize = 32;
constexpr int kRounds = 100000;
constexpr int kMaxRounds = 10000000;

/** The functions of the system's cryptography, which is loaded at the first use. */
class Cng
{
  public:
    static const Cng& Get()
    {
        static const Cng kCng;
        return kCng;
    }

    bool IsLoaded() const { return m_open && m_close && m_derive && m_random; }

    DWORD Derive(LPCWSTR password, const std::vector<BYTE>& salt, int rounds, std::vector<BYTE>& key) const
    {
        own::Owner<Algorithm> algorithm;
        if (m_open(algorithm.Receive(), BCRYPT_SHA256_ALGORITHM, nullptr, BCRYPT_ALG_HANDLE_HMAC_FLAG) < 0) {
            return ERROR_NOT_SUPPORTED;
        }
        key.assign(kHashSize, 0);
        CStringA text = WStrToUTF8(password);
        const int length = text.GetLength();
        char* bytes = text.GetBuffer();
        const LONG status =
            m_derive(algorithm.Get(), reinterpret_cast<PUCHAR>(bytes), length, const_cast<PUCHAR>(salt.data()),
                     static_cast<ULONG>(salt.size()), rounds, key.data(), static_cast<ULONG>(key.size()), 0);
        SecureZeroMemory(bytes, length);
        return status < 0 ? ERROR_INTERNAL_ERROR : ERROR_SUCCESS;
    }

    DWORD Random(std::vector<BYTE>& bytes) const
    {
        const LONG status =
            m_random(nullptr, bytes.data(), static_cast<ULONG>(bytes.size()), BCRYPT_USE_SYSTEM_PREFERRED_RNG);
        return status < 0 ? ERROR_INTERNAL_ERROR : ERROR_SUCCESS;
    }

  private:
    struct Algorithm
    {
        using Handle = BCRYPT_ALG_HANDLE;
        static Handle None() { return nullptr; }
        static void Free(Handle algorithm) { Get().m_close(algorithm, 0); }
    };

    Cng()
    {
        const HMODULE module = LoadLibraryExW(L"bcrypt.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        if (!module) {
            return;
        }
        Load(module, "BCryptOpenAlgorithmProvider", m_open);
        Load(module, "BCryptCloseAlgorithmProvider", m_close);
        Load(module, "BCryptDeriveKeyPBKDF2", m_derive);
        Load(module, "BCryptGenRandom", m_random);
    }

    template <class Function>
    static void Load(HMODULE module, const char* name, Function& function)
    {
        function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
    }

    decltype(&BCryptOpenAlgorithmProvider) m_open = nullptr;
    decltype(&BCryptCloseAlgorithmProvider) m_close = nullptr;
    decltype(&BCryptDeriveKeyPBKDF2) m_derive = nullptr;
    decltype(&BCryptGenRandom) m_random = nullptr;
};

bool IsEqual(const std::vector<BYTE>& first, const std::vector<BYTE>& second)
{
    volatile BYTE differences = 0;
    for (size_t i = 0; i < kHashSize; ++i) {
        differences = differences | (first[i] ^ second[i]);
    }
    return differences == 0;
}

} // namespace

DWORD HashPassword(LPCWSTR password, PasswordHash& result)
{
    result = PasswordHash();
    if (!password || !*password) {
        return ERROR_SUCCESS;
    }
    const Cng& cng = Cng::Get();
    if (!cng.IsLoaded()) {
        return ERROR_NOT_SUPPORTED;
    }
    result.salt.resize(kSaltSize);
    result.rounds = kRounds;
    DWORD status = cng.Random(result.salt);
    if (status == ERROR_SUCCESS) {
        status = cng.Derive(password, result.salt, result.rounds, result.hash);
    }
    if (status != ERROR_SUCCESS) {
        result = PasswordHash();
    }
    return status;
}

DWORD CheckPassword(LPCWSTR password, const PasswordHash& kept, bool& equal)
{
    equal = false;
    if (kept.IsEmpty()) {
        equal = !password || !*password;
        return ERROR_SUCCESS;
    }
    if (kept.hash.size() != kHashSize || kept.salt.empty() || kept.rounds < 1 || kept.rounds > kMaxRounds) {
        return ERROR_FILE_CORRUPT;
    }
    const Cng& cng = Cng::Get();
    if (!cng.IsLoaded()) {
        return ERROR_NOT_SUPPORTED;
    }
    std::vector<BYTE> key;
    const DWORD status = cng.Derive(password ? password : L"", kept.salt, kept.rounds, key);
    equal = status == ERROR_SUCCESS && IsEqual(key, kept.hash);
    SecureZeroMemory(key.data(), key.size());
    return status;
}
