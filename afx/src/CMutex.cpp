#include <afxmt.h>

IMPLEMENT_DYNAMIC(CMutex, CSyncObject)

CMutex::CMutex(BOOL bInitiallyOwn, LPCWSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName)
{
    m_hObject = ::CreateMutexW(lpsaAttribute, bInitiallyOwn, lpszName);
    if (m_hObject == nullptr)
        AfxThrowResourceException();
}

CMutex::~CMutex() = default;

BOOL CMutex::Unlock()
{
    return ::ReleaseMutex(m_hObject);
}
