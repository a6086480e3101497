#include "demo/detail/FramePace.h"
#include "demo/detail/Glide.h"
#include "demo/detail/Shot.h"
#include "demo/detail/TourPlan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cwchar>

using namespace demo;

TEST(TourPlan, AViewerHasTimeToReadEveryCaption)
{
    constexpr double lettersPerSecond = 15.0; // of a reader who also looks at the picture
    constexpr std::size_t longest = 70;       // letters beside the name at the right
    ASSERT_EQ(0.0, TourChapters().front().begin);
    for (std::size_t i = 0; i < TourChapters().size(); ++i) {
        const Chapter& chapter = TourChapters()[i];
        const std::size_t letters = std::wcslen(chapter.caption);
        EXPECT_GE(ChapterEnd(i) - chapter.begin,
                  std::max(3.0, static_cast<double>(letters) / lettersPerSecond))
            << i;
        EXPECT_LE(letters, longest) << i;
        EXPECT_EQ(i, ChapterAt(chapter.begin));
        EXPECT_EQ(i, ChapterAt(ChapterEnd(i) - 1e-6));
    }
    EXPECT_EQ(0U, ChapterAt(-1.0));
    EXPECT_EQ(TourChapters().size() - 1, ChapterAt(1e9));
    EXPECT_EQ(tourLength, ChapterEnd(TourChapters().size() - 1));
}

TEST(Glide, GoesCalmlyAndArrives)
{
    const Glide way = Glide::Between({100, 50}, {1300, 850}, 7.0);
    EXPECT_LE(way.duration, 1.1) << "however far";
    EXPECT_LT(Glide::Between({0, 0}, {20, 0}, 0.0).duration, 0.4) << "a short way is short";
    EXPECT_EQ(100.0, way.At(0.0).x) << "not before its time";
    EXPECT_EQ(1300.0, way.At(7.0 + way.duration).x);
    EXPECT_EQ(850.0, way.At(1e9).y);
    double last = 100.0;
    double fastest = 0.0;
    constexpr int steps = 20;
    for (int i = 1; i <= steps; ++i) {
        const double x = way.At(7.0 + way.duration * i / steps).x;
        EXPECT_GE(x, last) << "never back";
        fastest = std::max(fastest, x - last);
        last = x;
    }
    EXPECT_LT(fastest, 1.6 * 1200 / steps) << "no jump";
    EXPECT_LT(way.At(7.0 + way.duration / steps).x - 100.0, 0.3 * fastest) << "it starts slowly";
    EXPECT_EQ(5.0, (Glide{{1, 1}, {5, 5}, 2.0, 0.0}).At(2.0).x) << "one that takes no time";
}

TEST(Shot, ShowsAllOfWhatIsWantedInTheShapeOfTheWhole)
{
    const Box whole{46, 0, 1554, 1200};
    const Box wanted[] = {{46, 864, 594, 1200},  {1200, 110, 1554, 830}, {500, 400, 510, 410},
                          {46, 900, 1554, 1200}, {-100, -100, 10, 10},   whole};
    for (const Box& box : wanted) {
        SCOPED_TRACE(testing::Message() << box.left << ' ' << box.top);
        const Box shot = ShotOf(box, whole, 800);
        EXPECT_EQ(shot, Overlap(shot, whole)) << "nothing beside the windows";
        EXPECT_EQ(Overlap(box, whole), Overlap(box, shot));
        EXPECT_GE(shot.Width(), 800) << "not blown up";
        EXPECT_NEAR(1508.0 / 1200.0, static_cast<double>(shot.Width()) / shot.Height(), 0.005);
    }
    EXPECT_EQ(Box{}, ShotOf(wanted[0], Box{}, 800));
    EXPECT_EQ(whole, Between({0, 0, 1, 1}, whole, 1.0));
    EXPECT_EQ((Box{5, 5, 15, 15}), Between({0, 0, 10, 10}, {10, 10, 20, 20}, 0.5));
}

TEST(FramePace, AFilmIsAsLongAsTheTourOnAnyMachine)
{
    for (const double step : {0.01, 0.05, 0.3, 2.7, 100.0}) {
        FramePace pace(8, 60.0);
        for (double t = 0.0; t < 60.0 + step; t += step) {
            const int due = pace.Due(t);
            pace.Note(due);
            EXPECT_LE(std::abs(pace.Written() - std::min(t * 8.0, 480.0)), 1.0 + 1e-6)
                << "the film keeps up with the clock at " << t;
            EXPECT_EQ(0, pace.Due(t)) << "once";
        }
        EXPECT_EQ(480, pace.Written()) << step;
        EXPECT_EQ(0, pace.Due(1e12));
    }
    EXPECT_EQ(0, FramePace(8, 60.0).Due(-1.0));
}
