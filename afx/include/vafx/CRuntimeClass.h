#pragma once

#include "vafx/api.h"

#include <windows.h>

class CArchive;
class CObject;

/** What a CObject-derived class knows about itself at run time. One constant object per class, made by the
 *  IMPLEMENT_ macros; classes are compared by its address. */
struct VAFX_API CRuntimeClass {
    LPCSTR m_lpszClassName;                      ///< The class's name.
    int m_nObjectSize;                           ///< Bytes of an object, as sizeof gives them.
    UINT m_wSchema;                              ///< Schema number; 0xFFFF: not serialisable.
    CObject*(PASCAL* m_pfnCreateObject)();       ///< Default constructor on the heap; null: not creatable.
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)(); ///< The base's class; null for CObject.

    /** @return A new object, owned by the caller; null when the class has no dynamic creation or no memory.
     */
    CObject* CreateObject();

    /** @return A new object of the named class, owned by the caller; null when there is no such class. */
    static CObject* PASCAL CreateObject(LPCSTR lpszClassName);
    /** @overload */
    static CObject* PASCAL CreateObject(LPCWSTR lpszClassName);

    /** @return TRUE when this is @p pBaseClass or derived from it. */
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    /** Finds a class of any loaded module by its exact name. @return Null when there is none. */
    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
    /** @overload */
    static CRuntimeClass* PASCAL FromName(LPCWSTR lpszClassName);

    /** Writes schema and name to @p ar. */
    void Store(CArchive& ar) const;

    /** Reads what Store wrote. @param pwSchemaNum Receives the stored schema.
     *  @return The class; null when the name is unknown. A name that is too long throws badClass. */
    static CRuntimeClass* PASCAL Load(CArchive& ar, UINT* pwSchemaNum);
};

/** Enters a class into the table of FromName for as long as it exists. Works during static initialisation, in
 *  whatever order modules and sources initialise, and takes the class out again when its DLL is unloaded. */
class VAFX_API AFX_CLASSINIT
{
public:
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass) noexcept;
    ~AFX_CLASSINIT();

    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    friend struct CRuntimeClass;

    CRuntimeClass* m_class;
    AFX_CLASSINIT* m_next;
};
