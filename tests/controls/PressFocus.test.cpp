// Presses of the mouse in the midst of which a callback or the end of the window comes.
#include "controls/CECb.h"
#include "controls/CEChart.h"
#include "controls/CECheck.h"
#include "controls/CEEdit.h"
#include "controls/CEGrid.h"
#include "controls/CEList.h"
#include "controls/ControlsTest.h"

#include <functional>
#include <memory>
#include <utility>

namespace
{

class PressFocusTest : public ControlsTest
{
protected:
    struct Storing : CObject {
        void OnStored() { act(); }
        std::function<void()> act;
    };

    PressFocusTest()
    {
        edit.Init(gain);
        edit.rc = CRect(10, 10, 90, 30);
        edit.SetCallback(&storing, static_cast<CEVal::CbNone>(&Storing::OnStored));
        ShowParent();
        Open(edit);
    }
    /** Whether the control has the mouse after a press in its middle. */
    bool IsHeld(CECtrl& ctrl, std::function<void()> act)
    {
        storing.act = std::move(act);
        edit.SetFocus();
        Press(ctrl, 30, 10);
        const bool held = ::GetCapture() != nullptr;
        ::ReleaseCapture();
        return held;
    }
    void Check(CECtrl& ctrl)
    {
        ctrl.rc = CRect(10, 40, 110, 120);
        Open(ctrl);
        EXPECT_FALSE(IsHeld(ctrl, [this] {
            parent.SetCapture(); // as a message box does
            ::ReleaseCapture();
        }));
        EXPECT_FALSE(IsHeld(ctrl, [&] {
            ctrl.state = CECtrl::stShown;
            ctrl.Update(0);
        })) << "disabled by a stored value";
        ctrl.state = 3;
        ctrl.Update(0);
        EXPECT_TRUE(IsHeld(ctrl, [] {}));
        EXPECT_FALSE(IsHeld(ctrl, [&] { ctrl.DestroyWindow(); }));
    }

    int gain = 5;
    CEEdit edit;
    Storing storing;
};

} // namespace

TEST_F(PressFocusTest, HoldsNoMouseThatACallbackHasTaken)
{
    CEList list;
    list.Add(L"Entry");
    Check(list);

    CEGrid grid;
    grid.AddCol(L"Column");
    grid.SetRows(5);
    grid.hdrH = 0;
    Check(grid);

    CEChart chart;
    Check(chart);

    CECb box;
    box.Add(L"Entry");
    Check(box);
    EXPECT_FALSE(box.IsOpen());
}

TEST_F(PressFocusTest, AWindowThatIsMadeAnewHoldsNothing)
{
    const auto again = [this](CECtrl& ctrl) {
        ctrl.rc = CRect(10, 40, 110, 120);
        Open(ctrl);
        Press(ctrl, 30, 10);
        ctrl.DestroyWindow();
        Open(ctrl);
        Send(ctrl, WM_MOUSEMOVE, 0, 80, 50);
    };
    CEList list;
    for (const wchar_t* const entry : {L"a", L"b", L"c"})
        list.Add(entry);
    again(list);
    EXPECT_EQ(list.GetSel(), list.GetAt(0));

    CEGrid grid;
    grid.AddCol(L"Column");
    grid.SetRows(5);
    grid.hdrH = 0;
    again(grid);
    EXPECT_EQ(grid.CurRow(), 0);

    CEChart chart;
    const int trace = chart.AddTrace(L"Trace")->Index();
    for (int i = 0; i < 200; ++i)
        chart.Add(trace, i, i);
    Canvas canvas(100, 80);
    chart.rc = CRect(10, 40, 110, 120);
    DrawTo(chart, canvas);
    again(chart);
    EXPECT_TRUE(chart.IsLive());

    int checked = 0;
    CECheck box;
    box.Init(checked);
    again(box);
    Send(box, WM_LBUTTONUP, 0, 30, 10);
    EXPECT_EQ(checked, 0) << "not clicked";
    EXPECT_EQ(box.look & CECtrl::lookPressed, 0);
}
