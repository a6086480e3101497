#include "vafx/CWindowDC.h"

#include "detail/Handles.h"
#include "vafx/CSimpleException.h"
#include "vafx/CWnd.h"

IMPLEMENT_DYNAMIC(CWindowDC, CDC)

CWindowDC::CWindowDC(CWnd* pWnd)
    : m_hWnd(vafx::detail::HandleOf(pWnd))
{
    if (!Attach(::GetWindowDC(m_hWnd)))
        ::AfxThrowResourceException();
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}
