#pragma once

/** @file
 * The product's texts in the user's language.
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
 */

#include <QorApi/QorApiDef.h>

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
