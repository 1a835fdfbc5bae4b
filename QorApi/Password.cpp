#include "Password.h"

#include <QorPub/QorPub.h>

#include <bcrypt.h>

namespace
{

constexpr size_t SALT_SIZE = 16;
constexpr size_t HASH_SIZE = 32;
constexpr int ROUNDS = 100000;
constexpr int MAX_ROUNDS = 10000000;

/** The functions of the system's cryptography, which is loaded at the first use. */
class CCng
{
  public:
    static const CCng& Get()
    {
        static const CCng cng;
        return cng;
    }

    bool IsLoaded() const { return m_open && m_close && m_derive && m_random; }

    DWORD Derive(LPCWSTR password, const std::vector<BYTE>& salt, int rounds, std::vector<BYTE>& key) const
    {
        BCRYPT_ALG_HANDLE algorithm = nullptr;
        LONG status = m_open(&algorithm, BCRYPT_SHA256_ALGORITHM, nullptr, BCRYPT_ALG_HANDLE_HMAC_FLAG);
        if (status < 0) {
            return ERROR_NOT_SUPPORTED;
        }
        CStringA text = WStrToUTF8(password);
        const int length = text.GetLength();
        char* bytes = text.GetBuffer();
        key.assign(HASH_SIZE, 0);
        status = m_derive(algorithm, reinterpret_cast<PUCHAR>(bytes), length, const_cast<PUCHAR>(salt.data()),
                          static_cast<ULONG>(salt.size()), rounds, key.data(), static_cast<ULONG>(key.size()), 0);
        SecureZeroMemory(bytes, length);
        m_close(algorithm, 0);
        return status < 0 ? ERROR_INTERNAL_ERROR : 0;
    }

    DWORD Random(std::vector<BYTE>& bytes) const
    {
        const LONG status =
            m_random(nullptr, bytes.data(), static_cast<ULONG>(bytes.size()), BCRYPT_USE_SYSTEM_PREFERRED_RNG);
        return status < 0 ? ERROR_INTERNAL_ERROR : 0;
    }

  private:
    CCng()
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
    for (size_t i = 0; i < HASH_SIZE; ++i) {
        differences = differences | (first[i] ^ second[i]);
    }
    return differences == 0;
}

} // namespace

DWORD HashPassword(LPCWSTR password, PASSWORDHASH& result)
{
    result = PASSWORDHASH();
    if (!password || !*password) {
        return 0;
    }
    const CCng& cng = CCng::Get();
    if (!cng.IsLoaded()) {
        return ERROR_NOT_SUPPORTED;
    }
    result.salt.resize(SALT_SIZE);
    result.rounds = ROUNDS;
    DWORD status = cng.Random(result.salt);
    if (status == 0) {
        status = cng.Derive(password, result.salt, result.rounds, result.hash);
    }
    if (status != 0) {
        result = PASSWORDHASH();
    }
    return status;
}

DWORD CheckPassword(LPCWSTR password, const PASSWORDHASH& kept, bool& equal)
{
    equal = false;
    if (kept.IsEmpty()) {
        equal = !password || !*password;
        return 0;
    }
    if (kept.hash.size() != HASH_SIZE || kept.salt.empty() || kept.rounds < 1 || kept.rounds > MAX_ROUNDS) {
        return ERROR_FILE_CORRUPT;
    }
    const CCng& cng = CCng::Get();
    if (!cng.IsLoaded()) {
        return ERROR_NOT_SUPPORTED;
    }
    std::vector<BYTE> key;
    const DWORD status = cng.Derive(password ? password : L"", kept.salt, kept.rounds, key);
    equal = status == 0 && IsEqual(key, kept.hash);
    SecureZeroMemory(key.data(), key.size());
    return status;
}
