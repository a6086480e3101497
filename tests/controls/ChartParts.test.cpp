// The parts that a chart consists of, without a window.
#include "controls/detail/ChartAxis.h"
#include "controls/detail/ChartView.h"
#include "controls/detail/PixelCanvas.h"
#include "controls/detail/SamplePyramid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

using namespace testing;
using namespace vant::detail;

namespace
{

constexpr double noValue = std::numeric_limits<double>::quiet_NaN();
constexpr std::array si = {0.1, 0.15, 0.2, 0.25, 0.5, 0.75};
constexpr std::array us = {0.1, 0.2, 0.5};

MinMax Slowly(const SamplePyramid& samples, SamplePyramid::Index from, SamplePyramid::Index to)
{
    MinMax result;
    for (auto i = std::max(from, samples.First()); i < std::min(to, samples.End()); ++i)
        result.Add(samples.Value(i));
    return result;
}

std::vector<std::wstring> Labels(const std::vector<Tick>& ticks)
{
    std::vector<std::wstring> labels;
    for (const Tick& tick : ticks)
        labels.push_back(tick.label);
    return labels;
}

} // namespace

TEST(SamplePyramidTest, FindsTheExtremesOfAnyStretchWhateverWasOverwritten)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> values(-1000, 1000);
    for (const std::size_t capacity : {1U, 15U, 16U, 17U, 300U, 4096U, 5001U}) {
        SamplePyramid samples(capacity);
        for (int i = 0; i < 12000; ++i) {
            samples.Add(i, i % 7 == 3 ? noValue : values(random));
            if (i % 97 != 0 && i < 11900)
                continue;
            const auto from = samples.First() + random() % samples.Count();
            const auto to = from + random() % (samples.Count() + 1);
            ASSERT_EQ(samples.Range(from, to), Slowly(samples, from, to)) << capacity << " at " << i;
        }
        EXPECT_EQ(samples.Count(), capacity);
        EXPECT_EQ(samples.Range(0, ~SamplePyramid::Index{0}),
                  Slowly(samples, samples.First(), samples.End()));
    }
}

TEST(SamplePyramidTest, FindsSamplesByTheirTime)
{
    SamplePyramid samples(4);
    EXPECT_EQ(samples.Nearest(1), samples.End());
    for (const double t : {0.0, 1.0, 2.0, 2.0, 5.0})
        samples.Add(t, t);
    EXPECT_EQ(samples.From(-1), 1U) << "the first one is gone";
    EXPECT_EQ(samples.From(2), 2U);
    EXPECT_EQ(samples.After(2), 4U);
    EXPECT_EQ(samples.From(6), samples.End());
    EXPECT_EQ(samples.Nearest(3), 3U);
    EXPECT_EQ(samples.Nearest(4), 4U);
    EXPECT_EQ(samples.Nearest(99), 4U);
    EXPECT_EQ(samples.Nearest(-99), 1U);
}

TEST(SamplePyramidTest, PutsNoSpikeIntoAWrongColumnAndLosesNone)
{
    constexpr int columns = 100;
    constexpr int perColumn = 5000;
    SamplePyramid samples(columns * perColumn);
    for (int i = 0; i < columns * perColumn + 777; ++i)
        samples.Add(i, i % 40000 == 12345 ? 1000 : std::sin(i * 0.01));
    std::vector<MinMax> found(columns);
    samples.Columns(777, perColumn, found);
    for (int column = 0; column < columns; ++column) {
        // A quarter of a column on either side may count.
        const auto from = static_cast<SamplePyramid::Index>(777 + column * perColumn);
        const MinMax exact = Slowly(samples, from, from + perColumn);
        const auto& values = found[static_cast<std::size_t>(column)];
        const MinMax around = Slowly(samples, from - std::min<SamplePyramid::Index>(from, perColumn / 4),
                                     from + perColumn * 5 / 4);
        EXPECT_NEAR(values.min, -1, 1e-3);
        EXPECT_LE(values.max, around.max) << column;
        EXPECT_TRUE(exact.max < 1000 || values.max == 1000 ||
                    (column > 0 && found[static_cast<std::size_t>(column - 1)].max == 1000))
            << column;
    }

    // Bursts, with long pauses between: each sample is where its time says.
    SamplePyramid bursts(100000);
    for (int burst = 0; burst < 10; ++burst)
        for (int i = 0; i < 10000; ++i)
            bursts.Add(burst * 100.0 + i * 1e-4, burst);
    bursts.Columns(0, 10, found);
    for (std::size_t column = 0; column < columns; ++column) {
        EXPECT_EQ(found[column].IsEmpty(), column % 10 != 0) << column;
        if (column % 10 == 0) {
            const auto burst = static_cast<double>(column / 10);
            EXPECT_EQ(found[column], (MinMax{burst, burst}));
        }
    }
}

