#pragma once

#include <QorPub/QorPubDef.h>

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

/**
 * One element of an XML document: a name, attributes, text and child elements.
 *
 * Elements belong to their parent, the root to its CQorXml; a pointer to an element, and every text it hands out, stays
 * valid until the element is changed or its document is loaded anew or destroyed. Names are compared with regard to
 * case. Reading the same element from several threads is allowed.
 */
class QORPUB_API CXmlElem
{
  public:
    /** Makes an element of its own, without parent. The name is taken as it stands. */
    explicit CXmlElem(LPCWSTR name = L"");
    /** Destroys the children too. */
    ~CXmlElem();
    CXmlElem(const CXmlElem&) = delete;
    CXmlElem& operator=(const CXmlElem&) = delete;

    /** The element's name; never null. */
    LPCWSTR GetName() const;

    /** The element's own text (all its text pieces joined, without the children's); never null. */
    LPCWSTR GetData() const;

    /**
     * The text of the first child element called @p key.
     * @param key  name of the child; null counts as a missing key with an empty name.
     * @param flag what a missing child gives: 1 the key itself (a copy that lives as long as this element), so that a
     *             missing text is seen on the screen; 0 null.
     */
    LPCWSTR GetChildData(LPCWSTR key, int flag) const;

    /** The value of an attribute, or @p missing when there is no such attribute. */
    LPCWSTR GetAttr(LPCWSTR name, LPCWSTR missing = nullptr) const;

    /**
     * The value of an attribute as a number: decimal, or hexadecimal with a leading "0x".
     * @return the number, or @p missing when there is no such attribute or it is no number in the range of int.
     */
    int GetAttrInt(LPCWSTR name, int missing = 0) const;

    /** Number of attributes. */
    int GetAttrCount() const;
    /** Name of the attribute at @p index in document order; null when the index is out of range. */
    LPCWSTR GetAttrName(int index) const;
    /** Value of the attribute at @p index in document order; null when the index is out of range. */
    LPCWSTR GetAttrValue(int index) const;

    /** Number of child elements. */
    int GetChildCount() const;
    /** The child element at @p index in document order; null when the index is out of range. */
    CXmlElem* GetChild(int index) const;
    /** The first child element called @p name; null when there is none. */
    CXmlElem* FindChild(LPCWSTR name) const;
    /**
     * The first child element that has an attribute with the given value.
     * @param name  the child's name; null or empty for any.
     * @param attr  name of the attribute.
     * @param value value of the attribute, compared with regard to case.
     */
    CXmlElem* FindChildByAttr(LPCWSTR name, LPCWSTR attr, LPCWSTR value) const;
    /** The element this one is a child of; null for a root. */
    CXmlElem* GetParent() const;

    /** Replaces the element's own text. */
    void SetData(LPCWSTR data);
    /** Sets an attribute, which is added when missing. FALSE when @p name is no XML name. */
    BOOL SetAttr(LPCWSTR name, LPCWSTR value);
    /** Removes an attribute; FALSE when there is none of that name. */
    BOOL RemoveAttr(LPCWSTR name);
    /**
     * Appends a child element.
     * @param name its name. @param data its text; null for none.
     * @return the child, owned by this element; null when @p name is no XML name.
     */
    CXmlElem* AddChild(LPCWSTR name, LPCWSTR data = nullptr);
    /** Removes a child element and destroys it; FALSE when it is not a child of this element. */
    BOOL RemoveChild(CXmlElem* child);

  private:
    friend class CQorXml;

    std::wstring m_name;
    std::wstring m_data;
    std::vector<std::pair<std::wstring, std::wstring>> m_attrs;
    std::vector<std::unique_ptr<CXmlElem>> m_children;
    CXmlElem* m_parent = nullptr;
    mutable std::set<std::wstring> m_missing;
};

/**
 * An XML document: one root element, read from and written to files and memory.
 *
 * Read are UTF-8 and UTF-16 (either byte order), each with or without byte-order mark. Anything damaged is refused as a
 * whole: text that is no valid UTF-8 or UTF-16, null characters, no or several root elements or text beside the root,
 * tags that do not match, an attribute given twice, more than 256 attributes, elements nested deeper than 200, more
 * than 64 MB. Comments, processing instructions and the document type are skipped; text that is only white space counts
 * only in an element that has nothing else. Line ends become a single line feed.
 */
class QORPUB_API CQorXml
{
  public:
    /** Makes an empty document. */
    CQorXml();
    ~CQorXml();
    CQorXml(const CQorXml&) = delete;
    CQorXml& operator=(const CQorXml&) = delete;

    /**
     * Reads a document from a file.
     * @return 0; ERROR_INVALID_DATA for a damaged document (see GetErrorText), ERROR_FILE_TOO_LARGE for a file of more
     *         than 64 MB, or the system's code when the file cannot be read. After a failure the document is empty.
     */
    DWORD Load(LPCWSTR path);

    /** Reads a document of @p size bytes from memory; results as Load. */
    DWORD LoadMemory(const void* data, size_t size);

    /**
     * Writes the document as UTF-8 with declaration and indentation, without byte-order mark. The file is replaced only
     * when everything has been written.
     * @return 0, ERROR_INVALID_DATA when there is no root, or the system's code.
     */
    DWORD Save(LPCWSTR path) const;

    /** Writes the document as UTF-8 into a string, as Save does; FALSE when there is no root or memory runs out. */
    BOOL SaveMemory(CStringA& text) const;

    /** The root element, owned by the document; null when the document is empty. */
    CXmlElem* GetRoot() const;

    /** Starts the document anew with an empty root element; null when @p name is no XML name. */
    CXmlElem* CreateRoot(LPCWSTR name);

    /** Empties the document. */
    void Clear();

    /** What was wrong with the last damaged document, in English, for logs; empty after a success. */
    LPCWSTR GetErrorText() const;
    /** Where the last damaged document was found damaged, in bytes from its start (after conversion to UTF-8). */
    size_t GetErrorOffset() const;

    /** Replaces the five characters & < > " ' by their entities (&amp; &lt; &gt; &quot; &apos;). */
    static void ReplaceEntityChar(CString& text);

  private:
    std::unique_ptr<CXmlElem> m_root;
    std::wstring m_error;
    size_t m_errorOffset = 0;
};
