/**
 * @file QorApi.h
 * The product's service library: language data, users and rights, log-on, settings, snapshots, tasks, time records,
 * the connection to the store and the update check.
 *
 * Calls that can fail return a 32-bit status: 0 is success, anything else is a Win32 error code or an HRESULT, whose
 * text QorFormatMsg() gives. Every call may be made from any thread.
 *
 * No call throws while there is memory. When it runs out, the work on the store answers ERROR_NOT_ENOUGH_MEMORY and the
 * sections of the language data are empty; whatever else makes texts may let a std::bad_alloc or a CMemoryException*
 * out.
 *
 * Everything that changes stored data is guarded here by a right of the logged-on user, whatever a dialog shows:
 * without a log-on such a call answers ERROR_NOT_LOGGED_ON, without the right ERROR_ACCESS_DENIED. Rights are read from
 * the store at each call, so a right that is taken away is gone at once, in every process. Only what the library notes
 * by itself needs no right: failed log-ons and the result of an update check.
 */
#pragma once

#include <QorPub/QorPub.h>

#include <afxwin.h>

/** Exports the service library's names while it is built and imports them everywhere else. */
#ifdef QORAPI_EXPORTS
#define QORAPI_API __declspec(dllexport)
#else
#define QORAPI_API __declspec(dllimport)
#endif

/** @name Language
 *
 * Texts stand in `lang\<locale>\<module>.xml` beside the program (the environment variable `QOR_LANG_DIR` names another
 * folder in place of `lang`), in UTF-8:
 *
 * @code{.xml}
 * <?xml version="1.0" encoding="UTF-8"?>
 * <QorLang>
 *   <Strings>
 *     <STR_OK>OK</STR_OK>
 *   </Strings>
 *   <IDD_DLG_LOGON>
 *     <Text>Log on</Text>          window text; absent: the window keeps its own
 *     <Ctrl1152>Name:</Ctrl1152>   text of control 1152
 *     <STR_LOGON_FAIL>...</STR_LOGON_FAIL>
 *   </IDD_DLG_LOGON>
 * </QorLang>
 * @endcode
 *
 * Product-wide texts are the section `Strings` of the module `Product`. A text comes from the chosen locale (`de-AT`),
 * else from its language (`de`), else from `en`. A translation whose printf placeholders differ from the English text's
 * in number, order or kind is dropped in favour of the English one; a key that only a translation has must have no
 * placeholders. A key that nothing has gives the key itself. A file that cannot be read or parsed is traced and treated
 * as empty. Texts and elements stay valid until the library is unloaded, also after the language was changed.
 * @{ */

/**
 * Gives a dialog its texts.
 * @param window the dialog; null or a destroyed window is tolerated: no text is set, the element is returned all the
 * same.
 * @param module file name of the module whose language data is meant, for example `QorUI.dll`.
 * @param dialogKey the dialog's key, for example `IDD_DLG_LOGON`.
 * @param flag 1: set the window's text and the text of each control that the element names by id; 0: only look up.
 * @return the dialog's element for further texts by `GetChildData(key, 1)`; an empty element when there is none, never
 *         null. Owned by the library.
 */
QORAPI_API CXmlElem* QorSetDlgLang(HWND window, LPCWSTR module, LPCWSTR dialogKey, int flag);

/**
 * A section of a module's language data, for example `Strings`.
 * @return the section; an empty element when there is none, never null. Owned by the library.
 */
QORAPI_API CXmlElem* QorGetModuleLang(LPCWSTR module, LPCWSTR section);

/**
 * A product-wide text.
 * @return the text, or the key itself when there is none; an empty text for a null key. Never null, owned by the
 * library.
 */
QORAPI_API LPCWSTR QorGetString(LPCWSTR key);

/**
 * The system's text of a Win32 error code or HRESULT, without a trailing line break. A code that the system does not
 * know gives its number as "0x" and eight hexadecimal digits.
 */
