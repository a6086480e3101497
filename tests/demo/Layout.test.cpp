#include "demo/detail/Layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using demo::Box;
using demo::Layout;

namespace
{

std::vector<Box> Parts(const Layout& l)
{
    std::vector<Box> parts{l.header,   l.alarms, l.depth,  l.track, l.heading,
                           l.position, l.wind,   l.motion, l.setup, l.footer};
    parts.insert(parts.end(), l.docks.begin(), l.docks.end());
    return parts;
}

} // namespace

TEST(Layout, PartsFillTheAreaWithoutOverlap)
{
    const struct {
        int width;
        int height;
    } areas[] = {
        {1500, 980}, {1358, 735}, {1592, 1165}, {Layout::leastWidth, Layout::leastHeight}, {3840, 2100}};
    for (const auto& area : areas) {
        SCOPED_TRACE(testing::Message() << area.width << " x " << area.height);
        const Layout layout = Layout::Of(area.width, area.height);
        const std::vector<Box> parts = Parts(layout);
        const Box all{0, 0, area.width, area.height};
        for (std::size_t i = 0; i < parts.size(); ++i) {
            EXPECT_EQ(parts[i], Overlap(parts[i], all)) << "part " << i << " is inside";
            const bool isLeftOut = area.width < 1700 && i + 2 >= parts.size();
            EXPECT_GE(parts[i].Width(), isLeftOut ? 0 : 170) << i;
            EXPECT_GE(parts[i].Height(), isLeftOut ? 0 : 26) << i;
            for (std::size_t k = 0; k < i; ++k) {
                const Box both = Overlap(parts[i], parts[k]);
                EXPECT_EQ(0, both.Width() * both.Height()) << "parts " << k << " and " << i;
            }
        }
        EXPECT_EQ(layout.depth.right, layout.track.right);
        EXPECT_EQ(std::max(layout.setup.bottom, layout.docks[3].bottom), layout.docks[0].bottom);
        EXPECT_LT(layout.motion.right, layout.setup.left);
    }
}

TEST(Layout, ConsolesAreWideEnoughToBeRead)
{
    constexpr int least = 420; // a number, a time and some words
    const Layout usual = Layout::Of(1500, 980);
    EXPECT_GE(usual.docks[0].Width(), least);
    EXPECT_GE(usual.docks[1].Width(), least);
    EXPECT_EQ(0, usual.docks[2].Width()) << "there is no room for the third";
    EXPECT_EQ(usual.setup.Width(), usual.docks[3].Width()) << "the last one is under the set-up";
    const Layout wide = Layout::Of(1920, 700);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_GE(wide.docks[i].Width(), least) << i;
}

TEST(Layout, TextGrowsWithTheAreaAndASmallOneCountsAsTheLeast)
{
    EXPECT_GT(Layout::Of(3000, 2000).scale, 1.5);
    EXPECT_LT(Layout::Of(1358, 735).scale, 0.8);
    const Layout least = Layout::Of(Layout::leastWidth, Layout::leastHeight);
    EXPECT_EQ(least.footer, Layout::Of(10, 0).footer);
    EXPECT_EQ(least.scale, Layout::Of(-5, -5).scale);
    EXPECT_GT(least.scale, 0.5);
}
