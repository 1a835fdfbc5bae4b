#pragma once

#include <QorPub/QorPubDef.h>

#include <memory>

/** Message in which a running CQorZip reports to its window; wParam is one of ZipReport. */
#define WM_QORZIP (WM_USER + 400)

/** wParam of WM_QORZIP. */
enum ZipReport
{
    ZIPREPORT_PERCENT = 1,  /**< lParam: 0 to 100 of the bytes read; each value at most once, rising; sent */
    ZIPREPORT_FILE = 2,     /**< lParam: LPCWSTR path of the file or folder begun, relative to the source; sent */
    ZIPREPORT_FINISHED = 3, /**< lParam: 0, or a negative HRESULT; the last report, posted */
    ZIPREPORT_QUESTION = 4, /**< lParam: LPCWSTR question about an unreadable file; the result is the answer; sent */
};

/** Replace an existing archive; without it an existing archive makes Start fail. */
constexpr DWORD QORZIP_OVERWRITE = 0x80000000;
/** Take a folder's sub-folders too; without it only the files directly in the folder. */
constexpr DWORD QORZIP_SUBFOLDERS = 0x40000000;

/**
 * Packs a file or a folder into a zip archive on a thread of its own, and reads archives.
 *
 * Names are kept as UTF-8 and relative to the source (a single file under its own name); Zip64 is used where sizes need
 * it. Every folder gets an entry, so empty ones survive. Links to folders are not followed. A time that an
 * archive cannot tell becomes the nearest one that it can (1980 to 2107). The archive is written beside its place under
 * a name with ".part" added (and a number, when there is such a file) and moved to its place when complete, so a
 * failure or a cancel leaves no unfinished archive and an older archive untouched; both files are left out when they
 * lie inside the source.
 *
 * A file that cannot be read makes a question (its path, a line end, the system's error text), answered 4 (IDRETRY):
 * try again, 5 (IDIGNORE) or 32000 (nobody answered): leave the file out, or what of it cannot be read when its
 * beginning is packed already, anything else: cancel. Without a window such a file ends the packing with its error.
 */
class QORPUB_API CQorZip
{
  public:
    /** Makes an object without job. */
    CQorZip();
    /** Cancels a running job, without further reports, and waits for its end. */
    ~CQorZip();
    CQorZip(const CQorZip&) = delete;
    CQorZip& operator=(const CQorZip&) = delete;

    /**
     * Starts packing and returns at once.
     * @param notify  window that gets WM_QORZIP; null for none.
     * @param source  the file or folder to pack.
     * @param archive the archive to make; its folder must exist.
     * @param flags   QORZIP_OVERWRITE, QORZIP_SUBFOLDERS.
     * @return 0, or a negative HRESULT: nothing was started and no report will come (E_INVALIDARG for missing paths,
     *         ERROR_BUSY while a job runs, ERROR_FILE_EXISTS, or what the system says of the paths).
     */
    LONG Start(HWND notify, LPCWSTR source, LPCWSTR archive, DWORD flags);

    /** Asks a running job to end soon; it then finishes with the HRESULT of ERROR_CANCELLED. */
    void Cancel();

    /** Whether a job was started and has not finished yet. */
    BOOL IsRunning() const;

    /**
     * Waits for the running job's end. Messages sent from other threads, the reports among them, are served meanwhile.
     * @param timeout longest time to wait in milliseconds, or INFINITE.
     * @return TRUE when no job is running any more.
     */
    BOOL Wait(DWORD timeout = INFINITE);

    /** Result of the last finished job as in its last report; 0 when none has finished yet. */
    LONG GetResult() const;

    /**
     * Unpacks an archive, on the calling thread. Nothing is unpacked from an archive with an entry whose name would
     * leave the folder or is not allowed for a file (ERROR_BAD_PATHNAME).
     * @param folder made when missing. @param flags QORZIP_OVERWRITE replaces existing files, each when its new
     *        content has been unpacked whole.
     * @return 0 or a negative HRESULT; a damaged archive gives that of ERROR_INVALID_DATA.
     */
    static LONG Extract(LPCWSTR archive, LPCWSTR folder, DWORD flags);

    /** Lists an archive's entries in their order; those of folders end with "/". Results as Extract. */
    static LONG List(LPCWSTR archive, CStringArray& names);

  private:
    struct Job;
    std::unique_ptr<Job> m_job;
};
