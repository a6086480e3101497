#include "platform/detail/SystemCalls.h"
#include "time/TimeTest.h"

#include <cwchar>

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{

class PollRound : public SimulatedTimeTest
{
protected:
    /** A source that counts 1000 per second, and takes 20 ms to answer, in the middle of which it looks. */
    static double Slow()
    {
        Pass(0.01);
        const double reading = trueTime * 1000.0;
        Pass(0.01);
        return reading;
    }
    static double True() { return trueTime; }
    static double Clock80() { return TmSync::GetClock() - static_cast<double>(TmSync::base80); }
};

} // namespace

TEST_F(PollRound, TheTimeBaseIsAlignedOnceAndNeverJumps)
{
    EXPECT_NEAR(TmSync::GetTm(), Clock80(), 1e-6);
    EXPECT_EQ(TmSync::scale, countsPerSecond);
    const double begin = TmSync::GetTm();
    Pass(1800.0);
    clockStep = -3600.0;
    EXPECT_NEAR(TmSync::GetTm() - begin, 1800.0, 1e-6);
    EXPECT_NEAR(TmSync::GetPc(), 1800.0, 1e-6);
    EXPECT_NEAR(TmSync::GetTm(5.0), begin + 5.0, 1e-6);
    EXPECT_NEAR(Clock80() - begin, -1800.0, 1e-6);
}

TEST_F(PollRound, SamplesAtTheMiddleOfAPoll)
{
    Device slow(Slow);
    TmSync::AddTmFn(&slow);
    Ticks(70);
    const double stamp = trueTime * 1000.0;
    EXPECT_NEAR(slow.GetTm(stamp), TmSync::GetTm(), 1e-5);
    EXPECT_NEAR(Tick().slowest, 0.02, 1e-6);
    EXPECT_NEAR(round.Report().took, 0.02, 1e-6);
}

TEST_F(PollRound, WritesALineForEachSourceAndThreeForTheClocks)
{
    Device device(True);
    TmSync::AddTmFn(&device);
    Ticks(90);
    clockStep = 0.25;
    Pass(1.0);
    Tick();
    double off = 0.0;
    double m = 0.0;
    double c = 0.0;
    const std::wstring line = Line(4100);
    ASSERT_EQ(std::swscanf(line.c_str(), L"PC Clock %lf %lf %lf", &off, &m, &c), 3) << line.c_str();
    EXPECT_NEAR(off, 250.0, 0.01) << "it was set forward, which the fit does not follow at once";
    EXPECT_NEAR(m, 1.0, 1e-7);
    EXPECT_NEAR(m * TmSync::GetTm() + c, TmSync::GetClock() - 0.25, 1e-4);
    EXPECT_EQ(line.size() - line.rfind(L'.'), 6U) << "an intercept of five decimals";
    EXPECT_THAT(Line(4101), StartsWith(L"Device "));
    EXPECT_THAT(Line(4101), HasSubstr(L" 1.0000000"));
    EXPECT_EQ(Entry(4101).state, 2);
    EXPECT_EQ(Line(4102), L"");
    EXPECT_EQ(Entry(4000).state, 1);

    const auto clock = static_cast<__time64_t>(TmSync::GetClock());
    const std::wstring second = CTime(clock).Format(L"%H:%M:%S %Y").GetString();
    EXPECT_THAT(Line(4000), StartsWith(L"Clk Time: "));
    EXPECT_THAT(Line(4000), EndsWith(second + L"\n (250)")) << "the line break is deliberate";
    EXPECT_THAT(Line(4001), StartsWith(L"Sys Time: "));
    EXPECT_THAT(Line(4001), EndsWith(second + L"\n (000)"));
    EXPECT_EQ(Line(4002), L"Elpsd:1.5min Err:4.17ms (1004.17ms) 10000000 0.000000 0.000000");
    EXPECT_NEAR(TmSync::err, 250.0 / 60, 1e-3) << "the mean of sixty polls";
}

TEST_F(PollRound, AFailureIsASampleOfZero)
{
    Device failing(True);
    failing.isFailing = true;
    TmSync::AddTmFn(&failing);
    Ticks(2);
    Tick();
    EXPECT_EQ(Line(4101), L"Device 0.0000 0.0000000000 0.00000") << "a line without a slope";
}

TEST_F(PollRound, StartsNothingWithoutACounter)
{
    TmSync::Exit();
    static std::wstring shown;
    const auto calls = vant::detail::Calls();
    vant::detail::Calls().messageBox = [](LPCWSTR text, LPCWSTR, UINT) {
        shown = text;
        return IDOK;
    };
    vant::detail::Clock().frequency = [](LARGE_INTEGER*) { return FALSE; };
    EXPECT_EQ(TmSync::Init(), 0);
    EXPECT_EQ(shown, L"The system does not support high-resolution timestamps");
    EXPECT_EQ(TmSync::scale, 0);
    EXPECT_EQ(TmSync::hExit, nullptr);
    EXPECT_TRUE(TmSync::tmFns.IsEmpty());
    vant::detail::Calls() = calls;
}
