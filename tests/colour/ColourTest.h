#pragma once

#include "colour/CColTbl.h"

#include <cstdint>
#include <ostream>
#include <vector>

inline void PrintTo(const CRgb& c, std::ostream* out)
{
    *out << "(" << int{c.red} << ", " << int{c.green} << ", " << int{c.blue} << ", " << int{c.alpha} << ")";
}

/** A colour as Canvas::At() gives it: 0xRRGGBB. */
inline std::uint32_t Pixel(const CRgb& c)
{
    return static_cast<std::uint32_t>(c.red << 16 | c.green << 8 | c.blue);
}

/** The entries of a table. */
std::vector<CRgb> Entries(const CColTbl& tbl);

/** Gives a table these entries. */
void SetEntries(CColTbl& tbl, const std::vector<CRgb>& entries);

/** Appends a table to the list of all tables. @return the table, which the list owns */
CColTbl* AddTable(const wchar_t* name, const std::vector<CRgb>& entries);

/** Four entries that cannot be mistaken for each other. */
extern const CRgb red, green, blue, white;
