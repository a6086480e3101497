#include "geo/CRtCat.h"

#include "geo/detail/NameOrder.h"

CRtCat::CRtCat() = default;
CRtCat::CRtCat(const CRtCat& other) = default;
CRtCat& CRtCat::operator=(const CRtCat& other) = default;
CRtCat::~CRtCat() = default;

void CRtCat::DrawModel(CDsp&) {}

int CRtCat::MouseEvent(CDsp&, UINT, UINT, CPoint)
{
    return 0;
}

int CRtCat::operator<(const CRtCat& other) const
{
    return vant::detail::IsBefore(name, other.name);
}
