#include "controls/CESlider.h"

#include "controls/ControlsTest.h"
#include "controls/InputHost.h"
#include "support/MessagePump.h"

#include <functional>
#include <limits>
#include <optional>

using testing::ElementsAre;
using testing::IsEmpty;
using vant::detail::RoundTicks;
using vant::detail::SliderScale;

namespace
{

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

/** Writes down what it is called with. */
class SliderListener : public CObject
{
public:
    void OnValue(double v)
    {
        heard.push_back(v);
        if (limit && *limit < v && target)
            *target = *limit;
    }
    void OnSet(double v) { set.push_back(v); }
    void OnClose(double) { closing->DestroyWindow(); }

    std::vector<double> heard;
    std::vector<double> set;
    double* target = nullptr;
    std::optional<double> limit;
    CWnd* closing = nullptr;
};

/** A slider of 214 x 20 from 0 to 100: two pixels for one. Its thumb's middle is at 7 for 0. */
class SliderTest : public ControlsTest
{
protected:
    SliderTest()
    {
        slider.Init(value);
        slider.SetRange(0, 100);
        slider.rc = CRect(10, 10, 224, 30);
        slider.SetCallback(&listener, static_cast<CEVal::CbDouble>(&SliderListener::OnValue));
        slider.SetRelease(&listener, static_cast<CEVal::CbDouble>(&SliderListener::OnSet));
    }
    void Move(int x, int y = 10) { Send(slider, WM_MOUSEMOVE, MK_LBUTTON, x, y); }
    static int At(double v) { return 7 + static_cast<int>(2 * v); }
    void Key(UINT key)
    {
        KeyDown(slider, key);
        KeyUp(slider, key);
    }
    bool Wheel(int delta, int x = 60, int y = 70)
    {
        return slider.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, delta), MAKELPARAM(x, y)) != 0;
    }

    double value = 50;
    SliderListener listener;
    CESlider slider;
};

} // namespace

TEST(SliderScaleTest, MapsValuesToPlacesInBothDirections)
{
    const SliderScale up(-10, 30, 0);
    EXPECT_EQ(up.ShareOf(0), 0.25);
    EXPECT_EQ(up.ShareOf(99), 1);
    EXPECT_EQ(up.ShareOf(noNumber), 0);
    EXPECT_EQ(up.At(0.25), 0);
    EXPECT_EQ(up.At(-3), -10);
    const SliderScale down(30, -10, 0);
    EXPECT_EQ(down.ShareOf(0), 0.75);
    EXPECT_EQ(down.At(1), -10);
    EXPECT_EQ(down.Moved(30, 5), 25) << "towards the second end";
    for (const SliderScale& still : {SliderScale(4, 4, 1), SliderScale(0, infinite, 1),
                                     SliderScale(noNumber, 3, 1), SliderScale(-1e308, 1e308, 0)}) {
        EXPECT_FALSE(still.IsMovable());
        EXPECT_EQ(still.ShareOf(4), 0);
        EXPECT_EQ(still.KeyStep(), 0);
    }
}

TEST(SliderScaleTest, StepsReachBothEnds)
{
    const SliderScale odd(0, 10, 3);
    EXPECT_EQ(odd.Nearest(4.4), 3);
    EXPECT_EQ(odd.Nearest(4.5), 6);
    EXPECT_EQ(odd.Nearest(9.6), 10) << "though 10 is no whole number of steps away";
    EXPECT_EQ(odd.Moved(9, 3), 10);
    EXPECT_EQ(odd.Moved(10, -3), 9);
    EXPECT_EQ(odd.Moved(4, 3), 6) << "from between two steps to the next one";
    EXPECT_EQ(odd.Moved(4, -3), 3);
    EXPECT_EQ(odd.Moved(0, 6), 6);
    EXPECT_EQ(odd.Moved(noNumber, 3), 0);
    EXPECT_EQ(SliderScale(10, 0, 3).Nearest(0.4), 0);
    EXPECT_EQ(SliderScale(10, 0, 3).Moved(10, 3), 7);

    EXPECT_DOUBLE_EQ(SliderScale(0, 7, 0).KeyStep(), 0.1);
    EXPECT_DOUBLE_EQ(SliderScale(0, 7, 0).PageStep(), 1);
    EXPECT_DOUBLE_EQ(SliderScale(0, 7, 0).FineStep(), 0.01);
    EXPECT_EQ(odd.FineStep(), 3) << "not less than a step";
    EXPECT_EQ(SliderScale(0, 1000, 30).PageStep(), 90) << "whole steps";
}

