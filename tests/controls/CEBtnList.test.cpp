#include "controls/CEBtnList.h"

#include "controls/ControlsTest.h"

namespace
{

/** Three buttons of 50 units, and a fourth with a value of its own. */
class BtnListTest : public ControlsTest
{
protected:
    BtnListTest()
    {
        row.Init(mode);
        row.rc = CRect(10, 10, 210, 34);
        row.AddBtns(L"Off|Survey|Search");
        row.AddBtn(L"Test", 99);
        row.SetCallback(&listener, Listener::Member());
    }
    void Click(int x, int releasedAt)
    {
        Press(row, x, 5);
        Release(row, releasedAt, 5);
    }

    unsigned short mode = 0;
    Listener listener;
    CEBtnList row;
};

} // namespace

TEST_F(BtnListTest, AClickChoosesTheButtonUnderIt)
{
    Open(row);
    EXPECT_EQ(row.Count(), 4);
    EXPECT_EQ(row.Chosen(), 0);
    Click(160, 199);
    EXPECT_EQ(mode, 99);
    EXPECT_EQ(row.Chosen(), 3);
    EXPECT_EQ(listener.calls, 1);
    Click(160, 170);
    EXPECT_EQ(listener.calls, 1) << "chosen already";
    Click(60, 110);
    EXPECT_EQ(mode, 99) << "released over the next one";
    mode = 1234;
    EXPECT_EQ(row.Chosen(), -1);
    row.EnableBtn(1, false);
    Click(60, 60);
    EXPECT_EQ(mode, 1234);
    EXPECT_EQ(::GetCapture(), nullptr);
    row.EnableBtn(7, true);
    row.RemoveAll();
    Click(60, 60);
    EXPECT_EQ(mode, 1234);
}

TEST_F(BtnListTest, KeysGoToWhatCanBeUsed)
{
    row.EnableBtn(1, false);
    row.EnableBtn(3, false);
    Open(row);
    KeyDown(row, VK_RIGHT);
    EXPECT_EQ(mode, 2);
    KeyDown(row, VK_RIGHT);
    KeyDown(row, VK_END);
    EXPECT_EQ(mode, 2) << "the last one that can be used";
    KeyDown(row, VK_LEFT);
    EXPECT_EQ(mode, 0);
    KeyDown(row, VK_LEFT);
    EXPECT_EQ(mode, 0) << "a row has ends";
    EXPECT_EQ(listener.calls, 2);

    mode = 50;
    KeyDown(row, VK_LEFT);
    EXPECT_EQ(mode, 0) << "from none the first";
    mode = 50;
    KeyDown(row, VK_SPACE);
    KeyUp(row, VK_SPACE);
    EXPECT_EQ(mode, 0);
}

TEST_F(BtnListTest, TheLastButtonEndsWhereTheControlDoes)
{
    row.rc.right = row.rc.left + 203;
    Open(row, 144);
    EXPECT_EQ(row.BtnAt(CPoint(202, 5)), 3);
    EXPECT_EQ(row.BtnAt(CPoint(203, 5)), -1);
    Click(303, 303); // pixels
    EXPECT_EQ(mode, 99);
}
