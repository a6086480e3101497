#include "time/CTmFn.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace
{

CTmEnt LineOf(const CTmFn& source)
{
    CTmEnt line;
    EXPECT_EQ(source.GetMC(line.m, line.c), 1);
    return line;
}

/** Adds a sample per second, each by the given slope above the one before. */
class Steps
{
public:
    explicit Steps(CTmFn& source)
        : m_source(source)
    {
        source.AddTm(m_y, m_x);
    }
    void operator()(double slope)
    {
        m_x += 1.0;
        m_y += slope;
        m_source.AddTm(m_y, m_x);
    }

private:
    CTmFn& m_source;
    double m_x = 100.0;
    double m_y = 50.0;
};

class UnlockableFn : public CTmFn
{
public:
    ~UnlockableFn() override { m_lock.m_hObject = m_handle; }
    void BreakLock() { m_lock.m_hObject = nullptr; }

private:
    const HANDLE m_handle = m_lock.m_hObject;
};

} // namespace

TEST(CTmFn, FirstSamplesCountTheFirstOnesSlopeOfOne)
{
    CTmFn source;
    EXPECT_EQ(source.name, L"Default");
    EXPECT_EQ(source.GetTm(7.0), 7.0);
    double left = 5.0;
    EXPECT_EQ(source.PollTm(left), 0);
    EXPECT_EQ(left, 5.0);

    source.AddTm(50.0, 100.0);
    EXPECT_EQ(LineOf(source).m, 1.0);
    EXPECT_EQ(LineOf(source).c, 0.0);
    source.AddTm(53.0, 101.0);
    EXPECT_EQ(LineOf(source).m, 2.0) << "the mean of 1 and 3";
    EXPECT_EQ(LineOf(source).c, -125.0) << "the mean of 0 and 53 - 3 * 101";
}

TEST(CTmFn, TakesTheMiddleThirdOfTheSlopes)
{
    CTmFn source;
    Steps step(source);
    for (const double slope : {5.0, 1.0, 0.9, 1.1, 1.0})
        step(slope);
    EXPECT_NEAR(LineOf(source).m, 1.05, 1e-12) << "third and fourth of 0.9, 1, 1, 1.1, 5";
    EXPECT_NEAR(source.GetTm(LineOf(source).m * 77.0 + LineOf(source).c), 77.0, 1e-9);
    source.Reset();
    EXPECT_EQ(source.GetTm(7.0), 7.0);
    source.AddTm(1.0, 1.0);
    EXPECT_EQ(LineOf(source).m, 1.0) << "nothing left of the samples";
}

TEST(CTmFn, RepeatedValuesAddNoSlope)
{
    CTmFn source;
    Steps step(source);
    for (int i = 0; i < 6; ++i)
        step(2.0);
    source.AddTm(99.0, 106.0);
    source.AddTm(99.0, 107.0);
    EXPECT_EQ(LineOf(source).m, 2.0) << "same x, then same y";

    CTmFn stuck;
    for (int i = 0; i < 3; ++i)
        stuck.AddTm(50.0, 100.0 + i);
    EXPECT_EQ(LineOf(stuck).m, 0.0) << "no slope in the middle third";
    EXPECT_EQ(LineOf(stuck).c, 0.0);
    EXPECT_TRUE(std::isinf(stuck.GetTm(50.0)));
}

TEST(CTmFn, SixtySamplesReplaceTheOldest)
{
    CTmFn source;
    Steps step(source);
    for (int i = 0; i < 59; ++i)
        step(i < 30 ? 2.0 : 1.0);
    EXPECT_NEAR(LineOf(source).m, 1.5, 0.5);
    for (int i = 0; i < 20; ++i)
        step(3.0);
    // Now 11 slopes of 2, 29 of 1 and 20 of 3.
    EXPECT_NEAR(LineOf(source).m, (9 * 1.0 + 11 * 2.0) / 20, 1e-12);
    for (int i = 0; i < 60; ++i)
        step(4.0);
    EXPECT_EQ(LineOf(source).m, 4.0);
}

TEST(CTmFn, AStandingSourceKeepsItsFit)
{
    CTmFn source;
    Steps step(source);
    for (int i = 0; i < 80; ++i)
        step(1.25);
    const CTmEnt before = LineOf(source);
    for (int i = 0; i < 200; ++i)
        source.AddTm(0.0, 1000.0 + i);
    EXPECT_EQ(LineOf(source).m, before.m);
    EXPECT_NEAR(LineOf(source).c, before.c, 1e-9);
}

TEST(CTmFn, AThirdOfTheReadingsMayBeAnything)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double anything[] = {0.0, 1e300, -1e300, infinite, -infinite};
    std::mt19937 random(7);
    CTmFn source;
    int last = 0;
    for (int i = 0; i < 5000; ++i) {
        const double x = 1'470'000'000.0 + i;
        // Three of every ten.
        if (i % 10 == 0)
            last = 7 + static_cast<int>(random() % 3);
        const bool isWrong = i % 10 == 2 || i % 10 == 5 || i % 10 == last;
        source.AddTm(isWrong ? anything[random() % std::size(anything)] : 1.5 * x, x);
        if (i < 60)
            continue;
        ASSERT_EQ(LineOf(source).m, 1.5) << i;
        ASSERT_NEAR(LineOf(source).c, 0.0, 1e-5) << i;
    }
    for (int i = 0; i < 120; ++i) {
        const double x = 1'470'005'000.0 + i;
        source.AddTm(i % 4 == 0 ? std::nan("") : 1.5 * x, x);
        ASSERT_EQ(LineOf(source).m, 1.5) << "with readings that are no numbers, " << i;
    }
}

TEST(CTmFn, SaysThatTheLineCannotBeLocked)
{
    UnlockableFn source;
    EXPECT_EQ(source.SetMC(2.0, 10.0), 1);
    EXPECT_EQ(source.GetTm(30.0), 10.0);
    source.BreakLock();
    double m = 7.0;
    double c = 8.0;
    EXPECT_EQ(source.GetTm(30.0), -1.0);
    EXPECT_EQ(source.SetMC(3.0, 0.0), 0);
    EXPECT_EQ(source.GetMC(m, c), 0);
    EXPECT_EQ(m, 7.0);
    source.AddTm(1.0, 1.0); // goes without publishing
}