TEST(SliderScaleTest, TicksAreRoundAndNoMoreThanThereIsRoomFor)
{
    EXPECT_THAT(RoundTicks(0, 1, 6), ElementsAre(0, 0.2, 0.4, 0.6, 0.8, 1));
    EXPECT_EQ(RoundTicks(0, 1, 11)[3], 0.3) << "to the last bit";
    EXPECT_THAT(RoundTicks(1, 0, 3), ElementsAre(0, 0.5, 1)) << "in any order of the ends";
    EXPECT_THAT(RoundTicks(-7, 12, 5), ElementsAre(-5, 0, 5, 10));
    EXPECT_THAT(RoundTicks(32, 212, 4), ElementsAre(50, 100, 150, 200));
    EXPECT_THAT(RoundTicks(0.3, 0.9, 4), ElementsAre(0.4, 0.6, 0.8));
    for (const double least : {1e-12, 0.37, 1.0, 8.0, 99999.0})
        for (std::size_t most = 1; most < 40; ++most)
            EXPECT_LE(RoundTicks(-least, 2.7 * least, most).size(), most);
    EXPECT_THAT(RoundTicks(5, 5, 10), IsEmpty());
    EXPECT_THAT(RoundTicks(0, infinite, 10), IsEmpty());
    EXPECT_THAT(RoundTicks(noNumber, 1, 10), IsEmpty());
    EXPECT_THAT(RoundTicks(0, 1, 0), IsEmpty());
    EXPECT_THAT(RoundTicks(1e17, 1e17 + 64, 10), IsEmpty()) << "no digits left for them";
    EXPECT_THAT(RoundTicks(0, 5e-324, 10), IsEmpty());
}

TEST_F(SliderTest, ADragSetsTheValueAndTellsWhenItIsSet)
{
    Open(slider);
    Press(slider, At(50) + 3, 10);
    EXPECT_TRUE(slider.dragging);
    EXPECT_EQ(::GetCapture(), slider.m_hWnd);
    EXPECT_EQ(::GetFocus(), slider.m_hWnd);
    EXPECT_THAT(listener.heard, IsEmpty()) << "pressing the thumb moves nothing";
    Move(At(60) + 3);
    Move(At(60) + 3);
    Move(At(70) + 3, -500);
    EXPECT_THAT(listener.heard, ElementsAre(60, 70)) << "one call a change";
    EXPECT_THAT(listener.set, IsEmpty());
    Release(slider, 5000, 10);
    EXPECT_EQ(value, 100);
    EXPECT_FALSE(slider.dragging);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_THAT(listener.set, ElementsAre(100));

    Press(slider, At(25), 10);
    EXPECT_EQ(value, 25) << "beside the thumb: it comes";
    Release(slider, At(25), 10);
    Press(slider, At(25), 10);
    Release(slider, At(25), 10);
    EXPECT_THAT(listener.set, ElementsAre(100, 25)) << "nothing was set the last time";
    slider.readout = 50;
    Press(slider, 200, 10);
    EXPECT_EQ(value, 25) << "on the read-out";
}

TEST_F(SliderTest, OneThatIsNotLiveWritesWhenItIsReleased)
{
    slider.live = 0;
    Open(slider);
    Press(slider, At(50), 10);
    Move(At(80));
    EXPECT_EQ(value, 50);
    EXPECT_EQ(slider.Shown(), 80);
    Release(slider, At(80), 10);
    EXPECT_EQ(value, 80);
    EXPECT_THAT(listener.heard, ElementsAre(80));
    EXPECT_THAT(listener.set, ElementsAre(80));

    for (const bool escaped : {true, false}) {
        Press(slider, At(80), 10);
        Move(At(10));
        if (escaped)
            KeyDown(slider, VK_ESCAPE);
        else
            ::ReleaseCapture();
        Release(slider, At(10), 10);
        EXPECT_EQ(value, 80) << "the drag is forgotten";
        EXPECT_EQ(slider.Shown(), 80);
    }
    EXPECT_EQ(listener.set.size(), 1u);
}

