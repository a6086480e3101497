// Presses of the mouse that take the focus from a field, whose callbacks come in between.
#include "controls/CECb.h"
#include "controls/CEChart.h"
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
