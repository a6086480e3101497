// Controls operated by an external controller: Jog() and Press().
#include "controls/CEAddr.h"
#include "controls/CEBtn.h"
#include "controls/CEBtnList.h"
#include "controls/CECb.h"
#include "controls/CECheck.h"
#include "controls/CEEdit.h"
#include "controls/CERadio.h"
#include "controls/CERadius.h"
#include "controls/CESlider.h"
#include "controls/CEText.h"
#include "controls/ControlsTest.h"
#include "controls/detail/JogStep.h"

using testing::ElementsAre;
using vant::detail::Jogged;
using vant::detail::JoggedWhole;
using vant::detail::OwnJogSteps;

namespace
{

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr auto most64 = std::numeric_limits<std::int64_t>::max();

class JogTest : public ControlsTest
{
protected:
    template <class T>
    T& Bound(T& ctrl)
    {
        ctrl.rc = CRect(10, 10, 110, 30);
        ctrl.SetCallback(&listener, Listener::Member());
        Open(ctrl);
        return ctrl;
    }
    int Calls() { return std::exchange(listener.calls, 0); }

    Listener listener;
};

} // namespace

TEST(JogStepTest, MovesWithinTheRangeAndNeverTheOtherWay)
{
    double back = 1;
    for (int i = 0; i < 10; ++i)
        back = Jogged(back, -0.1, 0.1, -infinite, infinite);
    EXPECT_EQ(back, 0) << "and not 1.4e-16";
    EXPECT_EQ(Jogged(0.03, 0.1, 0.1, 0, 1), 0.13) << "between the steps it stays there";
    EXPECT_EQ(Jogged(9.5, 2, 2, 0, 10), 10);
    EXPECT_EQ(Jogged(50, 2, 2, 0, 10), 50) << "nobody gets less by asking for more";
    EXPECT_EQ(Jogged(50, -2, 2, 0, 10), 10);
    EXPECT_EQ(Jogged(-50, 2, 2, 0, 10), 0);
    EXPECT_EQ(Jogged(5, 2, 2, 10, 0), 5);

    EXPECT_EQ(JoggedWhole(5, 1e300, 0, 100), 100);
    EXPECT_EQ(JoggedWhole(most64 - 1, 5, -infinite, infinite), most64);
    EXPECT_EQ(JoggedWhole(-5, -1e300, -infinite, infinite), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(JoggedWhole(200, -1, 0, 100), 100);

    EXPECT_EQ(OwnJogSteps(false, true, 0, 200).coarse, 2);
    EXPECT_EQ(OwnJogSteps(true, true, 0, 200).fine, 1);
    EXPECT_EQ(OwnJogSteps(false, false, 0, 200).fine, 0.1);
    EXPECT_EQ(OwnJogSteps(false, true, 7, 7).coarse, 1);
}

TEST_F(JogTest, NumbersOfEveryKindAreClampedToRangeAndType)
{
    struct {
        unsigned char value = 250;
        unsigned char behind = 0x5A;
    } held;
    CEText text;
    text.Init(held.value);
    Bound(text);
    EXPECT_EQ(text.Jog(5, 0, 0), 0) << "a read-out has no step of its own";
    EXPECT_EQ(text.Jog(3, 2, 0), 1);
    EXPECT_EQ(held.value, 255) << "and not 0";
    EXPECT_EQ(text.Jog(3, 2, 0), 0);
    EXPECT_EQ(Calls(), 1) << "for the change";
    EXPECT_EQ(held.behind, 0x5A);
    text.Jog(-1, 0.2, 1);
    EXPECT_EQ(held.value, 254) << "at least one";

    __int64 wide = 0x7000000000000001;
    text.Init(wide);
    text.Jog(2, 1, 0);
    EXPECT_EQ(wide, 0x7000000000000003) << "to the last bit";
    double depth = -32768.0;
    text.Init(depth);
    EXPECT_EQ(text.Jog(1, 1, 0), 0) << "missing data";
    text.SetRange(10, 5);
    EXPECT_EQ(text.Jog(1, 1, 0), 1);
    EXPECT_EQ(depth, 5) << "from the beginning of the range, in whatever order it was given";
    depth = infinite;
    EXPECT_EQ(text.Jog(-1, 1, 0), 0);
}

TEST_F(JogTest, EditsAndSlidersHaveStepsOfTheirOwn)
{
    int gain = 10;
    CEEdit edit;
    edit.Init(gain);
    edit.SetRange(0, 1000);
    Bound(edit).Update(1);
    edit.SetFocus();
    edit.SetWindowText(L"777");
    EXPECT_EQ(edit.Jog(1, 0, 0), 1);
    EXPECT_EQ(gain, 20) << "what was not stored gives way";
    CString shown;
    edit.GetWindowText(shown);
    EXPECT_EQ(Text(shown), L"20");
    edit.Jog(1, 0, 1);
    EXPECT_EQ(gain, 21);
    parent.SetFocus();
    EXPECT_EQ(edit.Press(), 1);
    EXPECT_EQ(::GetFocus(), edit.m_hWnd);
    EXPECT_EQ(edit.SendMessage(EM_GETSEL), MAKELONG(0, 2));

    double level = 50;
    CESlider slider;
    slider.Init(level);
    slider.SetRange(100, 0);
    Bound(slider);
    parent.SetFocus();
    Calls();
    slider.Jog(2, 0, 0);
    EXPECT_EQ(level, 48) << "towards the end that is called the maximum";
    slider.step = 5;
    slider.Jog(-1, 1, 0);
    EXPECT_EQ(level, 50) << "to the next of its own steps";
    EXPECT_EQ(slider.Press(), 1);
    EXPECT_EQ(level, 50) << "a press is no click in the middle";
    EXPECT_EQ(Calls(), 2);
    Press(slider, 50, 10);
    EXPECT_EQ(slider.Jog(1, 0, 0), 0) << "the mouse has the thumb";
    Release(slider, 50, 10);

    double brg = 0;
    CERadius dial;
    dial.Init(brg);
    Bound(dial);
    dial.Jog(-1, 0.5, 0);
    EXPECT_DOUBLE_EQ(brg, 2 * 3.14159265358979323846 - 0.5);
}

TEST_F(JogTest, SwitchesAndChoicesGoOnByOne)
{
    int bits = 4;
    CECheck box;
    box.Init(bits);
    Bound(box);
    EXPECT_EQ(box.Jog(1, 10, 0), 1);
    EXPECT_EQ(bits, 5) << "its own bit alone";
    EXPECT_EQ(box.Jog(1, 10, 0), 0);
    box.Jog(-3, 0, 0);
    EXPECT_EQ(bits, 4);
    EXPECT_EQ(box.Press(), 1);
    EXPECT_EQ(bits, 5);
    EXPECT_EQ(Calls(), 3);
    box.state = 2;
    box.Update(0);
    EXPECT_EQ(box.Press(), 0);

    int mode = 0;
    CEBtnList row;
    row.AddBtns(L"a|b|c|d");
    row.EnableBtn(1, false);
    row.Init(mode);
    Bound(row).Jog(1, 0, 0);
    EXPECT_EQ(mode, 2);
    row.Jog(9, 0, 0);
    EXPECT_EQ(mode, 3);
    EXPECT_EQ(row.Jog(1, 0, 0), 0);
    row.Press();
    EXPECT_EQ(mode, 0) << "around";
    row.Jog(-1, 0, 0);
    EXPECT_EQ(Calls(), 3) << "one call an order";

    ShowParent();
    int port = 0;
    CECb box2;
    for (const wchar_t* const entry : {L"a", L"b", L"c"})
        box2.Add(entry);
    box2.Init(port);
    Bound(box2).Update(0);
    box2.Jog(1, 0, 0);
    EXPECT_EQ(port, 1);
    EXPECT_EQ(box2.Press(), 1);
    ASSERT_TRUE(box2.IsOpen());
    box2.Jog(-1, 0, 0);
    EXPECT_EQ(port, 1) << "not chosen yet";
    box2.Press();
    EXPECT_EQ(port, 0);
    EXPECT_FALSE(box2.IsOpen());

    unsigned char address[4] = {192, 168, 0, 1};
    CEAddr addr;
    addr.Init(address[0]);
    Bound(addr).Update(0);
    EXPECT_EQ(addr.Jog(1, 1, 0), 0);
    EXPECT_EQ(addr.Press(), 1);
    EXPECT_EQ(::GetFocus(), addr.edits[0].m_hWnd);
    addr.SetGlow(200);
    EXPECT_EQ(addr.edits[3].glow, 200);
    EXPECT_EQ(address[0], 192);
}

TEST_F(JogTest, OthersArePressedByTheMessagesOfAClick)
{
    class ClickedCtrl : public PlainCtrl
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM w, LPARAM at) override
        {
            if (message == WM_LBUTTONDOWN || message == WM_LBUTTONUP)
                heard.push_back({static_cast<int>(message), GET_X(at), GET_Y(at)});
            if (message == WM_LBUTTONDOWN && closes)
                DestroyWindow();
            return PlainCtrl::WindowProc(message, w, at);
        }
        static int GET_X(LPARAM at) { return LOWORD(at); }
        static int GET_Y(LPARAM at) { return HIWORD(at); }
        std::vector<std::vector<int>> heard;
        bool closes = false;
    } ctrl;
    Bound(ctrl).Press();
    EXPECT_THAT(ctrl.heard,
                ElementsAre(ElementsAre(WM_LBUTTONDOWN, 50, 10), ElementsAre(WM_LBUTTONUP, 50, 10)));
    ctrl.closes = true;
    ctrl.Press();
    EXPECT_EQ(ctrl.heard.size(), 3u);
}