QORAPI_API CString QorFormatMsg(DWORD code);

/**
 * Chooses the language for this process.
 * @param locale a locale name (`de-DE`, `zh-CN`, `en`); null or empty goes back to the automatic choice: the
 * environment variable `QOR_LANG`, else the user's locale.
 * @return TRUE when language data for the locale or its language exists. FALSE: none does, or it is no locale name, and
 *         the language stays as it was.
 */
QORAPI_API BOOL QorSetLanguage(LPCWSTR locale);

/**
 * Whether a text may stand for another one as printf format: TRUE when its placeholders are those of the model in
 * number, order and kind. FALSE for "%n" in either. Language data that is used as a format is asked about here first:
 * the English texts are served as they stand.
 */
QORAPI_API BOOL QorIsSameFormat(LPCWSTR text, LPCWSTR model);

/** Name of the folder of language data that is in use: the best one that exists for the chosen locale, at last `en`. */
QORAPI_API CString QorGetLanguage();
/** @} */

/** @name Connection
 * @{ */

/**
 * Opens the calling thread's connection to the store; nested calls are counted. Other calls also work without it, but
 * connect anew each time. The first open of all makes the store: the built-in account, default settings, no snapshots.
 *
 * The store is one SQLite file, `%LOCALAPPDATA%\Qor\store.db` unless the environment variable `QOR_STORE` names another
 * (whose folder must exist). A store that cannot be opened, is damaged or belongs to a later version gives an error
 * here and from every call, and is left as it is.
 * @return status: ERROR_FILE_CORRUPT damaged or not a store, ERROR_REVISION_MISMATCH made by a later version,
 *         ERROR_LOCK_VIOLATION in use by another process for longer than the waiting time, ERROR_WRITE_PROTECT, or the
 *         system's code for opening the file.
 */
QORAPI_API DWORD QorOpen();

/** Ends one QorOpen() of the calling thread; without one it does nothing. A thread that ends is disconnected by itself.
 */
QORAPI_API void QorClose();

/**
 * Looks for an update. Reads the update description at #QORINFO_UPDATE_SOURCE, a URL or a path of an XML file
 * `<QorUpdate Version="1.2.3.4"/>`, and keeps a version newer than the product's in #QORINFO_UPDATE_VERSION (an empty
 * text when there is none). While it runs, byte 1 of #QORINFO_UPDATE_CHECK reads 1 in every process.
 * @return 0 when the check was made, whatever it found. ERROR_HOST_UNREACHABLE: no source is set; ERROR_BUSY: a check
 * is running; ERROR_INVALID_DATA: the description is damaged; otherwise the system's code for reading the source.
 */
QORAPI_API DWORD QorCheckUpdate();
/** @} */

/** @name Time records
 * @{ */

#pragma pack(push, 1)

/** The product's time record: local time with a resolution of one second. */
struct _QORTIME
{
    WORD wYear;      ///< 1601 to 9999
    BYTE nMonth;     ///< 1 to 12
    BYTE nDayOfWeek; ///< 0 Sunday to 6 Saturday; 7 every day (schedules only)
    BYTE nDay;       ///< 1 to 31
    BYTE nHour;      ///< 0 to 23
    BYTE nMinute;    ///< 0 to 59
    BYTE nSecond;    ///< 0 to 59
};

/**
 * @param time the record; its day of the week is not used: the result's follows from the date.
 * @param[out] sysTime the same moment; all zero when the record is no valid date and time.
 * @return TRUE when the record is valid.
 */
QORAPI_API BOOL QorTime2SysTime(const _QORTIME& time, SYSTEMTIME& sysTime);

/**
 * @param sysTime the moment; its day of the week is not used, milliseconds are cut off.
 * @param[out] time the record, its day of the week from the date; all zero when @p sysTime is not valid.
 * @return TRUE when @p sysTime is a valid date and time in the years 1601 to 9999.
 */