TEST_F(SliderTest, EscapeBringsTheValueBackAsItWas)
{
    value = 33.25; // between two pixels
    Open(slider);
    Press(slider, At(33), 10);
    Move(At(90));
    KeyDown(slider, VK_RIGHT);
    EXPECT_EQ(value, 90.5) << "the mouse has the thumb";
    KeyDown(slider, VK_ESCAPE);
    EXPECT_EQ(value, 33.25);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(listener.heard.back(), 33.25);
    Release(slider, At(90), 10);
    EXPECT_EQ(value, 33.25);
    EXPECT_THAT(listener.set, IsEmpty());

    value = -32768.0;
    Press(slider, At(20), 10);
    EXPECT_EQ(value, 20) << "missing data has no thumb to grip";
    KeyDown(slider, VK_ESCAPE);
    EXPECT_EQ(value, -32768.0);

    __int64 wide = 0x7000000000000001;
    slider.Init(wide);
    slider.SetRange(0, 100);
    Press(slider, At(20), 10);
    EXPECT_EQ(wide, 20);
    KeyDown(slider, VK_ESCAPE);
    EXPECT_EQ(wide, 0x7000000000000001) << "to the last bit";
}

TEST_F(SliderTest, LosingTheMouseKeepsWhatWasReached)
{
    Open(slider);
    const auto lose = [&](const std::function<void()>& by) {
        Press(slider, At(value), 10);
        Move(At(value + 5));
        const std::size_t before = listener.set.size();
        const double reached = value;
        by();
        EXPECT_FALSE(slider.dragging);
        EXPECT_EQ(slider.look & CECtrl::lookPressed, 0);
        EXPECT_EQ(listener.set.size(), before) << "not in the midst of it";
        vant::test::PumpPending();
        EXPECT_EQ(listener.set.size(), before + 1);
        Move(At(3));
        Release(slider, At(3), 10);
        EXPECT_EQ(value, reached);
    };
    lose([] { ::ReleaseCapture(); });
    lose([&] { parent.SetCapture(); });
    ::ReleaseCapture();
    lose([&] {
        slider.state = CECtrl::stShown;
        slider.Update(0);
    });
    slider.state = 3;
    slider.Update(0);
    lose([&] { slider.ShowWindow(SW_HIDE); });
}

TEST_F(SliderTest, WhatTheApplicationStoresDuringADragIsShownAndKept)
{
    Open(slider);
    Press(slider, At(50), 10);
    Move(At(60));
    value = 20; // another thread
    Move(At(60));
    EXPECT_EQ(value, 20) << "the mouse has not moved";
    EXPECT_EQ(slider.Shown(), 20);
    Move(At(62));
    EXPECT_EQ(value, 62);
    KeyDown(slider, VK_ESCAPE);
    EXPECT_EQ(value, 20) << "newer than the value at the beginning";

    value = 50;
    listener.target = &value;
    listener.limit = 55;
    Press(slider, At(50), 10);
    Move(At(70));
    EXPECT_EQ(value, 55) << "corrected by the callback";
    Move(At(80));
    EXPECT_EQ(value, 55);
    KeyDown(slider, VK_ESCAPE);
    EXPECT_EQ(value, 50) << "the callback's correction belongs to the drag";

    value = 99;
    Press(slider, At(99), 10);
    value = 40;
    Release(slider, At(99), 10);
    EXPECT_EQ(value, 40) << "a release alone writes nothing";
}

TEST_F(SliderTest, KeysMoveByStepsAndEndWithTheirRelease)
{
    slider.step = 5;
    Open(slider);
    Key(VK_RIGHT);
    EXPECT_EQ(value, 55);
    EXPECT_THAT(listener.set, ElementsAre(55));
    KeyDown(slider, VK_UP);
    KeyDown(slider, VK_UP, true);
    EXPECT_EQ(listener.set.size(), 1u) << "still held down";
    KeyUp(slider, VK_UP);
    EXPECT_THAT(listener.set, ElementsAre(55, 65));
    Key(VK_LEFT);
    Key(VK_PRIOR);
    EXPECT_EQ(value, 70);
    Key(VK_HOME);
    EXPECT_EQ(value, 0);
    const std::size_t heard = listener.heard.size();
    Key(VK_DOWN);
    EXPECT_EQ(listener.heard.size(), heard) << "it is at the end already";
    Key(VK_END);
    Key(VK_NEXT);
    EXPECT_EQ(value, 90);

    slider.step = 0;
    {
        const HeldKeys shift({VK_SHIFT});
        Key(VK_RIGHT);
    }
    EXPECT_DOUBLE_EQ(value, 90.1);
    slider.SetFocus();
    KeyDown(slider, VK_RIGHT);
    parent.SetFocus();
    vant::test::PumpPending();
    EXPECT_EQ(listener.set.size(), listener.heard.size() - 1) << "leaving it is a release too";
    value = 1000;
    Key(VK_RIGHT);
    EXPECT_EQ(value, 1000) << "nobody gets less by asking for more";
    Key(VK_LEFT);
    EXPECT_EQ(value, 99);
}

