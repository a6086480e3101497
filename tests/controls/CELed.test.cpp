#include "controls/CELed.h"

#include "controls/ControlsTest.h"

#include <limits>

using vant::detail::IsLitAt;

namespace
{

class LedTest : public ControlsTest
{
protected:
    /** The colour in the middle of the lamp's lower half, 0xRRGGBB. */
    static std::uint32_t LampOf(CELed& led)
    {
        Canvas canvas(led.rc.Width(), led.rc.Height());
        DrawTo(led, canvas);
        return canvas.At(10, 12);
    }
    static int Red(std::uint32_t c) { return static_cast<int>(c >> 16 & 0xFF); }
    static int Green(std::uint32_t c) { return static_cast<int>(c >> 8 & 0xFF); }
    static bool NeedsPaint(CELed& led)
    {
        const bool dirty = led.GetUpdateRect(nullptr) != FALSE;
        led.UpdateWindow();
        return dirty;
    }
    static CRect Place(int row) { return CRect(CPoint(0, 20 * row), CSize(100, 20)); }
};

} // namespace

TEST(LedBlinkTest, IsLitInTheFirstHalfOfASecond)
{
    EXPECT_TRUE(IsLitAt(0));
    EXPECT_TRUE(IsLitAt(7.49));
    EXPECT_FALSE(IsLitAt(7.5));
    EXPECT_FALSE(IsLitAt(-0.25)) << "times before the start of the clock";
    EXPECT_TRUE(IsLitAt(-0.75));
    EXPECT_TRUE(IsLitAt(std::numeric_limits<double>::quiet_NaN()));
}

TEST_F(LedTest, ShowsTheStateOfTheValue)
{
    int fix = 0;
    CELed led;
    led.Init(fix);
    led.rc = Place(0);
    Open(led);
    const std::uint32_t off = LampOf(led);
    fix = 1;
    const std::uint32_t on = LampOf(led);
    EXPECT_GT(Green(on), Green(off) + 80);
    fix = 3;
    EXPECT_GT(Red(LampOf(led)), 150);
    EXPECT_LT(Green(LampOf(led)), 100);

    led.SetState(3, CELed::green);
    EXPECT_EQ(LampOf(led), on) << "replaced";
    led.ClearStates();
    EXPECT_FALSE(led.IsKnown());
    EXPECT_NE(LampOf(led), off) << "an unknown value does not look switched off";
    Canvas unknown(100, 20);
    Canvas disabled(100, 20);
    led.state = CECtrl::stShown;
    DrawTo(led, unknown);
    led.SetState(3, CELed::red, CELed::dark);
    DrawTo(led, disabled);
    EXPECT_FALSE(disabled.SameAs(unknown)) << "no question mark on a lamp that is only disabled";
}

TEST_F(LedTest, ReadsEveryNumberUnderItsMask)
{
    const auto known = [](auto value, int wanted, int mask = -1) {
        CELed led;
        led.Init(value);
        led.mask = mask;
        led.ClearStates();
        led.SetState(wanted, CELed::red);
        return led.IsKnown();
    };
    constexpr auto topBit = static_cast<int>(0x80000000);
    EXPECT_TRUE(known(static_cast<char>(-3), -3));
    EXPECT_TRUE(known(0x80000001u, topBit, topBit));
    EXPECT_TRUE(known(std::int64_t{0x100000007}, 7, 0xFF));
    EXPECT_FALSE(known(std::int64_t{0x100000007}, 7)) << "the upper half counts";
    EXPECT_TRUE(known(std::int64_t{0x180000000}, topBit, topBit)) << "of the lower half alone";
    EXPECT_TRUE(known(1.6, 2));
    EXPECT_FALSE(known(-32768.0, -32768)) << "missing data";
    EXPECT_FALSE(known(std::numeric_limits<float>::quiet_NaN(), 0));
    CELed unbound;
    EXPECT_FALSE(unbound.IsKnown());
}

TEST_F(LedTest, BlinkersAreInStepWhenTheyAreAdded)
{
    ShowParent();
    int alarm = 4;
    CELed first;
    CELed steady;
    int on = 1;
    first.Init(alarm);
    steady.Init(on);
    first.rc = Place(0);
    steady.rc = Place(1);
    Open(first);
    Open(steady);
    CECtrl::UpdateAuCtrls(10.0);
    first.UpdateWindow();
    steady.UpdateWindow();
    const std::uint32_t lit = LampOf(first);

    CECtrl::UpdateAuCtrls(10.4);
    EXPECT_FALSE(NeedsPaint(first)) << "nothing has changed yet";
    CECtrl::UpdateAuCtrls(10.6);
    EXPECT_TRUE(NeedsPaint(first));
    EXPECT_FALSE(NeedsPaint(steady));
    EXPECT_LT(Red(LampOf(first)), Red(lit));

    CELed late;
    late.Init(alarm);
    late.rc = Place(2);
    Open(late);
    EXPECT_EQ(LampOf(late), LampOf(first)) << "before its first AutoUpdate";
    CECtrl::UpdateAuCtrls(11.0);
    EXPECT_EQ(LampOf(first), lit);
    EXPECT_EQ(LampOf(late), lit);
}

TEST_F(LedTest, IsClickedOnlyWhenItCallsSomebody)
{
    int alarm = 3;
    CELed led;
    led.Init(alarm);
    led.rc = Place(0);
    EXPECT_EQ(led.WndStyle(), WS_VISIBLE);
    Listener listener;
    led.SetCallback(&listener, Listener::Member());
    EXPECT_EQ(led.WndStyle() & WS_TABSTOP, WS_TABSTOP);
    Open(led);
    Press(led, 5, 5);
    Release(led, 5, 5);
    KeyDown(led, VK_RETURN);
    EXPECT_EQ(listener.calls, 2);
    EXPECT_EQ(alarm, 3);
}
