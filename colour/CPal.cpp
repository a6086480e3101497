#include "colour/CPal.h"

#include "colour/detail/PalLookup.h"
#include "settings/CESet.h"

#include <cstring>
#include <vector>

using namespace vant::detail;

IMPLEMENT_DYNCREATE(CPal, CVantWnd)

constinit CLstPtr<CPal*> CPal::s_pals;
constexpr int CPal::changedMsg;
constexpr LPCWSTR CPal::typeName;
constexpr unsigned int CPal::unlisted;

namespace
{

constexpr LPCWSTR collection = L"Palettes";
constexpr LPCWSTR firstTable = L"Depths";

PalRange RangeOf(const CPal& pal)
{
    return {pal.start, pal.end, pal.working.cols.GetSize(), pal.wrap != 0};
}

const CRgb& ColourOf(const CPal& pal, double value)
{
    const std::size_t entry = EntryOf(value, RangeOf(pal));
    return entry == noEntry ? pal.fallback : *pal.working.cols[static_cast<unsigned>(entry)];
}

std::uint32_t Bits(const CRgb& colour)
{
    std::uint32_t bits = 0;
    static_assert(sizeof bits == sizeof colour);
    std::memcpy(&bits, &colour, sizeof bits);
    return bits;
}

} // namespace

CPal::CPal()
    : CPal(0U)
{
}

CPal::CPal(unsigned int flags)
{
    master.source = CColTbl::GetColTbl(firstTable);
    if (!(flags & unlisted))
        s_pals.AddTail(this);
}

CPal::~CPal()
{
    s_pals.RemoveAt(s_pals.Find(this));
}

void CPal::GetCol(double value, CRgb& colour) const
{
    colour = ColourOf(*this, value);
}

COLORREF CPal::GetCol(double value) const
{
    const CRgb& colour = ColourOf(*this, value);
    return RGB(colour.red, colour.green, colour.blue);
}

void CPal::GetCols(std::span<const double> values, std::span<CRgb> colours) const
{
    const PalRange range = RangeOf(*this);
    std::vector<std::uint32_t> table(range.size + 1, Bits(fallback));
    for (std::size_t i = 0; i < range.size; ++i)
        table[i] = Bits(*working.cols[static_cast<unsigned>(i)]);
    FillColours(values, range, table, std::as_writable_bytes(colours));
}

void CPal::Scroll(int by)
{
    offset = by;
    const unsigned size = master.cols.GetSize();
    working.cols.SetSize(size);
    if (size > 0) {
        const auto period = static_cast<long long>(size);
        auto to = static_cast<unsigned>((by % period + period) % period);
        for (unsigned i = 0; i < size; ++i) {
            *working.cols[to] = *master.cols[i];
            to = to + 1 < size ? to + 1 : 0;
        }
    }
    NotifyWnd(changedMsg, this);
    if (m_hWnd)
        Invalidate();
}

void CPal::UpdatePal()
{
    Scroll(offset);
    UpdCtrls();
}

/** Makes a loaded table the master table. @return whether there is one of that name */
bool CPal::Choose(const CString& colTbl)
{
    const CColTbl* const tbl = CColTbl::GetColTbl(colTbl);
    if (tbl)
        master = *tbl;
    return tbl != nullptr;
}

void CPal::SetDefaults()
{
    start = 0.0;
    wrap = 0;
    end = 255.0;
    offset = 0;
    Scroll(0);
}

void CPal::SetOption(const CString& option, const CString& value)
{
    CVantWnd::SetOption(option, value);
    if (option != L"Load" || !Choose(value))
        return;
    tblName = value;
    Scroll(offset);
}

void CPal::Settings(CESetObj& obj)
{
    CVantWnd::Settings(obj);
    obj.Item(L"Start", start);
    obj.Item(L"End", end);
    obj.Item(L"Wrap", wrap);
    obj.Item(L"Offset", offset);
    CString chosen = obj.IsStoring() ? master.name : CString();
    obj.Item(L"ColTbl", chosen);
    if (obj.IsStoring())
        return;
    Choose(chosen);
    UpdatePal();
}

CPal* CPal::GetPal(const CString& palName)
{
    for (CVantPtr* pos = s_pals.GetHeadPos(); pos;) {
        CPal* const pal = s_pals.GetNext(pos);
        if (pal->name == palName)
            return pal;
    }
    return nullptr;
}

void CPal::SaveSet(CESet& set)
{
    CESetCol* const col = set.AddCol(collection);
    for (CVantPtr* pos = s_pals.GetHeadPos(); pos;) {
        CPal* const pal = s_pals.GetNext(pos);
        pal->Settings(*col->AddObj(pal->name, typeName));
    }
}

void CPal::LoadSet(CESet& set, int)
{
    CESetCol* const col = set.GetCol(collection);
    if (!col)
        return;
    for (CVantPtr* pos = col->GetHeadPos(); pos;) {
        CESetObj* const obj = col->GetNext(pos);
        if (CPal* const pal = obj ? GetPal(obj->m_name) : nullptr)
            pal->Settings(*obj);
    }
}
