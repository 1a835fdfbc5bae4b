#pragma once

/** @file
 *  CObject, the root of the framework's classes, and their run-time class information. */

#include <afx/diag.h>

/** What is known at run time about a class that was declared with DECLARE_DYNAMIC or DECLARE_DYNCREATE. */
struct CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;                           ///< in bytes
    UINT m_wSchema;                              ///< schema number of a stored class, 0xFFFF when it is not stored
    CObject*(AFXAPI* m_pfnCreateObject)();       ///< null when the class cannot be created by name
    CRuntimeClass*(AFXAPI* m_pfnGetBaseClass)(); ///< null for CObject

    /** Creates an object on the heap.
     *  @return the object, owned by the caller; null when the class cannot be created or memory is short */
    AFX_LIB CObject* CreateObject();
    AFX_LIB BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    /** Finds a class by its name in the current module, the extension modules of its library list, and the framework.
     *  @return the class, or null when it is unknown */
    AFX_LIB static CRuntimeClass* AFXAPI FromName(LPCSTR lpszClassName);
    AFX_LIB static CRuntimeClass* AFXAPI FromName(LPCWSTR lpszClassName);
    /** Finds a class by name and creates an object of it; null when either fails. */
    AFX_LIB static CObject* AFXAPI CreateObject(LPCSTR lpszClassName);
    AFX_LIB static CObject* AFXAPI CreateObject(LPCWSTR lpszClassName);
};

/** Enters a class in the list of its module for as long as the module is loaded. */
struct AFX_CLASSINIT
{
    AFX_LIB explicit AFX_CLASSINIT(CRuntimeClass* pNewClass);
    AFX_LIB ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

  private:
    friend struct AfxStateAccess;
    CRuntimeClass* m_pClass;
    HMODULE m_hModule;
    class AFX_MODULE_STATE* m_pOwnerState; // state that was current when the class was entered
    AFX_CLASSINIT* m_pNextInit = nullptr;
};

/** Root of the framework's classes: run-time class, diagnostics, no copying. */
class AFX_LIB CObject
{
  public:
    static const CRuntimeClass classCObject;
    static CRuntimeClass* AFXAPI GetThisClass();
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject();

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    /** Tells whether the object is of a class or of one derived from it. */
    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    BOOL IsSerializable() const;
    /** Stores or restores the object; this class has nothing to store. */
    virtual void Serialize(CArchive& ar);

    /** Asserts that the object is sound. */
    virtual void AssertValid() const;
    /** Writes the object's state. */
    virtual void Dump(CDumpContext& dc) const;

    /* Throws CMemoryException* when memory is short. */
    void* operator new(std::size_t nSize);
    void* operator new(std::size_t nSize, LPCSTR lpszFileName, int nLine);
    void* operator new(std::size_t, void* p) noexcept { return p; }
    void operator delete(void* p) noexcept;
    void operator delete(void* p, LPCSTR lpszFileName, int nLine) noexcept;
    void operator delete(void*, void*) noexcept {}

  protected:
    CObject();
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                                                                                    \
  public:                                                                                                              \
    static const CRuntimeClass class##class_name;                                                                      \
    static CRuntimeClass* AFXAPI GetThisClass();                                                                       \
    CRuntimeClass* GetRuntimeClass() const override;                                                                   \
                                                                                                                       \
  protected:                                                                                                           \
    static CRuntimeClass* AFXAPI _GetBaseClass();

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
  public:                                                                                                              \
    static CObject* AFXAPI CreateObject();

#define AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                                       \
    CRuntimeClass* AFXAPI class_name::_GetBaseClass()                                                                  \
    {                                                                                                                  \
        return RUNTIME_CLASS(base_class_name);                                                                         \
    }                                                                                                                  \
    const CRuntimeClass class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class class_name)),      \
                                                         wSchema, pfnNew, &class_name::_GetBaseClass};                 \
    CRuntimeClass* AFXAPI class_name::GetThisClass()                                                                   \
    {                                                                                                                  \
        return const_cast<CRuntimeClass*>(&class_name::class##class_name);                                             \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                                 \
    {                                                                                                                  \
        return RUNTIME_CLASS(class_name);                                                                              \
    }                                                                                                                  \
    static const AFX_CLASSINIT _init_##class_name(RUNTIME_CLASS(class_name));

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* AFXAPI class_name::CreateObject()                                                                         \
    {                                                                                                                  \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, class_name::CreateObject)

/** Casts down; null when the object is null or not of the class. */
AFX_LIB CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
/** Casts down; asserts that a non-null object is of the class. */
AFX_LIB CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject);

#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    (static_cast<class_name*>(::AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#ifdef _DEBUG
#define STATIC_DOWNCAST(class_name, object)                                                                            \
    (static_cast<class_name*>(::AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))
#else
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
#endif
