#include "demo/draw/FontSet.h"

#include <gtest/gtest.h>

namespace
{

long HeightOf(const CFont& font)
{
    LOGFONTW record{};
    ::GetObjectW(font.m_hObject, sizeof record, &record);
    return -record.lfHeight;
}

} // namespace

TEST(FontSet, ASetIsMadeForItsOwnScale)
{
    demo::FontSet bridge;
    bridge.Make(2.0, CDpi(144));
    const long depth = HeightOf(bridge.huge);
    EXPECT_GT(depth, HeightOf(bridge.dial));
    EXPECT_GT(HeightOf(bridge.big), HeightOf(bridge.value));
    demo::FontSet film;
    film.Make(1.0, CDpi());
    EXPECT_EQ(depth, HeightOf(bridge.huge)) << "another set's scale is its own";
    EXPECT_EQ(3 * HeightOf(film.huge), depth);
    EXPECT_EQ(3 * HeightOf(film.caption), 2 * HeightOf(bridge.caption)) << "grows with the monitor only";
}
