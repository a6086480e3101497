#pragma once

#include "vafx/CDC.h"

class CWnd;

/** The device context of one WM_PAINT: begins the painting, and ends it when the object goes. */
class VAFX_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)

public:
    /** Throws CResourceException when there is no device context. */
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps; ///< What is to be painted.

protected:
    HWND m_hWnd;
};
