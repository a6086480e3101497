#include "windows/CCslAlm.h"
#include "windows/WindowsTest.h"

namespace
{

using Alarms = Opened<CCslAlm>;

constexpr int boxX = 18; // inside the check box, from the row's left edge
constexpr int textX = 100;

class AlarmConsole : public WindowsTest
{
protected:
    AlarmConsole()
    {
        alarms.SetupCsl(2);
        Raise(30, 0);
        Raise(10, 1);
        Raise(20, 2);
        alarms.Open(500, 300);
    }

    void Raise(unsigned long id, int state)
    {
        alarms.UpdateEntry(id, state, L"alarm");
        CVantWnd::Trigger(0.0, 0.0);
    }
    CPoint At(int line, int x) const
    {
        return alarms.Dpi().ToPx(CPoint(alarms.RowRc(line).left + x, alarms.RowRc(line).CenterPoint().y));
    }
    bool IsChecked(unsigned long id)
    {
        CECEntry entry;
        return alarms.GetEntry(id, entry) && (entry.kind & CConsole::kindChecked);
    }
    unsigned long Selected() const
    {
        unsigned long id = 0;
        return alarms.GetSelected(id) ? id : 0;
    }

    Alarms alarms;
};

bool IsRed(COLORREF colour)
{
    return GetRValue(colour) > 100 && GetGValue(colour) < 60 && GetBValue(colour) < 60;
}

} // namespace

TEST_F(AlarmConsole, AClickOnTheBoxAcknowledgesUntilTheNextUpdate)
{
    EXPECT_TRUE(IsRed(alarms.Pixel(At(0, 480))));
    EXPECT_FALSE(IsRed(alarms.Pixel(At(1, 480))));
    const COLORREF open = alarms.Pixel(At(0, boxX));
    alarms.Settle();
    alarms.Click(At(0, boxX));
    EXPECT_TRUE(IsChecked(10));
    EXPECT_FALSE(IsChecked(20));
    EXPECT_FALSE(alarms.Pending().IsRectEmpty()) << "at once, without a trigger";
    EXPECT_FALSE(IsRed(alarms.Pixel(At(0, 480))));
    EXPECT_NE(alarms.Pixel(At(0, boxX)), open) << "the mark is drawn";
    EXPECT_TRUE(alarms.TestEntry(alarms.FindEntry(10))) << "the filter lets it pass";

    alarms.Click(At(0, boxX));
    EXPECT_FALSE(IsChecked(10));
    alarms.Click(At(0, boxX));
    Raise(10, 1);
    EXPECT_FALSE(IsChecked(10));
    EXPECT_TRUE(IsRed(alarms.Pixel(At(0, 480))));
}

TEST_F(AlarmConsole, DoubleClicksAndClicksElsewhere)
{
    // Both clicks of a double click on the box count.
    alarms.Click(At(1, boxX));
    EXPECT_TRUE(IsChecked(20));
    alarms.Press(WM_LBUTTONDBLCLK, At(1, boxX));
    alarms.Press(WM_LBUTTONUP, At(1, boxX));
    EXPECT_FALSE(IsChecked(20));

    alarms.Click(At(2, textX));
    EXPECT_EQ(Selected(), 30u);
    EXPECT_FALSE(IsChecked(30)) << "a click on the text selects";
    alarms.Press(WM_LBUTTONDBLCLK, At(2, textX));
    EXPECT_TRUE(IsChecked(30));

    alarms.Click(At(5, boxX)); // below the last alarm
    EXPECT_EQ(Selected(), 30u);
}

TEST_F(AlarmConsole, ClicksHitTheirRowAtEveryScale)
{
    alarms.SendMessage(WM_DPICHANGED, MAKEWPARAM(144, 144), 0);
    ASSERT_EQ(alarms.Dpi().Dpi(), 144);
    alarms.Click(At(2, boxX));
    EXPECT_TRUE(IsChecked(30));
    EXPECT_FALSE(IsChecked(10) || IsChecked(20));
    EXPECT_GT(At(2, 0).y - At(1, 0).y, 30) << "pixels";
}

TEST_F(AlarmConsole, KeysSelectAndAcknowledge)
{
    alarms.Key(VK_SPACE);
    EXPECT_EQ(Selected(), 0u);
    alarms.Key(VK_DOWN);
    EXPECT_EQ(Selected(), 10u);
    alarms.Key(VK_DOWN);
    alarms.Key(VK_SPACE);
    EXPECT_TRUE(IsChecked(20));
    alarms.Key(VK_SPACE);
    EXPECT_FALSE(IsChecked(20));
    alarms.Key(VK_END);
    EXPECT_EQ(Selected(), 30u);
    alarms.Key(VK_DOWN);
    EXPECT_EQ(Selected(), 30u);
    alarms.Key(VK_UP);
    EXPECT_EQ(Selected(), 20u);
    alarms.Key(VK_HOME);
    EXPECT_EQ(Selected(), 10u);

    // The selection stays with its alarm when another one comes before it.
    Raise(5, 0);
    EXPECT_EQ(Selected(), 10u);
    alarms.Key(VK_SPACE);
    EXPECT_TRUE(IsChecked(10));
    alarms.ClearEntry(10);
    CVantWnd::Trigger(0.0, 0.0);
    alarms.Key(VK_SPACE);
    EXPECT_FALSE(IsChecked(5));
}

TEST_F(AlarmConsole, TheSelectionScrollsIntoView)
{
    for (unsigned long id = 100; id < 150; ++id)
        Raise(id, 0);
    alarms.Key(VK_HOME);
    EXPECT_EQ(alarms.First(), 0);
    alarms.Key(VK_NEXT);
    alarms.Key(VK_NEXT);
    EXPECT_GT(alarms.First(), 0);
    alarms.Key(VK_END);
    EXPECT_EQ(Selected(), 149u);
    EXPECT_EQ(alarms.First(), 53 - alarms.ListRc().Height() / alarms.RowRc(0).Height());

    // An alarm that is raised again comes into view, one that is over does not.
    Raise(10, 1);
    EXPECT_EQ(alarms.First(), 0);
    int over = -1;
    alarms.RecordEntry(149, over, L"over");
    CVantWnd::Trigger(0.0, 0.0);
    EXPECT_EQ(alarms.First(), 0);
    EXPECT_EQ(alarms.Lines().back().state, -1);
}

TEST_F(AlarmConsole, ChecksAreSetAndTakenAwayByCalls)
{
    alarms.CheckEntry(10, 1);
    alarms.CheckEntry(30, 1);
    alarms.CheckEntry(99, 1);
    EXPECT_TRUE(IsChecked(10) && IsChecked(30));
    alarms.changed = 0;
    alarms.DeSelectAll();
    EXPECT_EQ(alarms.changed, 1);
    EXPECT_FALSE(IsChecked(10) || IsChecked(30));
    alarms.CheckEntry(10, 1);
    alarms.CheckEntry(10, 0);
    EXPECT_FALSE(IsChecked(10));
}
