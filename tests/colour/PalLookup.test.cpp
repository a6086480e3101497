#include "colour/detail/PalLookup.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace vant::detail;

namespace
{

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(PalLookupTest, ARangeHasOneStepMoreThanEntries)
{
    const PalRange range{0, 255, 256, false};
    PalRange wrapped = range;
    wrapped.wrap = true;
    const struct {
        double value;
        std::size_t entry;
        std::size_t wrapped;
    } cases[] = {
        {0, 0, 0},
        {0.5, 1, 1},
        {254.4, 255, 255},
        {255, 255, 0},
        {-0.5, 0, 255},
        {-1, 0, 255},
        {-255, 0, 0}, // exact negative multiples of the table
        {-510, 0, 0},
        {-256, 0, 255},
        {infinite, 255, noEntry},
        {-infinite, 0, noEntry},
        {nan, noEntry, noEntry},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(EntryOf(c.value, range), c.entry) << c.value;
        EXPECT_EQ(EntryOf(c.value, wrapped), c.wrapped) << c.value;
    }
}

TEST(PalLookupTest, AnEmptyOrBoundlessRangeHasNoEntries)
{
    EXPECT_EQ(EntryOf(5, {5, 5, 256, false}), noEntry);
    EXPECT_EQ(EntryOf(5, {0, 10, 0, true}), noEntry);
    EXPECT_EQ(EntryOf(5, {0, nan, 256, true}), noEntry);
    EXPECT_LT(EntryOf(-1e300, {0, 1, 3, true}), 3u);
    // A range that is beyond a double, and one that runs backwards.
    EXPECT_EQ(EntryOf(5, {-1e308, 1e308, 256, false}), 0u);
    EXPECT_EQ(EntryOf(255, {255, 0, 256, false}), 0u);
    EXPECT_EQ(EntryOf(0, {255, 0, 256, false}), 255u);
}

TEST(PalLookupTest, ManyValuesAtOnceGetWhatEachGets)
{
    std::vector<double> values = {nan, infinite, -infinite, 1e300, -1e300, 0.5, 255, -0.5};
    for (int i = -600; i < 900; ++i)
        values.push_back(i * 0.37);
    for (const PalRange& range :
         {PalRange{0, 255, 256, false}, PalRange{0, 255, 256, true}, PalRange{7, -3, 5, false},
          PalRange{1, 1, 5, false}, PalRange{0, 1, 0, false}, PalRange{nan, 1, 5, false},
          PalRange{0, 1, 1, false}}) {
        std::vector<std::uint32_t> table(range.size + 1);
        for (std::size_t i = 0; i < table.size(); ++i)
            table[i] = 0xFF000000U + static_cast<std::uint32_t>(i);
        for (const std::size_t count : {values.size(), values.size() - 1, std::size_t{1}, std::size_t{0}}) {
            std::vector<std::uint32_t> colours(count + 1, 7);
            FillColours(std::span(values).first(count), range, table,
                        std::as_writable_bytes(std::span(colours)));
            for (std::size_t i = 0; i < count; ++i) {
                const std::size_t entry = EntryOf(values[i], range);
                ASSERT_EQ(colours[i], table[entry == noEntry ? range.size : entry]) << values[i];
            }
            EXPECT_EQ(colours[count], 7u);
        }
    }
}

} // namespace
