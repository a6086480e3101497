#include "geo/CArDb.h"

#include "display/CDspMHit.h"
#include "geo/CArKinds.h"
#include "geo/detail/Extents.h"
#include "geo/detail/GeoDrawing.h"
#include "geo/detail/PartNames.h"

using namespace vant::detail;

namespace
{

/** Calls each(area) for all areas of all categories, in their order, until it gives false. */
template <class Each>
void ForAreas(const CLstMgd<CArCat>& cats, Each each)
{
    for (CVantPtr* catPos = cats.GetHeadPos(); catPos;) {
        const CArCat* const cat = cats.GetNext(catPos);
        for (CVantPtr* pos = cat ? cat->GetHeadPos() : nullptr; pos;) {
            const CArea* const area = cat->GetNext(pos);
            if (area && !each(*area))
                return;
        }
    }
}

template <class Each>
void ForVertices(const CArea& area, Each each)
{
    for (CVantPtr* pos = area.GetHeadPos(); pos;) {
        if (const CV3* const vertex = area.GetNext(pos))
            each(*vertex);
    }
}

} // namespace

CArDb::CArDb() = default;
CArDb::CArDb(const CArDb& other) = default;
CArDb& CArDb::operator=(const CArDb& other) = default;

CArDb::~CArDb()
{
    PartNames::Forget(*this);
}

void CArDb::Draw(CDsp& dsp)
{
    GeoDrawing drawing(dsp);
    drawing.UsePen(mtrl);
    PartNames names(*this, dsp);
    unsigned number = 0;
    ForAreas(*this, [&](const CArea& area) {
        names.From(number, area.name);
        glLoadName(number++);
        ForVertices(area, [&](const CV3& vertex) { drawing.To(vertex); });
        drawing.DrawLine(dynamic_cast<const CArRt*>(&area) ? GL_LINE_STRIP : GL_LINE_LOOP);
        return true;
    });
}

void CArDb::GetInf(CMdlInf& inf)
{
    inf.name = L"Areas";
    inf.kind = L"Areas";
    Extents extents;
    ForAreas(*this, [&](const CArea& area) {
        ForVertices(area, [&](const CV3& vertex) { extents.Add(vertex); });
        return true;
    });
    extents.Tell(inf);
}

void CArDb::OnHit(CDsp&, CDspMHit& hit)
{
    CString name;
    if (const CString* const noted = PartNames::Find(*this, hit.part)) {
        name = *noted;
    } else {
        int number = 0;
        ForAreas(*this, [&](const CArea& area) {
            if (number++ != hit.part)
                return true;
            name = area.name;
            return false;
        });
    }
    if (!name.IsEmpty())
        hit.text = name;
}