TEST(ChartAxisTest, TakesRoundSteps)
{
    EXPECT_DOUBLE_EQ(RoundStepOf(si, 1), 1);
    EXPECT_DOUBLE_EQ(RoundStepOf(si, 1.01), 2) << "multiples of 1.5 are not round";
    EXPECT_DOUBLE_EQ(RoundStepOf(si, 2.01), 2.5);
    EXPECT_DOUBLE_EQ(RoundStepOf(us, 2.01), 5);
    EXPECT_DOUBLE_EQ(RoundStepOf(si, 0.0061), 0.01);
    EXPECT_DOUBLE_EQ(RoundStepOf(si, 8e12), 1e13);
    EXPECT_EQ(RoundStepOf(si, noValue), 1);
    EXPECT_EQ(RoundStepOf(si, 0), 1);
}

TEST(ChartAxisTest, FitsTheRangeAndChangesItSeldom)
{
    const AxisRange first = FitRange(si, {0.3, 18.2}, {}, 5);
    EXPECT_EQ(first, (AxisRange{0, 20}));
    EXPECT_EQ(FitRange(si, {4, 15}, first, 5), first) << "more than half of it";
    EXPECT_EQ(FitRange(si, {4, 21}, first, 5).max, 25) << "grows at once";
    EXPECT_LT(FitRange(si, {4, 9}, first, 5).Length(), 10);
    const AxisRange flat = FitRange(si, {100, 100}, {0, 0}, 4);
    EXPECT_LT(flat.min, 100);
    EXPECT_GT(flat.max, 100);
    EXPECT_LT(flat.Length(), 30);
    EXPECT_EQ(FitRange(si, {0, 0}, {0, 0}, 4).min, -1);
    EXPECT_EQ(FitRange(si, {noValue, 1}, first, 4), first);
    EXPECT_EQ(FitRange(si, {-1e308, 1e308}, {0, 0}, 4), AxisRange());
}

TEST(ChartAxisTest, LabelsValuesWithTheDecimalsOfTheStep)
{
    EXPECT_THAT(Labels(ValueTicks(si, {-0.3, 0.3}, 4)), ElementsAre(L"-0.2", L"0.0", L"0.2"));
    EXPECT_THAT(Labels(ValueTicks(si, {0, 20}, 5)), ElementsAre(L"0", L"5", L"10", L"15", L"20"));
    EXPECT_THAT(Labels(ValueTicks(us, {0, 2e6}, 2)), ElementsAre(L"0", L"1000000", L"2000000"));
    EXPECT_THAT(ValueTicks(si, {5, 5}, 4), IsEmpty());
    EXPECT_THAT(ValueTicks(si, {1e15, 1e15 + 0.25}, 1000000), SizeIs(Lt(1001U)))
        << "steps below the last digit";
}

TEST(ChartAxisTest, LabelsTimesWithRoundOnes)
{
    EXPECT_THAT(Labels(TimeTicks({40, 100}, 100, TimeLabels::Relative, 6)),
                ElementsAre(L"-60 s", L"-50 s", L"-40 s", L"-30 s", L"-20 s", L"-10 s", L"0 s"));
    EXPECT_THAT(Labels(TimeTicks({-200, 100}, 100, TimeLabels::Relative, 5)),
                ElementsAre(L"-5 min", L"-4 min", L"-3 min", L"-2 min", L"-60 s", L"0 s"));
    EXPECT_THAT(Labels(TimeTicks({-80, 100}, 100, TimeLabels::Relative, 6)),
                ElementsAre(L"-3:00 min", L"-2:30 min", L"-2:00 min", L"-90 s", L"-60 s", L"-30 s", L"0 s"));
    EXPECT_THAT(Labels(TimeTicks({0.5, 1}, 1, TimeLabels::Relative, 2)), ElementsAre(L"-0.5 s", L"0.0 s"));

    constexpr double noon = 60 * 86400 + 43200; // 1 March 1980, a leap year
    EXPECT_THAT(Labels(TimeTicks({noon - 1, noon + 11}, 0, TimeLabels::Clock, 3)),
                ElementsAre(L"12:00:00", L"12:00:05", L"12:00:10"));
    EXPECT_THAT(Labels(TimeTicks({noon + 36000, noon + 50400}, 0, TimeLabels::Clock, 4)),
                ElementsAre(L"22:00", L"23:00", L"2 Mar", L"01:00", L"02:00"));
    EXPECT_THAT(Labels(TimeTicks({noon, noon + 0.2}, 0, TimeLabels::Clock, 2)),
                ElementsAre(L"12:00:00.0", L"12:00:00.1", L"12:00:00.2"));
    EXPECT_EQ(TimeText(noon + 59.96, noon, TimeLabels::Clock, 0.1), L"12:01:00.0") << "never 60 seconds";
    EXPECT_EQ(TimeText(noon - 86400, noon, TimeLabels::Clock, 5), L"29 Feb 12:00:00");
    EXPECT_THAT(TimeTicks({1e300, 2e300}, 0, TimeLabels::Clock, 3), SizeIs(Le(4U))) << "no date there";

    EXPECT_EQ(SpanText(0.25), L"250 ms");
    EXPECT_EQ(SpanText(90), L"90 s");
    EXPECT_EQ(SpanText(7200), L"2 h");
}