QORAPI_API BOOL SysTime2QorTime(const SYSTEMTIME& sysTime, _QORTIME& time);
/** @} */

/** @name Users, rights, log-on
 * @{ */

/** What a user may do. QorHasUserRight() takes any combination. */
enum QORRIGHT : DWORD
{
    QORRIGHT_ROLLSYS = 0x0001,   ///< roll the system back
    QORRIGHT_TAKESNAP = 0x0002,  ///< take, rename and lock snapshots
    QORRIGHT_DELSNAP = 0x0004,   ///< delete snapshots
    QORRIGHT_RESETBL = 0x0008,   ///< reset the baseline
    QORRIGHT_UPDATEBL = 0x0010,  ///< update the baseline
    QORRIGHT_RESFILES = 0x0020,  ///< restore files from snapshots
    QORRIGHT_SECURITY = 0x0040,  ///< users and restrictions
    QORRIGHT_SCHROLL = 0x0080,   ///< tasks that roll back
    QORRIGHT_SCHSNAP = 0x0100,   ///< tasks that take snapshots
    QORRIGHT_PASSWORD = 0x0200,  ///< change the own password
    QORRIGHT_SETTINGS = 0x0400,  ///< settings, lists, tasks that defragment
    QORRIGHT_DELLOGS = 0x0800,   ///< delete logs
    QORRIGHT_UNINSTALL = 0x1000, ///< uninstall the product
    QORRIGHT_ALL = 0x1FFF
};

/** Which fields of a _QORVEX_USER a set operation applies. */
enum QORUSERFIELD : WORD
{
    QORUSER_NAME = 0x01,       ///< szName
    QORUSER_DESC = 0x02,       ///< szDesc
    QORUSER_PASSWORD = 0x04,   ///< the password
    QORUSER_RIGHTS = 0x08,     ///< dwRights
    QORUSER_FLAGS = 0x10,      ///< wFlags
    QORUSER_PROPERTIES = 0x1B, ///< all but the password
    QORUSER_NEW = 0x1F         ///< all, as QorAddUser() takes them
};

constexpr WORD QORUSER_INACTIVE = 0x0002;                  ///< bit of _QORVEX_USER::wFlags: the account may not log on
constexpr WORD QORUSER_BUILTIN = 0;                        ///< number of the built-in account
constexpr WORD QORUSER_MAX = 63;                           ///< highest number of an account; a higher one means "new"
constexpr LPCWSTR QORUSER_BUILTIN_NAME = L"Administrator"; ///< name of the built-in account

/** A user account, 256 bytes. Unused bytes are 0. */
struct _QORVEX_USER
{
    WORD wNumber;     ///< 0 built-in, 1 to 63 others; 64 or more: new
    WORD wFieldMask;  ///< QORUSERFIELD; 0 in records that are read
    WORD wFlags;      ///< #QORUSER_INACTIVE
    WCHAR szName[32]; ///< zero-terminated
    WCHAR szDesc[64]; ///< zero-terminated
    BYTE reserved[16];
    DWORD dwRights; ///< QORRIGHT
    BYTE reserved2[38];
};

static_assert(sizeof(_QORVEX_USER) == 256);
static_assert(offsetof(_QORVEX_USER, wFieldMask) == 2 && offsetof(_QORVEX_USER, wFlags) == 4);
static_assert(offsetof(_QORVEX_USER, szName) == 6 && offsetof(_QORVEX_USER, szDesc) == 70);
static_assert(offsetof(_QORVEX_USER, dwRights) == 214);

/**
 * Reads an account.
 * @param[in,out] user its wNumber says which; filled on success, unchanged on failure.
 * @return status: ERROR_NO_SUCH_USER when there is no such account.
 */
QORAPI_API DWORD QorGetUserInfo(_QORVEX_USER& user);

