#include "geo/CRtDb.h"

#include "display/detail/GLState.h"
#include "geo/detail/Extents.h"

using namespace vant::detail;

CRtDb::CRtDb() = default;
CRtDb::CRtDb(const CRtDb& other) = default;
CRtDb& CRtDb::operator=(const CRtDb& other) = default;
CRtDb::~CRtDb() = default;

void CRtDb::Draw(CDsp& dsp)
{
    unsigned number = 0;
    for (CVantPtr* pos = GetHeadPos(); pos; ++number) {
        CRtCat* const cat = GetNext(pos);
        if (!cat)
            continue;
        const GLStateKept state;
        glLoadName(number);
        glColor4f(mtrl.diffuse.red, mtrl.diffuse.green, mtrl.diffuse.blue, mtrl.diffuse.alpha);
        cat->DrawModel(dsp);
    }
}

void CRtDb::GetInf(CMdlInf& inf)
{
    inf.name = L"Routes";
    inf.kind = L"Routes";
    Extents extents;
    for (CVantPtr* catPos = GetHeadPos(); catPos;) {
        const CRtCat* const cat = GetNext(catPos);
        for (CVantPtr* routePos = cat ? cat->GetHeadPos() : nullptr; routePos;) {
            const CRoute* const route = cat->GetNext(routePos);
            for (CVantPtr* pos = route ? route->GetHeadPos() : nullptr; pos;) {
                if (const CRtV3* const node = route->GetNext(pos))
                    extents.Add(node->Pos());
            }
        }
    }
    extents.Tell(inf);
}

int CRtDb::MouseEvent(CDsp& dsp, UINT msg, UINT flags, CPoint pt)
{
    for (CVantPtr* pos = GetHeadPos(); pos;) {
        CRtCat* const cat = GetNext(pos);
        if (const int done = cat ? cat->MouseEvent(dsp, msg, flags, pt) : 0)
            return done;
    }
    return 0;
}
