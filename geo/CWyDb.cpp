#include "geo/CWyDb.h"

#include "display/CDspMHit.h"
#include "geo/detail/Extents.h"
#include "geo/detail/GeoDrawing.h"
#include "geo/detail/PartNames.h"

#include <utility>

using namespace vant::detail;

namespace
{

constexpr double symbolSize = 12; // units of 1/96 inch

/** Calls each(category, waypoint) for all waypoints of all categories, in their order. */
template <class Each>
void ForWyPts(const CLstMgd<CWyCat>& cats, Each each)
{
    for (CVantPtr* catPos = cats.GetHeadPos(); catPos;) {
        const CWyCat* const cat = cats.GetNext(catPos);
        for (CVantPtr* pos = cat ? cat->GetHeadPos() : nullptr; pos;) {
            if (const CWyPt* const wyPt = cat->GetNext(pos))
                each(*cat, *wyPt);
        }
    }
}

} // namespace

CWyDb::CWyDb() = default;
CWyDb::CWyDb(const CWyDb& other) = default;
CWyDb& CWyDb::operator=(const CWyDb& other) = default;

CWyDb::~CWyDb()
{
    PartNames::Forget(*this);
}

void CWyDb::Draw(CDsp& dsp)
{
    GeoDrawing drawing(dsp);
    drawing.UsePen(mtrl);
    PartNames names(*this, dsp);
    const CWyCat* last = nullptr;
    unsigned number = 0;
    ForWyPts(*this, [&](const CWyCat& cat, const CWyPt& wyPt) {
        if (std::exchange(last, &cat) != &cat)
            names.From(number, cat.name);
        glLoadName(number++);
        drawing.Diamond(wyPt.Pos(), symbolSize);
    });
}

void CWyDb::GetInf(CMdlInf& inf)
{
    inf.name = L"Waypoints";
    inf.kind = L"Waypoints";
    Extents extents;
    ForWyPts(*this, [&](const CWyCat&, const CWyPt& wyPt) { extents.Add(wyPt.Pos()); });
    extents.Tell(inf);
}

void CWyDb::OnHit(CDsp&, CDspMHit& hit)
{
    CString name;
    if (const CString* const noted = PartNames::Find(*this, hit.part)) {
        name = *noted;
    } else {
        int number = 0;
        ForWyPts(*this, [&](const CWyCat& cat, const CWyPt&) {
            if (number++ == hit.part)
                name = cat.name;
        });
    }
    if (!name.IsEmpty())
        hit.text = name;
}
