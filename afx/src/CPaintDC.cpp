#include "vafx/CPaintDC.h"

#include "detail/Handles.h"
#include "vafx/CSimpleException.h"
#include "vafx/CWnd.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CPaintDC::CPaintDC(CWnd* pWnd)
    : m_ps{}
    , m_hWnd(vafx::detail::HandleOf(pWnd))
{
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        ::AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
