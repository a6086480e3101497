#include "controls/CEChart.h"

#include "controls/CCtrlCat.h"
#include "controls/ControlsTest.h"
#include "settings/CESet.h"
#include "support/MessagePump.h"
#include "values/EUnits.h"

#include <atomic>
#include <cmath>
#include <filesystem>
#include <thread>

namespace
{

constexpr double missing = -32768.0;
constexpr double start = 1.47e9; // in the year 2026

class CEChartTest : public ControlsTest
{
protected:
    CEChartTest() { chart.rc = CRect(0, 0, 400, 200); }

    /** A minute of a trace, ten samples per second. */
    int AddMinute(double from = 10.0, double by = 0.0)
    {
        const int trace = chart.AddTrace(L"Trace")->Index();
        for (int i = 0; i <= 600; ++i)
            chart.Add(trace, start + i * 0.1, from + by * i);
        return trace;
    }

    void Draw()
    {
        Canvas canvas(400, 200);
        DrawTo(chart, canvas);
    }

    /** The columns in which a colour is, from the left edge to the right one. */
    std::vector<int> ColumnsOf(COLORREF colour)
    {
        Canvas canvas(400, 200);
        DrawTo(chart, canvas);
        const std::uint32_t wanted = (colour & 0xFFU) << 16 | (colour & 0xFF00U) | (colour >> 16 & 0xFFU);
        std::vector<int> columns;
        for (int x = 0; x < 400; ++x)
            for (int y = 30; y < 180; ++y)
                if (canvas.At(x, y) == wanted) {
                    columns.push_back(x);
                    break;
                }
        return columns;
    }

    void Wheel(int delta, int x, int y)
    {
        CPoint at(x, y);
        chart.ClientToScreen(&at);
        chart.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, delta), MAKELPARAM(at.x, at.y));
    }

    CEChart chart;
    double min = 0;
    double max = 0;
};

/** A chart as an application has it. */
void Furnish(CEChart& chart)
{
    chart.rc = CRect(0, 0, 640, 360);
    CEStrip* const depth = chart.AddStrip(L"Depth", 0);
    depth->reversed = 1;
    depth->share = 3;
    depth->decimals = 2;
    CETrace* const bottom = chart.AddTrace(L"Sonar", depth);
    bottom->fill = 1;
    CETrace* const altimeter = chart.AddTrace(L"Altimeter", depth);
    CEStrip* const speed = chart.AddStrip(L"Speed", 2);
    speed->share = 2;
    speed->decimals = 1;
    CETrace* const ground = chart.AddTrace(L"Over ground", speed);
    for (int i = 0; i <= 2400; ++i) {
        const double t = i * 0.05;
        const double noise = std::sin(i * 12.9898) * 43758.5453;
        const double jitter = noise - std::floor(noise) - 0.5;
        chart.Add(bottom->Index(), start + t,
                  31 + 6 * std::sin(t / 19) + 1.5 * std::sin(t / 3.1) + jitter * 0.5);
        if (i % 20 == 0)
            chart.Add(altimeter->Index(), start + t,
                      i > 1500 && i < 1700 ? missing : 40 + 3 * std::cos(t / 14) + jitter);
        chart.Add(ground->Index(), start + t, 2.2 + 0.5 * std::sin(t / 9) + jitter * 0.9);
    }
    chart.SetSpan(90);
}

} // namespace

TEST_F(CEChartTest, IsMadeByItsCodeAndRecordsTheBoundVariable)
{
    double depth = 12.5;
    __int64 count = 7;
    CCtrlCat cat;
    auto* const bound = static_cast<CEChart*>(cat.InsCtrl(200, CECtrl::typeChart, depth));
    ASSERT_TRUE(bound);
    ASSERT_TRUE(bound->IsKindOf(RUNTIME_CLASS(CEChart)));
    bound->text = L"Depth";
    bound->units = 0;
    auto* const counter = static_cast<CEChart*>(cat.InsCtrl(200, CECtrl::typeChart, count));
    bound->rc = counter->rc = CRect(0, 0, 300, 120);
    Open(*bound);
    Open(*counter);
    for (int i = 0; i < 10; ++i) {
        depth = i == 4 ? missing : 12.5 + i;
        count = 100 + i;
        CECtrl::UpdateAuCtrls(start + i);
    }
    ASSERT_EQ(bound->GetTraceCount(), 1);
    EXPECT_EQ(bound->GetTrace(0)->name, L"Depth");
    EXPECT_EQ(bound->GetStrip(0)->units, 0);
    Canvas canvas(300, 120);
    DrawTo(*bound, canvas);
    DrawTo(*counter, canvas);
    ASSERT_TRUE(bound->GetShown(0, min, max));
    EXPECT_GT(min, 0) << "missing data does not count";
    EXPECT_LE(min, 12.5);
    EXPECT_GE(max, 21.5);
    ASSERT_TRUE(counter->GetShown(0, min, max)) << "also the type whose value GetVal() does not tell";
    EXPECT_GE(min, 90);
    bound->Retreive();
    EXPECT_EQ(depth, 21.5);
    EXPECT_TRUE(alarms.empty());
}

