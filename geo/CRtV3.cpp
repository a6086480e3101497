#include "geo/CRtV3.h"

CRtV3::~CRtV3() = default;
