#pragma once

#include <QorPub/QorPubDef.h>

/** Size of an MD5 digest in bytes. */
constexpr DWORD MD5_DIGEST_SIZE = 16;

/**
 * MD5 digests, made by the system's cryptography, which is loaded at the first use. For identities and change checks
 * only: MD5 protects nothing.
 */
class QORPUB_API CQorMd5
{
  public:
    /** Makes an object whose first Update or Final starts a digest. */
    CQorMd5();
    ~CQorMd5();
    CQorMd5(const CQorMd5&) = delete;
    CQorMd5& operator=(const CQorMd5&) = delete;

    /**
     * Adds bytes to the digest; the first call after the construction or after Final starts a new one.
     * @return FALSE for null @p data with a size, or when the system has no MD5.
     */
    BOOL Update(const void* data, DWORD size);

    /**
     * Ends the digest (of no bytes at all when nothing was added).
     * @param digest takes the 16 bytes.
     * @return FALSE for null @p digest, or when the system has no MD5.
     */
    BOOL Final(BYTE* digest);

    /** Digest of one block. FALSE for a null @p digest, or null @p data with a size, or when the system has no MD5. */
    static BOOL Digest(const void* data, DWORD size, BYTE* digest);

    /** A digest's 16 bytes as 32 lower-case hexadecimal digits; empty for null. */
    static CString ToHex(const BYTE* digest);

  private:
    BOOL Begin();
    void Drop();

    void* m_hash = nullptr;
};