TEST_F(CEChartTest, ShowsRoundRangesInTheUnitsDisplayed)
{
    chart.AddStrip(L"Depth", 0);
    AddMinute(10, 0.05); // 10 to 40 m
    Open(chart);
    Draw();
    ASSERT_TRUE(chart.GetShown(0, min, max));
    EXPECT_EQ(min, 10);
    EXPECT_EQ(max, 40);

    EUnits::system = 1;
    Draw();
    ASSERT_TRUE(chart.GetShown(0, min, max));
    EXPECT_EQ(min, 20) << "feet: 32.8 to 131.2";
    EXPECT_EQ(max, 140);

    CEStrip& strip = *chart.GetStrip(0);
    strip.range = CEStrip::rangeFixed;
    strip.rangeMin = 0;
    strip.rangeMax = 100;
    Draw();
    ASSERT_TRUE(chart.GetShown(0, min, max));
    EXPECT_NEAR(max, 328.083, 1e-6);
    strip.rangeMax = -1;
    Draw();
    ASSERT_TRUE(chart.GetShown(0, min, max));
    EXPECT_EQ(max, 140) << "a range that is none";
    EXPECT_FALSE(chart.GetShown(1, min, max));
}

TEST_F(CEChartTest, LeavesAGapWhereDataAreMissing)
{
    CETrace& trace = *chart.AddTrace(L"Trace");
    trace.width = 3; // a whole pixel, wherever it lies
    for (int i = 0; i <= 60; ++i)
        chart.Add(0, start + i, i > 20 && i < 40 ? (i % 2 ? missing : std::nan("")) : 5.0);
    Open(chart);
    auto columns = ColumnsOf(trace.colour);
    ASSERT_FALSE(columns.empty());
    int widest = 0;
    for (std::size_t i = 1; i < columns.size(); ++i)
        widest = std::max(widest, columns[i] - columns[i - 1]);
    const double perSecond = (columns.back() - columns.front()) / 60.0;
    EXPECT_NEAR(widest, 20 * perSecond, 4);

    // The same by the time that passed.
    chart.Clear();
    EXPECT_TRUE(ColumnsOf(trace.colour).empty());
    chart.joinMax = 2;
    for (const double t : {0.0, 1.0, 2.0, 40.0, 41.0, 60.0})
        chart.Add(0, start + t, 5);
    columns = ColumnsOf(trace.colour);
    EXPECT_LT(columns.size(), 10 * perSecond) << "only dots and three short lines";
}

TEST_F(CEChartTest, MovesWhatWasRecordedAlongWhenTheClockIsPutBack)
{
    AddMinute();
    Open(chart);
    Draw();
    EXPECT_EQ(chart.GetEnd(), start + 60);
    chart.Add(0, start + 59.5, 11);
    Draw();
    EXPECT_EQ(chart.GetEnd(), start + 60) << "late, by less than a second";

    chart.Add(0, start - 3600, 12);
    chart.Add(0, start - 3599, 12);
    Draw();
    EXPECT_EQ(chart.GetEnd(), start - 3599) << "the chart goes on by the new clock";
    ASSERT_TRUE(chart.GetShown(0, min, max));
    EXPECT_LE(min, 10) << "and still shows the minute before";
    chart.Add(0, std::nan(""), 500);
    chart.Add(0, 1e15, 500);
    chart.Add(7, start, 500);
    Draw();
    ASSERT_TRUE(chart.GetShown(0, min, max));
    EXPECT_LT(max, 500);
}

