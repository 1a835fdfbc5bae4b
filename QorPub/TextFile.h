#pragma once

#include <QorPub/QorPubDef.h>

/** What a text file is opened for: the mode of CTextFile::Open. */
enum TextFileMode
{
    TEXTFILE_READ = 1,   /**< read an existing file */
    TEXTFILE_CREATE = 2, /**< write; an existing file is emptied */
    TEXTFILE_APPEND = 3, /**< write at the end; a missing file is created */
};

/** How a text file holds its characters: the encoding of CTextFile::Open. */
enum TextFileEncoding
{
    TEXTFILE_UTF8 = 0,     /**< UTF-8 without byte-order mark */
    TEXTFILE_UTF8_BOM = 1, /**< UTF-8 with byte-order mark */
    TEXTFILE_UTF16LE = 2,  /**< UTF-16, low byte first, with byte-order mark */
};

/**
 * A text file, read or written in pieces.
 *
 * Nothing is added to what is written and no line end is changed; every piece reaches the system before its call
 * returns, so a failure is told by the call that met it. A surrogate without its partner is written as U+FFFD in UTF-8.
 * After a FALSE, GetLastError tells the reason.
 */
class QORPUB_API CTextFile
{
  public:
    /** Makes an object without file. */
    CTextFile();
    /** Closes the file. */
    ~CTextFile();
    CTextFile(const CTextFile&) = delete;
    CTextFile& operator=(const CTextFile&) = delete;

    /**
     * Opens a file; a file that this object already has open is closed first. What is opened to read is read into
     * memory, so that more than 256 MB are refused (ERROR_FILE_TOO_LARGE).
     * @param path     the file; its folder must exist.
     * @param mode     1 read, 2 create for writing, 3 append (TextFileMode).
     * @param encoding 0 UTF-8, 1 UTF-8 with byte-order mark, 2 UTF-16 with the low byte first (TextFileEncoding). The
     *                 mark is written into an empty file only. A byte-order mark found while opening to read or append
     *                 (UTF-16 with the high byte first too when reading) wins over this parameter.
     */
    BOOL Open(LPCWSTR path, int mode, int encoding);

    /** Whether a file is open. */
    BOOL IsOpen() const;

    /** Writes a text as it stands. FALSE unless the file is open for writing and everything was written. */
    BOOL WriteString(LPCWSTR text);

    /** Formats a text as CString::Format does ("%s" takes a wide string) and writes it. */
    BOOL WriteStringV(LPCWSTR format, ...);

    /**
     * Reads the next line, which ends at CR LF, LF or CR, without its line end.
     * @return FALSE, with an empty line, at the end of the file, on failure, or when the file is not open to read.
     */
    BOOL ReadLine(CString& line);

    /** Reads everything not yet read, line ends included. FALSE on failure or when the file is not open to read. */
    BOOL ReadAll(CString& text);

    /** Closes the file; TRUE also when none is open. */
    BOOL Close();

  private:
    DWORD OpenFile(LPCWSTR path, int mode, int encoding);
    DWORD LoadText(int encoding);
    BOOL StartWriting(int encoding);
    int FindEncoding(int encoding);
    BOOL WriteBytes(const void* data, DWORD size);

    HANDLE m_file = INVALID_HANDLE_VALUE;
    int m_mode = 0;
    int m_encoding = TEXTFILE_UTF8;
    CString m_text;
    int m_pos = 0;
};
