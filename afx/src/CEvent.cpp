#include <afxmt.h>

IMPLEMENT_DYNAMIC(CEvent, CSyncObject)

CEvent::CEvent(BOOL bInitiallyOwn, BOOL bManualReset, LPCWSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName)
{
    m_hObject = ::CreateEventW(lpsaAttribute, bManualReset, bInitiallyOwn, lpszName);
    if (m_hObject == nullptr)
        AfxThrowResourceException();
}

CEvent::~CEvent() = default;

BOOL CEvent::SetEvent()
{
    return ::SetEvent(m_hObject);
}

BOOL CEvent::PulseEvent()
{
    return ::PulseEvent(m_hObject);
}

BOOL CEvent::ResetEvent()
{
    return ::ResetEvent(m_hObject);
}

BOOL CEvent::Unlock()
{
    return TRUE;
}
