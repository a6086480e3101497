#include <afx.h>

#include "vafx/CCmdTarget.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget() = default;

CCmdTarget::~CCmdTarget() = default;
