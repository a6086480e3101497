#pragma once

#include "vafx/CObject.h"

/** An object that receives commands: windows, threads, the application. */
class VAFX_API CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();
    ~CCmdTarget() override;
};