/**
 * Changes the fields of an account that the field mask names.
 *
 * The own password needs QORRIGHT_PASSWORD. Everything else needs QORRIGHT_SECURITY, and nobody changes an account that
 * has, or gives it, a right that he does not have himself. Of the built-in account only the password can be changed.
 * @param user wNumber and wFieldMask say what to change. A trailing or leading blank of the name does not count.
 * @param password the new password (at most 63 characters; null and empty: no password) with #QORUSER_PASSWORD in the
 *        mask; otherwise not used.
 * @return status: ERROR_NO_SUCH_USER, ERROR_USER_EXISTS (the name is in use, letter case apart),
 *         ERROR_INVALID_ACCOUNT_NAME, ERROR_ILL_FORMED_PASSWORD (too long), ERROR_INVALID_PARAMETER (rights, flags,
 * mask).
 */
QORAPI_API DWORD QorSetUserInfo(_QORVEX_USER& user, LPCWSTR password);

/**
 * Adds an account; needs QORRIGHT_SECURITY and every right that it gives.
 * @param[in,out] user wNumber of 64 or more: gets the lowest free number; 1 to 63: that number must be free. The mask
 * must have #QORUSER_NAME; fields that it does not name are empty.
 * @param password as in QorSetUserInfo().
 * @return status as QorSetUserInfo(); also ERROR_ALREADY_EXISTS (the number) and ERROR_NOT_ENOUGH_QUOTA (all 63 in
 * use).
 */
QORAPI_API DWORD QorAddUser(_QORVEX_USER& user, LPCWSTR password);

/**
 * Deletes an account; needs QORRIGHT_SECURITY and every right that the account has.
 * @return status: ERROR_ACCESS_DENIED for the built-in account and the own one, ERROR_NO_SUCH_USER.
 */
QORAPI_API DWORD QorDeleteUser(WORD number);

/** TRUE when a user is logged on, the account is active and has all of @p rights. An empty mask asks for the log-on
 * alone. */
QORAPI_API BOOL QorHasUserRight(DWORD rights);

/**
 * Logs a user on, for this process; a user who was logged on before is logged off only on success.
 *
 * Every failure is counted with the account (unknown names share one count). After five failures in a row each further
 * answer is delayed, 2 seconds at first and twice as long after every further failure, up to 32 seconds. The count is
 * kept in the store and goes back to 0 with a right password; that of the unknown names with anybody's.
 * @return status: ERROR_LOGON_FAILURE (unknown name or wrong password, not told apart), ERROR_ACCOUNT_DISABLED (right
 *         password of an inactive account).
 */
QORAPI_API DWORD QorLogonUser(LPCWSTR name, LPCWSTR password);

/** Logs the user off; nothing without one. */
QORAPI_API void QorLogoff();

/**
 * The logged-on user's account.
 * @return status: ERROR_NOT_LOGGED_ON, or as QorGetUserInfo().
 */
QORAPI_API DWORD QorGetLogonUser(_QORVEX_USER& user);

/** TRUE when a name was to be remembered for the next log-on; then @p name gets it, otherwise it becomes empty. */
QORAPI_API BOOL QorGetLastLogonInfo(CString& name);

/** Remembers the name for the next log-on, or forgets it. Needs a logged-on user, but no right. */
QORAPI_API DWORD QorSetLastLogonInfo(BOOL remember, LPCWSTR name);

/** Waits for the given milliseconds. */
typedef void(CALLBACK* QORWAITPROC)(DWORD milliseconds);

/** Replaces the waiting of delayed log-on answers, so that a program can show it. Null is Sleep(). @return the former
 * one. */
QORAPI_API QORWAITPROC QorSetLogonWait(QORWAITPROC wait);
/** @} */

/** @name Snapshots
 * @{ */