TEST_F(SliderTest, AReversedRangeTurnsTheDirectionAround)
{
    slider.SetRange(100, 0);
    slider.vertical = 1;
    slider.rc = CRect(10, 10, 30, 224);
    Open(slider);
    Press(slider, 10, 214 - At(25)); // a quarter from the bottom
    EXPECT_EQ(value, 75);
    Release(slider, 10, 214 - At(25));
    Key(VK_UP);
    EXPECT_EQ(value, 74);
    Key(VK_HOME);
    EXPECT_EQ(value, 100);
}

TEST_F(SliderTest, TheWheelTurnsTheSliderThatIsInUse)
{
    ShowParent();
    Open(slider); // at (60, 60) of the screen
    EXPECT_FALSE(Wheel(120)) << "it has not got the focus: the window scrolls";
    EXPECT_EQ(value, 50);
    slider.SetFocus();
    EXPECT_TRUE(Wheel(120, 70, 70));
    EXPECT_EQ(value, 51);
    Wheel(-60, 70, 70);
    EXPECT_EQ(value, 51) << "half a notch";
    Wheel(-60, 70, 70);
    EXPECT_EQ(value, 50);
    EXPECT_EQ(listener.set.size(), 2u);
    EXPECT_FALSE(Wheel(120, 70, 200)) << "the mouse is elsewhere";
}

TEST_F(SliderTest, IntegersTakeWholeNumbersThatTheirTypeHolds)
{
    struct {
        unsigned char bound = 0;
        unsigned char behind = 0x5A;
    } at;
    slider.Init(at.bound);
    slider.SetRange(-100, 1000);
    Open(slider);
    Key(VK_END);
    EXPECT_EQ(at.bound, 255) << "not 1000 & 255";
    Key(VK_LEFT);
    EXPECT_EQ(at.bound, 254);
    Key(VK_HOME);
    EXPECT_EQ(at.bound, 0);
    EXPECT_EQ(at.behind, 0x5A);

    float real = 0.5f;
    slider.Init(real);
    slider.SetRange(0, 1);
    Key(VK_RIGHT);
    EXPECT_FLOAT_EQ(real, 0.51f);
    CString text = L"12";
    slider.Init(text);
    Key(VK_RIGHT);
    Press(slider, 40, 10);
    EXPECT_EQ(::GetCapture(), nullptr) << "nothing to slide";
    EXPECT_EQ(Text(text), L"12");
}

TEST_F(SliderTest, KeysKeepTheMutexFromReadToWrite)
{
    class Mutex : public CMutex
    {
    public:
        BOOL Lock(DWORD wait = INFINITE) override
        {
            most = std::max(most, ++depth);
            return refuse ? --depth, FALSE : CMutex::Lock(wait);
        }
        BOOL Unlock() override
        {
            // What another thread would do as soon as it can.
            if (--depth == 0 && rival)
                *std::exchange(rival, nullptr) += 100;
            return CMutex::Unlock();
        }
        int depth = 0;
        int most = 0;
        double* rival = nullptr;
        bool refuse = false;
    } mutex;
    slider.SetMutex(&mutex);
    slider.SetRange(0, 1000);
    Open(slider);
    mutex.rival = &value;
    mutex.most = 0;
    slider.SendMessage(WM_KEYDOWN, VK_RIGHT, 1);
    EXPECT_EQ(value, 160) << "the other thread's step is not lost";
    EXPECT_EQ(mutex.most, 2);
    mutex.refuse = true;
    KeyDown(slider, VK_RIGHT);
    EXPECT_EQ(value, 160);
    EXPECT_EQ(mutex.depth, 0);
}

TEST_F(SliderTest, ACallbackMayDestroyTheWindow)
{
    listener.closing = &slider;
    slider.SetCallback(&listener, static_cast<CEVal::CbDouble>(&SliderListener::OnClose));
    Open(slider);
    Press(slider, At(10), 10);
    EXPECT_EQ(slider.m_hWnd, nullptr);
    EXPECT_FALSE(slider.dragging);
    EXPECT_EQ(value, 10);
    EXPECT_THAT(listener.set, IsEmpty());
}
