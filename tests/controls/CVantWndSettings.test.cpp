#include "controls/CEText.h"
#include "controls/WndTest.h"
#include "settings/CESet.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/** Knows one option of its own. */
class OptionWnd : public RecordingWnd
{
    DECLARE_DYNAMIC(OptionWnd)

public:
    using RecordingWnd::RecordingWnd;
    void SetOption(const CString& option, const CString& value) override
    {
        options.push_back(std::wstring(option) + L"=" + static_cast<LPCWSTR>(value));
        CVantWnd::SetOption(option, value);
    }
    std::vector<std::wstring> options;
};

IMPLEMENT_DYNAMIC(OptionWnd, CVantWnd)

class CVantWndSettings : public WndTest
{
protected:
    static std::vector<std::wstring> Items(const CESetObj& obj)
    {
        std::vector<std::wstring> items;
        for (CVantPtr* pos = obj.GetHeadPos(); pos;) {
            const CESetItm& item = *obj.GetNext(pos);
            items.push_back(std::wstring(item.m_name) + L"=" + static_cast<LPCWSTR>(item.m_value));
        }
        return items;
    }
};

} // namespace

TEST_F(CVantWndSettings, ParsesPairsAndSkipsWhatIsNone)
{
    OptionWnd wnd;
    wnd.ParseOptions(
        L" Name = Sonar View ,Topic=Range, Own = a=b ,no value=, =no name,nothing,,  = ,\tLevel\t=\t7\r\n",
        0);
    EXPECT_THAT(wnd.options, ElementsAre(L"Name=Sonar View", L"Topic=Range", L"Own=a=b", L"Level=7"));
    EXPECT_EQ(wnd.name, L"Sonar View");
    EXPECT_EQ(wnd.topic, L"Range");
    EXPECT_EQ(wnd.level, 7);

    wnd.ParseOptions(L"name=x,Own=c,Fixed=420", 1);
    EXPECT_EQ(wnd.options.size(), 4u) << "the derived class was asked";
    EXPECT_EQ(wnd.name, L"Sonar View");
    EXPECT_EQ(wnd.fixed, 420);
    EXPECT_EQ(wnd.isFixed, 1);

    wnd.ParseOptions(L"", 0);
    EXPECT_EQ(wnd.options.size(), 4u);
}

TEST_F(CVantWndSettings, NumbersThatDoNotScanChangeNothing)
{
    CVantWnd wnd;
    wnd.ParseOptions(L"Fixed=wide,Level=x", 0);
    EXPECT_EQ(wnd.fixed, 300);
    EXPECT_EQ(wnd.isFixed, 0);
    EXPECT_EQ(wnd.level, 1);
    wnd.ParseOptions(L"Level=-3 m,Fixed=12px", 0);
    EXPECT_EQ(wnd.level, -3);
    EXPECT_EQ(wnd.fixed, 12);
}

TEST_F(CVantWndSettings, CutsLongValuesAndSkipsLongNames)
{
    CVantWnd wnd;
    const CString longText(L'x', 3000);
    wnd.ParseOptions(L"Topic=" + longText, 0);
    EXPECT_EQ(wnd.topic.GetLength(), 2048);
    wnd.ParseOptions(longText + L"=1,Level=2", 0);
    EXPECT_EQ(wnd.level, 2);
}

TEST_F(CVantWndSettings, SavesEveryWindowInOneCollection)
{
    OptionWnd first(L"First");
    first.level = 5;
    first.GetCat(L"Sonar head", CCtrlCat::kindStacked, 1, 0)->expanded = 0;
    first.GetCat(L"Ping", CCtrlCat::anchorCentre, 0, 0);
    CVantWnd second;
    CESet set(1);
    CVantWnd::SaveSet(set);
    CESetCol* const col = set.GetCol(L"VantWnds");
    ASSERT_NE(col, nullptr);
    const CESetObj* const obj = col->GetObj(L"First");
    ASSERT_NE(obj, nullptr);
    EXPECT_EQ(obj->m_type, L"OptionWnd");
    EXPECT_THAT(Items(*obj), ElementsAre(L"Level=5", L"Sonar_head=0", L"Ping=2"));
    ASSERT_NE(col->GetObj(L"Default"), nullptr);
    EXPECT_EQ(col->GetObj(L"Default")->m_type, L"CVantWnd");
    EXPECT_EQ(col->GetCount(), CVantWnd::s_wnds.GetCount());
}

TEST_F(CVantWndSettings, LoadsByNameTheFirstOfEach)
{
    OptionWnd a(L"A");
    OptionWnd twin(L"A");
    OptionWnd untouched(L"B");
    CCtrlCat& cat = *a.GetCat(L"My cat", CCtrlCat::kindStacked, 1, 0);
    const CECtrl* const ctrl = cat.InsText(20, L"x");
    cat.NewLn();
    a.CreatePopup();
    CESet set(0);
    CESetCol& col = *set.AddCol(L"VantWnds");
    col.AddObj(L"Nobody", L"CVantWnd")->Add(L"Level", L"9");
    CESetObj& obj = *col.AddObj(L"A", L"CVantWnd");
    obj.Add(L"Level", L"3");
    obj.Add(L"My_cat", L"0");
    col.AddObj(L"A", L"CVantWnd")->Add(L"Level", L"4"); // the first window again
    CVantWnd::LoadSet(set);
    EXPECT_EQ(a.level, 4);
    EXPECT_EQ(twin.level, 1);
    EXPECT_EQ(untouched.level, 1);
    EXPECT_EQ(cat.expanded, 0);
    EXPECT_FALSE(IsShown(*ctrl)) << "what was loaded is laid out";

    CESet other(0);
    other.AddCol(L"VantWnd");
    CVantWnd::LoadSet(other);
    EXPECT_EQ(a.level, 4);
}