constexpr WORD QORSNAP_LATEST = 0xFFFF; ///< in a task: the latest snapshot
constexpr WORD QORSNAP_MAX = 1023;      ///< highest number of a snapshot; they begin at 1
constexpr WORD QORSNAP_LOCKED = 0x0001; ///< bit of _QORVEX_SNAP::wFlags: may not be deleted

/** A snapshot, 256 bytes. Unused bytes are 0. */
struct _QORVEX_SNAP
{
    WORD wNumber; ///< 1 to 1023
    WORD wFlags;  ///< #QORSNAP_LOCKED
    BYTE reserved[12];
    _QORTIME time; ///< when it was taken
    BYTE reserved2[8];
    ULONGLONG nSize; ///< bytes
    BYTE reserved3[72];
    WCHAR szName[64]; ///< display name, zero-terminated
    BYTE reserved4[16];
};

static_assert(sizeof(_QORVEX_SNAP) == 256);
static_assert(offsetof(_QORVEX_SNAP, time) == 16 && offsetof(_QORVEX_SNAP, szName) == 112);

/**
 * Adds a snapshot; needs QORRIGHT_TAKESNAP.
 * @param[in,out] snapshot gets the lowest free number. Without a time (all zero) it gets the present one.
 * @return status: ERROR_INVALID_NAME for an empty name or one without end, ERROR_NOT_ENOUGH_QUOTA, ERROR_INVALID_TIME.
 */
QORAPI_API DWORD QorAddSnapshot(_QORVEX_SNAP& snapshot);

/** Deletes a snapshot; needs QORRIGHT_DELSNAP. @return status: ERROR_NOT_FOUND, ERROR_LOCKED for a locked one. */
QORAPI_API DWORD QorDeleteSnapshot(WORD number);

/** Renames a snapshot; needs QORRIGHT_TAKESNAP. @return status: ERROR_NOT_FOUND, ERROR_INVALID_NAME (empty or over 63).
 */
QORAPI_API DWORD QorRenameSnapshot(WORD number, LPCWSTR name);

/** Locks a snapshot against deletion, or unlocks it; needs QORRIGHT_TAKESNAP. @return status: ERROR_NOT_FOUND. */
QORAPI_API DWORD QorLockSnapshot(WORD number, BOOL lock);
/** @} */

/** @name Tasks
 * @{ */

constexpr WORD QORTASK_MAX = 31; ///< highest number of a task, they begin at 0; a higher one means "new"

/** What a task does: bits 2 to 7 of _QORVEX_TASK::nKind. */
enum QORTASKKIND : BYTE
{
    QORTASK_ROLLBACK = 1,
    QORTASK_SNAPSHOT = 2,
    QORTASK_DEFRAG = 3
};

/** When a task runs: _QORVEX_TASK::nSchedule. */
enum QORSCHEDULE : BYTE
{
    QORSCHED_ONETIME = 1,
    QORSCHED_HOURLY = 2,
    QORSCHED_DAILY = 3,
    QORSCHED_WEEKLY = 4,
    QORSCHED_MONTHLY = 5,
    QORSCHED_RESTART = 6,
    QORSCHED_LOGOFF = 7,
    QORSCHED_SHUTDOWN = 10
};

constexpr BYTE QORTASK_FIRSTBOOT = 0x01; ///< nOptions: a daily task runs at the first boot instead of at a time
constexpr BYTE QORTASK_LOCKSNAP = 0x02;  ///< nOptions: lock the snapshot
constexpr BYTE QORTASK_SHUTDOWN = 0x04;  ///< nOptions: shut down after defragmenting

