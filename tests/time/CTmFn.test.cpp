#include "time/CTmFn.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace
{

/** A source that is given one sample per second. */
class Fitted : public CTmFn
{
public:
    ~Fitted() override { m_lock.m_hObject = m_handle; }
    void BreakLock() { m_lock.m_hObject = nullptr; }

    void Read(double y)
    {
        m_y = y;
        AddTm(m_y, m_x++);
    }
    /** Samples, each by the slope above the one before. */
    void Step(double slope, int count = 1)
    {
        while (count-- > 0)
            Read(m_y + slope);
    }
    CTmEnt Line() const
    {
        CTmEnt line;
        EXPECT_EQ(GetMC(line.m, line.c), 1);
        return line;
    }

private:
    const HANDLE m_handle = m_lock.m_hObject;
    double m_x = 100.0;
    double m_y = 0.0;
};

} // namespace

TEST(CTmFn, FirstSamplesCountTheFirstOnesSlopeOfOne)
{
    Fitted source;
    EXPECT_EQ(source.name, L"Default");
    EXPECT_EQ(source.GetTm(7.0), 7.0);
    source.Read(50.0);
    EXPECT_EQ(source.GetTm(7.0), 7.0);
    source.Read(53.0);
    EXPECT_EQ(source.Line().m, 2.0) << "the mean of 1 and 3";
    EXPECT_EQ(source.Line().c, -125.0) << "the mean of 0 and 53 - 3 * 101";
    source.Reset();
    EXPECT_EQ(source.GetTm(7.0), 7.0);
    source.Read(99.0);
    EXPECT_EQ(source.Line().m, 1.0) << "nothing left of the samples";
}

TEST(CTmFn, TakesTheMiddleThirdOfTheSlopes)
{
    Fitted source;
    for (const double slope : {9.0, 5.0, 1.0, 0.9, 1.1, 1.0})
        source.Step(slope);
    EXPECT_NEAR(source.Line().m, 1.05, 1e-12) << "third and fourth of 0.9, 1, 1, 1.1, 5";
    EXPECT_NEAR(source.GetTm(source.Line().m * 77.0 + source.Line().c), 77.0, 1e-9);
}

TEST(CTmFn, SixtySamplesReplaceTheOldest)
{
    Fitted source;
    source.Step(2.0, 31);
    source.Step(1.0, 29);
    source.Step(3.0, 20);
    // Now 11 slopes of 2, 29 of 1 and 20 of 3.
    EXPECT_NEAR(source.Line().m, (9 * 1.0 + 11 * 2.0) / 20, 1e-12);
    source.Step(4.0, 60);
    EXPECT_EQ(source.Line().m, 4.0);
}

TEST(CTmFn, RepeatedValuesAddNoSlope)
{
    Fitted source;
    source.Step(2.0, 7);
    source.AddTm(99.0, 106.0);
    source.AddTm(99.0, 107.0);
    EXPECT_EQ(source.Line().m, 2.0) << "same x, then same y";
    source.Step(1.25, 100);
    const CTmEnt before = source.Line();
    source.Step(0.0, 200);
    EXPECT_EQ(source.Line().m, before.m) << "a source that stands still keeps its fit";
    EXPECT_NEAR(source.Line().c, before.c, 1e-9);

    Fitted stuck;
    stuck.Step(0.0, 3);
    EXPECT_EQ(stuck.Line().m, 0.0) << "no slope in the middle third";
    EXPECT_TRUE(std::isinf(stuck.GetTm(50.0)));
}

TEST(CTmFn, AThirdOfTheReadingsMayBeAnything)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double anything[] = {0.0, 1e300, -1e300, infinite, -infinite};
    std::mt19937 random(7);
    Fitted source;
    int last = 0;
    for (int i = 0; i < 2000; ++i) {
        // Three of every ten.
        if (i % 10 == 0)
            last = 7 + static_cast<int>(random() % 3);
        const bool isWrong = i % 10 == 2 || i % 10 == 5 || i % 10 == last;
        source.Read(isWrong ? anything[random() % std::size(anything)] : 1.5 * i);
        if (i >= 60) {
            ASSERT_EQ(source.Line().m, 1.5) << i;
        }
    }
    for (int i = 2000; i < 2120; ++i) {
        source.Read(i % 4 == 0 ? std::nan("") : 1.5 * i);
        ASSERT_EQ(source.Line().m, 1.5) << "with readings that are no numbers, " << i;
    }
}

TEST(CTmFn, SaysThatTheLineCannotBeLocked)
{
    Fitted source;
    EXPECT_EQ(source.SetMC(2.0, 10.0), 1);
    EXPECT_EQ(source.GetTm(30.0), 10.0);
    source.BreakLock();
    double m = 7.0;
    double c = 8.0;
    EXPECT_EQ(source.GetTm(30.0), -1.0);
    EXPECT_EQ(source.SetMC(3.0, 0.0), 0);
    EXPECT_EQ(source.GetMC(m, c), 0);
    EXPECT_EQ(m, 7.0);
    source.Read(1.0); // goes without publishing
}
