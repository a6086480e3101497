#include "geo/CWyPt.h"

CWyPt::~CWyPt() = default;