/** A scheduled task, 128 bytes. Unused bytes are 0. */
struct _QORVEX_TASK
{
    WORD wNumber;    ///< 0 to 31; 32 or more: new
    BYTE nKind;      ///< QORTASKKIND in bits 2 to 7; bits 0 and 1 are kept as they are
    BYTE nSchedule;  ///< QORSCHEDULE
    BYTE nFirstHour; ///< 0 to 23: first hour of an hourly task, or of the suspend window
    BYTE nLastHour;  ///< 0 to 23: its last hour
    BYTE nDayMask;   ///< hourly and daily tasks: bit 0 Sunday to bit 6 Saturday
    BYTE reserved;
    BYTE nOptions;  ///< #QORTASK_FIRSTBOOT, #QORTASK_LOCKSNAP, #QORTASK_SHUTDOWN
    BYTE nKeepDays; ///< days to keep the snapshot, 0 for ever
    BYTE nTarget;   ///< roll back to: 2 the latest snapshot, 3 the snapshot wSnapshot
    BYTE nOthers;   ///< other snapshots after the roll-back: 1 keep all, 2 remove all unlocked ones
    BYTE nSuspend;  ///< 1: not within the hours and on the day of the suspend window
    BYTE reserved2[3];
    _QORTIME start; ///< of it a schedule uses what it needs: date and time, minute, or weekday or day with the time
    BYTE reserved3[8];
    WORD wSnapshot; ///< number of a snapshot or #QORSNAP_LATEST
    BYTE reserved4[30];
    WCHAR szName[32]; ///< zero-terminated
};

#pragma pack(pop)

static_assert(sizeof(_QORTIME) == 8 && sizeof(_QORVEX_TASK) == 128);
static_assert(offsetof(_QORVEX_TASK, nKind) == 2 && offsetof(_QORVEX_TASK, nSchedule) == 3);
static_assert(offsetof(_QORVEX_TASK, nFirstHour) == 4 && offsetof(_QORVEX_TASK, nDayMask) == 6);
static_assert(offsetof(_QORVEX_TASK, nOptions) == 8 && offsetof(_QORVEX_TASK, nKeepDays) == 9);
static_assert(offsetof(_QORVEX_TASK, nTarget) == 10 && offsetof(_QORVEX_TASK, nOthers) == 11);
static_assert(offsetof(_QORVEX_TASK, nSuspend) == 12 && offsetof(_QORVEX_TASK, start) == 16);
static_assert(offsetof(_QORVEX_TASK, start.nDayOfWeek) == 19 && offsetof(_QORVEX_TASK, start.nDay) == 20);
static_assert(offsetof(_QORVEX_TASK, start.nHour) == 21 && offsetof(_QORVEX_TASK, start.nMinute) == 22);
static_assert(offsetof(_QORVEX_TASK, wSnapshot) == 32 && offsetof(_QORVEX_TASK, szName) == 64);

/** Reads a task. @param[in,out] task its wNumber says which. @return status: ERROR_NOT_FOUND. */
QORAPI_API DWORD QorGetTask(_QORVEX_TASK& task);

/**
 * Adds a task; needs the right of its kind: QORRIGHT_SCHROLL, QORRIGHT_SCHSNAP or QORRIGHT_SETTINGS (defragment).
 * @param[in,out] task gets the lowest free number.
 * @return status: ERROR_NOT_ENOUGH_QUOTA when all 32 numbers are in use; ERROR_INVALID_DATA for a kind or schedule that
 *         does not exist or do not go together, an empty name or one without end, hours above 23.
 */
QORAPI_API DWORD QorAddTask(_QORVEX_TASK& task);

/** Replaces a task; needs the rights of its old and its new kind. @return status: ERROR_NOT_FOUND, or as QorAddTask().
 */
QORAPI_API DWORD QorSetTask(const _QORVEX_TASK& task);

/** Deletes a task; needs the right of its kind. @return status: ERROR_NOT_FOUND. */
QORAPI_API DWORD QorDeleteTask(WORD number);
/** @} */

/** @name Settings and lists
 * @{ */

