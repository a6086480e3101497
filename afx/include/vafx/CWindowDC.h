#pragma once

#include "vafx/CDC.h"

class CWnd;

/** The device context of a whole window with its frame, for as long as the object lives. */
class VAFX_API CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)

public:
    /** @param pWnd Null: the whole screen. Throws CResourceException when there is no device context. */
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};
