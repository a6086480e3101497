#include <afx.h>

#include "detail/SlimLock.h"

#include <cstring>
#include <new>

using vafx::detail::ExclusiveLock;
using vafx::detail::SharedLock;

namespace
{

// Both are constant-initialised, so they are ready before the first static object of any module.
constinit SRWLOCK g_classLock = SRWLOCK_INIT;
constinit AFX_CLASSINIT* g_firstClass = nullptr;

// Longer names come only from a damaged archive.
constexpr WORD maxClassName = 255;

} // namespace

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) noexcept
    : m_class(pNewClass)
    , m_next(nullptr)
{
    const ExclusiveLock locked(g_classLock);
    m_next = g_firstClass;
    g_firstClass = this;
}

AFX_CLASSINIT::~AFX_CLASSINIT()
{
    const ExclusiveLock locked(g_classLock);
    for (AFX_CLASSINIT** link = &g_firstClass; *link != nullptr; link = &(*link)->m_next) {
        if (*link == this) {
            *link = m_next;
            break;
        }
    }
}

CRuntimeClass* CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    if (lpszClassName == nullptr)
        return nullptr;
    const SharedLock locked(g_classLock);
    for (const AFX_CLASSINIT* entry = g_firstClass; entry != nullptr; entry = entry->m_next) {
        if (std::strcmp(entry->m_class->m_lpszClassName, lpszClassName) == 0)
            return entry->m_class;
    }
    return nullptr;
}

CRuntimeClass* CRuntimeClass::FromName(LPCWSTR lpszClassName)
{
    return FromName(CStringA(lpszClassName));
}

CObject* CRuntimeClass::CreateObject()
{
    if (m_pfnCreateObject == nullptr)
        return nullptr;
    try {
        return m_pfnCreateObject();
    } catch (const std::bad_alloc&) {
        return nullptr;
    } catch (CMemoryException* e) {
        e->Delete();
        return nullptr;
    }
}

CObject* CRuntimeClass::CreateObject(LPCSTR lpszClassName)
{
    CRuntimeClass* const found = FromName(lpszClassName);
    return found != nullptr ? found->CreateObject() : nullptr;
}

CObject* CRuntimeClass::CreateObject(LPCWSTR lpszClassName)
{
    return CreateObject(CStringA(lpszClassName));
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    for (const CRuntimeClass* c = this; c != nullptr;
         c = c->m_pfnGetBaseClass != nullptr ? c->m_pfnGetBaseClass() : nullptr) {
        if (c == pBaseClass)
            return TRUE;
    }
    return FALSE;
}

void CRuntimeClass::Store(CArchive& ar) const
{
    const auto length = static_cast<WORD>(std::strlen(m_lpszClassName));
    ar << static_cast<WORD>(m_wSchema) << length;
    ar.Write(m_lpszClassName, length);
}

CRuntimeClass* CRuntimeClass::Load(CArchive& ar, UINT* pwSchemaNum)
{
    WORD schema = 0;
    WORD length = 0;
    ar >> schema >> length;
    if (length > maxClassName)
        AfxThrowArchiveException(CArchiveException::badClass);
    char name[maxClassName + 1] = {};
    ar.EnsureRead(name, length);
    if (pwSchemaNum != nullptr)
        *pwSchemaNum = schema;
    return FromName(name);
}