/** Settings that the product knows. Ids of 1 to 1023 that are not named here keep what programs put there. */
enum QORINFO : UINT
{
    QORINFO_SYNC_REG = 44,     ///< multi-string: registry keys and values kept across a restore
    QORINFO_UPDATE_CHECK = 62, ///< DWORD: byte 0 check for updates by itself (1), byte 1 a check is running (read only)
    QORINFO_UPDATE_SOURCE = 63,  ///< text: URL or path of the update description
    QORINFO_UPDATE_VERSION = 64, ///< text: the newer version that was found last, or empty
    QORINFO_KEEP_UPDATES = 65,   ///< DWORD: system updates stay when the system is rolled back (1)
    QORINFO_RESTRICT = 70,       ///< DWORD: restrictions of the user, bits 0 to 7 (0); set with QORRIGHT_SECURITY
    QORINFO_SNAP_BEFORE = 81     ///< DWORD: a snapshot is taken before the system installs updates (1)
};

/** Kinds of records that QorGetAllInfo() lists. */
enum QORLIST : UINT
{
    QORLIST_SNAPSHOTS = 1, ///< _QORVEX_SNAP, by number
    QORLIST_USERS = 2,     ///< _QORVEX_USER, by number
    QORLIST_TASKS = 3      ///< _QORVEX_TASK, by number
};

/**
 * Reads a setting.
 * @param[out] data gets the value, or the default of a known setting that was never set. Bytes behind a shorter value
 *        become 0. A text is wide, with its terminating zero. All zero on failure.
 * @param size bytes at @p data; the known DWORD settings need 4.
 * @return status: ERROR_NOT_FOUND never set, ERROR_INSUFFICIENT_BUFFER longer than @p size, ERROR_INVALID_PARAMETER.
 */
QORAPI_API DWORD QorGetInfo(UINT id, void* data, int size);

/**
 * Sets a setting, at most 4096 bytes; needs QORRIGHT_SETTINGS, or the right named with the id.
 * @return status: ERROR_INVALID_PARAMETER for a null pointer, an id out of range, or a size other than the known
 * setting's.
 */
QORAPI_API DWORD QorSetInfo(UINT id, const void* data, int size);

/**
 * Lists all records of one kind.
 * @param kind QORLIST.
 * @param recordSize bytes of one record, which must be the size of the kind's record.
 * @param[out] count number of records; may be null.
 * @param flags 0.
 * @return an array of records that the caller frees with CoTaskMemFree; null when there are none or on failure, then
 *         GetLastError() gives the status (0: there are none).
 */
QORAPI_API void* QorGetAllInfo(UINT kind, int recordSize, int* count, int flags);

/** Reads a list of texts; one that was never set is empty. @param[out] texts replaced; empty on failure. @return
 * status. */
QORAPI_API DWORD QorGetMultiString(UINT id, CStringArray& texts);

/**
 * Sets a list of texts; needs QORRIGHT_SETTINGS.
 * @param flag 1: replaces the list; 0: adds those texts that the list does not have yet, letter case apart.
 * @return status: ERROR_INVALID_PARAMETER for an id out of range.
 */
QORAPI_API DWORD QorSetMultiString(UINT id, const CStringArray& texts, int flag);

/**
 * Brings an entry of the list of registry keys into its stored form: the root's acronym in capital letters, single
 * backslashes, and `HKLM\SOFTWARE\Classes\` for `HKCR\`. The long names of the roots are taken too.
 * @param[in,out] entry root, path and, without a backslash at the end, a value's name; unchanged when refused.
 * @return status: ERROR_INVALID_PARAMETER unknown root; ERROR_NOT_SUPPORTED a whole root, or what stands directly below
 *         HKEY_LOCAL_MACHINE or HKEY_USERS; ERROR_INVALID_NAME a name that the registry does not take.
 */
QORAPI_API DWORD QorConvertKeyName(CString& entry);

/**
 * Fills the store with sample users, tasks, snapshots, a registry list and settings; what is there already stays. Needs
 * a logged-on user with all rights.
 */
QORAPI_API DWORD QorFillDemoStore();
/** @} */
