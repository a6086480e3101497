#include "vafx/CClientDC.h"

#include "detail/Handles.h"
#include "vafx/CSimpleException.h"
#include "vafx/CWnd.h"

IMPLEMENT_DYNAMIC(CClientDC, CDC)

CClientDC::CClientDC(CWnd* pWnd)
    : m_hWnd(vafx::detail::HandleOf(pWnd))
{
    if (!Attach(::GetDC(m_hWnd)))
        ::AfxThrowResourceException();
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}