TEST(ChartViewTest, StaysWithinWhatThereIs)
{
    ChartView view;
    view.SetTimes(0, 1000);
    view.Zoom(0.5, 0.5);
    EXPECT_FALSE(view.IsLive());
    EXPECT_EQ(view.End(), 985);
    view.Zoom(2, 0.5);
    EXPECT_TRUE(view.IsLive()) << "the end is the newest moment again";
    view.Pan(-5000);
    EXPECT_EQ(view.Start(), 0);
    view.SetTimes(10, 2000);
    EXPECT_EQ(view.Start(), 0);
    EXPECT_EQ(view.Now(), 1000) << "stands still with the view";
    view.Pan(5000);
    EXPECT_TRUE(view.IsLive());
    EXPECT_EQ(view.End(), 2000);
    view.SetSpan(noValue);
    view.Zoom(noValue, 0.5);
    view.Pan(noValue);
    view.SetTimes(noValue, 1);
    EXPECT_EQ(view.Span(), 60);
    EXPECT_EQ(view.End(), 2000);
}

TEST(TraceStrokeTest, CoversALineByItsWidth)
{
    SamplePyramid samples(100);
    samples.Add(0, 50);
    samples.Add(100, 50);
    samples.Add(100, 20);
    TraceStroke stroke;
    stroke.Make(samples, {0, 1, 0, 1}, 110, 2);
    std::vector<Rgb> pixels(110 * 60, 0x102030);
    PixelCanvas canvas(pixels.data(), 110, 60);
    canvas.Stroke(stroke, 0, 0xFFFFFF);
    const auto at = [&](int x, int y) { return pixels[static_cast<std::size_t>(y * 110 + x)]; };
    EXPECT_EQ(at(30, 49), 0xFFFFFFU);
    EXPECT_EQ(at(30, 50), 0xFFFFFFU);
    EXPECT_EQ(at(30, 48), 0x102030U);
    EXPECT_EQ(at(30, 51), 0x102030U);
    EXPECT_EQ(at(99, 30), 0xFFFFFFU) << "straight up, as wide";
    EXPECT_EQ(at(100, 30), 0xFFFFFFU);
    EXPECT_EQ(at(101, 30), 0x102030U);
    EXPECT_EQ(at(98, 30), 0x102030U);
}

TEST(TraceStrokeTest, LeavesOutWhatIsMissingAndWhatIsOutside)
{
    SamplePyramid samples(100000);
    for (int i = 0; i < 100000; ++i)
        samples.Add(i, i >= 40000 && i < 60000 ? noValue : 1e300);
    TraceStroke stroke;
    for (const double width : {1000.0, 1.0}) {
        stroke.Make(samples, {39950, width, 10, 1}, 100, 1);
        EXPECT_FALSE(stroke.At(0)->IsEmpty());
        EXPECT_TRUE(stroke.At(width > 1 ? 10 : 60)->IsEmpty());
        std::vector<Rgb> pixels(100 * 20, 7);
        PixelCanvas canvas(pixels.data(), 100, 20);
        canvas.Stroke(stroke, 0, 0xFFFFFF);
        EXPECT_THAT(pixels, Each(7U)) << "far below the picture";
    }
}
