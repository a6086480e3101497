#include "colour/CColTbl.h"

#include "colour/detail/Hsl.h"
#include "settings/CESet.h"

constinit CLstMgd<CColTbl> CColTbl::s_colTbls;
constexpr int CColTbl::mostEntries;

namespace
{

constexpr LPCWSTR collection = L"Colour Tables";
constexpr LPCWSTR objectType = L"ColTbl";
constexpr unsigned defaultSize = 256;

} // namespace

CColTbl::CColTbl()
    : name(L"Default Grey")
{
    cols.SetSize(defaultSize);
    GenGrey();
}

CColTbl::CColTbl(const CColTbl& other) = default;

CColTbl& CColTbl::operator=(const CColTbl& other)
{
    if (this == &other)
        return *this;
    cols = other.cols;
    name = other.name;
    file = other.file;
    source = const_cast<CColTbl*>(&other);
    return *this;
}

void CColTbl::GenGrey()
{
    const unsigned size = cols.GetSize();
    if (size == 0)
        return;
    constexpr unsigned white = 255;
    const unsigned step = white / size;
    for (unsigned i = 0; i < size; ++i) {
        const auto grey = static_cast<unsigned char>(i * step);
        *cols[i] = CRgb(grey, grey, grey);
    }
}

void CColTbl::GenBlend(const COLORREF*, int) {}

void CColTbl::Settings(CESetObj&) {}

void CColTbl::Rgb2Hsl(double r, double g, double b, double& h, double& s, double& l)
{
    const auto hsl = vant::detail::HslOf({r, g, b});
    h = hsl.h;
    s = hsl.s;
    l = hsl.l;
}

void CColTbl::Hsl2Rgb(double h, double s, double l, double& r, double& g, double& b)
{
    const auto rgb = vant::detail::RgbOf({h, s, l});
    r = rgb.r;
    g = rgb.g;
    b = rgb.b;
}

CColTbl* CColTbl::GetColTbl(const CString& tblName)
{
    for (CVantPtr* pos = s_colTbls.GetHeadPos(); pos;) {
        CColTbl* const tbl = s_colTbls.GetNext(pos);
        if (tbl && tbl->name == tblName)
            return tbl;
    }
    return nullptr;
}

void CColTbl::SaveSet(CESet& set)
{
    CESetCol* const col = set.AddCol(collection);
    for (CVantPtr* pos = s_colTbls.GetHeadPos(); pos;) {
        if (CColTbl* const tbl = s_colTbls.GetNext(pos))
            tbl->Settings(*col->AddObj(tbl->name, objectType));
    }
}

void CColTbl::LoadSet(CESet& set, int create)
{
    CESetCol* const col = set.GetCol(collection);
    if (!col)
        return;
    for (CVantPtr* pos = col->GetHeadPos(); pos;) {
        CESetObj* const obj = col->GetNext(pos);
        if (!obj || !create || GetColTbl(obj->m_name))
            continue;
        CColTbl unknown;
        unknown.name = obj->m_name;
        unknown.Settings(*obj);
    }
}
