#pragma once

#include "vafx/CDC.h"

class CWnd;

/** The device context of a window's client area, for as long as the object lives. */
class VAFX_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    /** @param pWnd Null: the whole screen. Throws CResourceException when there is no device context. */
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};
