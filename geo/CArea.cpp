#include "geo/CArea.h"

CArea::CArea() = default;
CArea::CArea(const CArea& other) = default;
CArea& CArea::operator=(const CArea& other) = default;
CArea::~CArea() = default;

void CArea::ProcTgt(const CArProcTgt&, double, double, void (CObject::*)(double)) {}

int CArea::Inside(double, double)
{
    return 0;
}

double CArea::RngToBound(const CV3&, const CV3&)
{
    return 0.0;
}

double CArea::RngToNode(const CV3&, const CV3&)
{
    return 0.0;
}