TEST_F(CEChartTest, IsZoomedPannedAndPausedByKeysAndWheel)
{
    AddMinute();
    Open(chart);
    chart.SetSpan(20);
    Draw();
    KeyDown(chart, VK_OEM_PLUS);
    EXPECT_NEAR(chart.GetSpan(), 20 / 1.5, 1e-9);
    EXPECT_TRUE(chart.IsLive()) << "the end stays";
    KeyDown(chart, VK_SUBTRACT);
    EXPECT_NEAR(chart.GetSpan(), 20, 1e-9);

    KeyDown(chart, VK_LEFT);
    EXPECT_FALSE(chart.IsLive());
    EXPECT_NEAR(chart.GetEnd(), start + 58, 1e-6);
    KeyDown(chart, VK_HOME);
    EXPECT_NEAR(chart.GetEnd(), start + 20, 1e-6);
    KeyDown(chart, VK_PRIOR);
    EXPECT_NEAR(chart.GetEnd(), start + 20, 1e-6) << "there is nothing before";
    chart.Add(0, start + 70, 10);
    Draw();
    EXPECT_NEAR(chart.GetEnd(), start + 20, 1e-6) << "does not go on";
    KeyDown(chart, VK_END);
    EXPECT_TRUE(chart.IsLive());
    EXPECT_NEAR(chart.GetEnd(), start + 70, 1e-6);

    KeyDown(chart, VK_SPACE);
    EXPECT_FALSE(chart.IsLive());
    KeyDown(chart, VK_SPACE);
    EXPECT_TRUE(chart.IsLive());

    // What the mouse is over stays there.
    Draw();
    const auto timeAt = [&](double place) { return chart.GetEnd() - chart.GetSpan() * (1 - place); };
    constexpr int left = 34; // of the plot, and its width
    constexpr int width = 352;
    const double before = timeAt(0.5);
    Wheel(WHEEL_DELTA, left + width / 2, 100);
    EXPECT_NEAR(chart.GetSpan(), 16, 1e-9);
    EXPECT_NEAR(timeAt(0.5), before, 0.2);
    EXPECT_FALSE(chart.IsLive());
    for (int i = 0; i < 200; ++i)
        Wheel(-WHEEL_DELTA, left + width / 2, 100);
    EXPECT_EQ(chart.GetSpan(), 3.2e8);
    EXPECT_TRUE(chart.IsLive());
    for (int i = 0; i < 300; ++i)
        Wheel(WHEEL_DELTA, left + width, 100);
    EXPECT_EQ(chart.GetSpan(), 1e-3);
    Draw();
}

TEST_F(CEChartTest, IsDraggedAndGoesBackToLiveByADoubleClick)
{
    AddMinute();
    Open(chart);
    chart.SetSpan(20);
    Draw();
    Press(chart, 100, 100);
    Send(chart, WM_MOUSEMOVE, MK_LBUTTON, 101, 100);
    EXPECT_TRUE(chart.IsLive()) << "a hand that trembles";
    Send(chart, WM_MOUSEMOVE, MK_LBUTTON, 276, 100);
    EXPECT_NEAR(chart.GetEnd(), start + 50, 0.3) << "half of the width";
    Release(chart, 276, 100);
    EXPECT_NE(::GetCapture(), chart.m_hWnd);
    Send(chart, WM_MOUSEMOVE, 0, 100, 100);
    EXPECT_NEAR(chart.GetEnd(), start + 50, 0.3);
    Press(chart, 100, 100);
    Release(chart, 100, 100);
    EXPECT_FALSE(chart.IsLive());
    Press(chart, 100, 100);
    Release(chart, 100, 100);
    EXPECT_TRUE(chart.IsLive());
}

TEST_F(CEChartTest, HidesATraceWhoseNameIsClicked)
{
    const int index = AddMinute();
    CETrace& trace = *chart.GetTrace(index);
    trace.width = 3; // a whole pixel, wherever it lies
    Open(chart);
    EXPECT_FALSE(ColumnsOf(trace.colour).empty());
    Press(chart, 44, 12);
    EXPECT_FALSE(trace.visible);
    EXPECT_TRUE(ColumnsOf(trace.colour).empty());
    Press(chart, 44, 12);
    EXPECT_TRUE(trace.visible) << "two clicks, not a double one";
    chart.RemoveAll();
    Press(chart, 44, 12);
    chart.Add(index, start, 1);
    Draw();
    EXPECT_EQ(chart.GetTraceCount(), 0);
}

