#include "UpdateMark.h"

#include "Names.h"

#include <QorPub/QorPub.h>

namespace
{

CString GetUpdateEventName()
{
    const CStringA path = WStrToUTF8(FoldName(QorGetStorePath()));
    BYTE digest[MD5_DIGEST_SIZE] = {};
    CQorMd5::Digest(path.GetString(), path.GetLength(), digest);
    return L"Local\\QorUpdateCheck-" + CQorMd5::ToHex(digest);
}

} // namespace

UpdateMark::UpdateMark() : m_event(CreateEventW(nullptr, TRUE, FALSE, GetUpdateEventName()))
{
    const DWORD error = GetLastError();
    if (!m_event) {
        m_status = error;
    } else {
        m_status = error == ERROR_ALREADY_EXISTS ? ERROR_BUSY : ERROR_SUCCESS;
    }
}

bool IsUpdateRunning()
{
    return static_cast<bool>(own::KernelObject(OpenEventW(SYNCHRONIZE, FALSE, GetUpdateEventName())));
}
