#include "colour/ColourTest.h"

const CRgb red(200, 0, 0), green(0, 180, 0), blue(0, 0, 160), white(255, 255, 255);

std::vector<CRgb> Entries(const CColTbl& tbl)
{
    std::vector<CRgb> entries;
    for (unsigned i = 0; i < tbl.cols.GetSize(); ++i)
        entries.push_back(*tbl.cols[i]);
    return entries;
}

void SetEntries(CColTbl& tbl, const std::vector<CRgb>& entries)
{
    tbl.cols.SetSize(static_cast<unsigned>(entries.size()));
    for (unsigned i = 0; i < tbl.cols.GetSize(); ++i)
        *tbl.cols[i] = entries[i];
}

CColTbl* AddTable(const wchar_t* name, const std::vector<CRgb>& entries)
{
    auto* const tbl = new CColTbl;
    tbl->name = name;
    SetEntries(*tbl, entries);
    CColTbl::s_colTbls.AddTail(tbl);
    return tbl;
}