TEST_F(CEChartTest, KeepsItsSettings)
{
    const auto furnish = [](CEChart& made) {
        made.AddTrace(L"A", made.AddStrip(L"One"));
        made.AddTrace(L"B", made.AddStrip(L"Two"));
    };
    furnish(chart);
    chart.SetSpan(300);
    chart.timeLabels = CEChart::timeClock;
    chart.GetStrip(1)->range = CEStrip::rangeFixed;
    chart.GetStrip(1)->rangeMax = 75;
    chart.GetTrace(0)->visible = 0;
    CESet saved(1);
    CESetObj& stored = *saved.AddCol(L"Col")->AddObj(L"Wnd", L"");
    chart.Settings(stored, L"Chart");

    CESet read(0);
    CESetObj& obj = *read.AddCol(L"Col")->AddObj(L"Wnd", L"");
    static_cast<CLstMgd<CESetItm>&>(obj) = stored;
    CEChart loaded;
    furnish(loaded);
    loaded.Settings(obj, L"Chart");
    EXPECT_EQ(loaded.GetSpan(), 300);
    EXPECT_EQ(loaded.timeLabels, CEChart::timeClock);
    EXPECT_EQ(loaded.GetStrip(1)->range, CEStrip::rangeFixed);
    EXPECT_EQ(loaded.GetStrip(1)->rangeMax, 75);
    EXPECT_EQ(loaded.GetStrip(0)->range, CEStrip::rangeAuto);
    EXPECT_FALSE(loaded.GetTrace(0)->visible);
    EXPECT_TRUE(loaded.GetTrace(1)->visible);
}

TEST_F(CEChartTest, TakesSamplesFromAThreadWhileItDraws)
{
    chart.AddTrace(L"Trace", nullptr, 5000);
    Open(chart);
    std::atomic<bool> done = false;
    std::thread feeder([&] {
        for (int i = 0; i < 200000; ++i)
            chart.Add(0, start + i * 1e-3, i % 100);
        done = true;
    });
    while (!done)
        Draw();
    feeder.join();
    Draw();
    EXPECT_NEAR(chart.GetEnd(), start + 199.999, 1e-6);
    ASSERT_TRUE(chart.GetShown(0, min, max));
    EXPECT_EQ(min, 0);
    EXPECT_EQ(max, 100);
}

TEST_F(CEChartTest, RedrawsItselfWhileSamplesComeUnlessItIsPaused)
{
    AddMinute();
    Open(chart);
    ShowParent();
    chart.UpdateWindow();
    const auto redrawsFor = [&](double t) {
        const double before = chart.GetEnd();
        chart.Add(0, t, 10);
        return vant::test::PumpUntil([&] { return chart.GetEnd() != before; }, 500);
    };
    EXPECT_TRUE(redrawsFor(start + 100));
    chart.SetLive(0);
    EXPECT_FALSE(redrawsFor(start + 200));
}

TEST_F(CEChartTest, DrawsInAnyRoom)
{
    Furnish(chart);
    for (const CSize size : {CSize(1, 1), CSize(20, 200), CSize(200, 20), CSize(60, 60), CSize(3000, 40)}) {
        CEChart small;
        Furnish(small);
        small.rc = CRect(CPoint(0, 0), size);
        Open(small);
        Canvas canvas(size.cx, size.cy);
        DrawTo(small, canvas);
    }
    CEChart empty;
    empty.rc = CRect(0, 0, 300, 100);
    Open(empty);
    Canvas canvas(300, 100);
    DrawTo(empty, canvas);
    EXPECT_FALSE(empty.GetShown(0, min, max));
}

/** With VANT_PICTURES naming a directory the pictures are saved there as PNG files, to be looked at. */
class PicturesOfChartTest : public ControlsTest
{
};

TEST_F(PicturesOfChartTest, EveryScale)
{
    for (const int dpi : {96, 144, 192}) {
        CEChart chart;
        Furnish(chart);
        Open(chart, dpi);
        const CSize size = CDpi(dpi).ToPx(chart.rc).Size();
        Canvas sheet(size.cx, 2 * size.cy);
        Canvas canvas(size.cx, size.cy);
        DrawTo(chart, canvas);
        canvas.CopyTo(sheet, 0, 0);
        // Paused, in feet, by the clock, with the mouse over it.
        EUnits::system = 1;
        chart.timeLabels = CEChart::timeClock;
        chart.SetLive(0);
        Send(chart, WM_MOUSEMOVE, 0, size.cx * 2 / 3, size.cy / 3);
        DrawTo(chart, canvas);
        canvas.CopyTo(sheet, 0, size.cy);
        EUnits::system = 0;
        chart.state = CECtrl::stShown;
        chart.Update(0);
        Canvas disabled(size.cx, size.cy);
        DrawTo(chart, disabled);
        EXPECT_FALSE(disabled.SameAs(canvas)) << "at " << dpi;
        EXPECT_TRUE(disabled.Bounds(chart.GetTrace(0)->colour).IsRectEmpty()) << "at " << dpi;
        const CRect trace = canvas.Bounds(chart.GetTrace(0)->colour);
        EXPECT_GT(trace.Width(), size.cx / 2) << "at " << dpi;
        if (const wchar_t* dir = ::_wgetenv(L"VANT_PICTURES"))
            sheet.Save(std::filesystem::path(dir) / (L"chart-" + std::to_wstring(dpi) + L".png"));
    }
}
