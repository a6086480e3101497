#include <afxmt.h>

IMPLEMENT_DYNAMIC(CSyncObject, CObject)

CSyncObject::CSyncObject(LPCWSTR)
    : m_hObject(nullptr)
{
}

CSyncObject::~CSyncObject()
{
    if (m_hObject != nullptr)
        ::CloseHandle(m_hObject);
}

BOOL CSyncObject::Lock(DWORD dwTimeout)
{
    const DWORD result = ::WaitForSingleObject(m_hObject, dwTimeout);
    // An owner that ended without giving the object back hands it on.
    return result == WAIT_OBJECT_0 || result == WAIT_ABANDONED ? TRUE : FALSE;
}

BOOL CSyncObject::Unlock(LONG, LPLONG)
{
    return TRUE;
}
