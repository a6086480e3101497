#include "controls/CEText.h"
#include "controls/RecordingWnd.h"
#include "controls/WndTest.h"
#include "settings/CESet.h"
#include "support/EveryType.h"
#include "support/TempDir.h"

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

namespace
{

/** Variables of a form, bound to controls with a name in the settings. */
struct FormVars {
    vant::test::EveryType of;
    double gain = 0;
    int unnamed = 0;

    void Bind(CVantWnd& wnd)
    {
        const auto named = [&wnd](const wchar_t* item, auto& variable) -> CECtrl& {
            CECtrl& ctrl = *wnd.InsCtrl(50, CECtrl::typeEdit, variable);
            ctrl.aux1 = item;
            return ctrl;
        };
        named(L"Operator name", of.text);
        named(L"c", of.c);
        named(L"uc", of.uc);
        named(L"s", of.s);
        named(L"us", of.us);
        named(L"i", of.i);
        named(L"ui", of.ui);
        named(L"ul", of.ul);
        named(L"i64", of.i64);
        named(L"f", of.f);
        named(L"d", of.d);
        named(L"p", of.pointer);
        auto* const slider =
            wnd.GetCat(L"Sonar", CCtrlCat::kindStacked, 1, 0)->InsCtrl(90, CECtrl::typeSlider, gain);
        slider->aux1 = L"Gain";
        slider->SetRange(60, 0);
        wnd.InsCtrl(50, CECtrl::typeEdit, unnamed);
    }
};

} // namespace

TEST_F(CVantWndSettings, KeepsTheValuesOfNamedControls)
{
    const vant::test::TempDir dir;
    const CString file = dir.Path(L"form.xml");
    FormVars saved;
    saved.of = {nullptr, L"Ann",      '"',  -32768, -1,           255,
                65535,   4294967295u, 0.5f, 1e-7,   4000000000ul, -(std::int64_t{1} << 62)};
    saved.gain = 42.5;
    saved.unnamed = 7;
    {
        OptionWnd wnd(L"Form");
        saved.Bind(wnd);
        CESet set(1);
        CVantWnd::SaveSet(set);
        ASSERT_TRUE(set.Save(file));
    }
    FormVars loaded;
    OptionWnd wnd(L"Form");
    loaded.Bind(wnd);
    wnd.CreatePopup();
    CESet set(0);
    ASSERT_TRUE(set.Load(file));
    CVantWnd::LoadSet(set);
    EXPECT_EQ(loaded.of.text, L"Ann");
    EXPECT_EQ(loaded.of.c, '"') << "a number, whatever character it is";
    EXPECT_EQ(loaded.of.uc, 255);
    EXPECT_EQ(loaded.of.s, -32768);
    EXPECT_EQ(loaded.of.us, 65535);
    EXPECT_EQ(loaded.of.i, -1);
    EXPECT_EQ(loaded.of.ui, 4294967295u);
    EXPECT_EQ(loaded.of.ul, 4000000000ul);
    EXPECT_EQ(loaded.of.i64, -(std::int64_t{1} << 62));
    EXPECT_EQ(loaded.of.f, 0.5f);
    EXPECT_EQ(loaded.of.d, 1e-7);
    EXPECT_EQ(loaded.gain, 42.5);
    EXPECT_EQ(loaded.unnamed, 0);
    CString shown;
    wnd.ctrls.GetHead()->GetWindowText(shown);
    EXPECT_EQ(shown, L"Ann") << "what was loaded is shown";
}

TEST_F(CVantWndSettings, DamagedValuesLeaveTheVariablesAlone)
{
    FormVars vars;
    vars.of.uc = 3;
    vars.of.i = 4;
    vars.of.f = 5;
    vars.gain = 6;
    OptionWnd wnd(L"Form");
    vars.Bind(wnd);
    CESet set(0);
    CESetObj& obj = *set.AddCol(L"VantWnds")->AddObj(L"Form", L"OptionWnd");
    obj.Add(L"uc", L"256");
    obj.Add(L"i", L"12 m");
    obj.Add(L"i64", L"99999999999999999999");
    obj.Add(L"f", L"1e39");
    obj.Add(L"Gain", L"60.5");
    CVantWnd::LoadSet(set);
    EXPECT_EQ(vars.of.uc, 3);
    EXPECT_EQ(vars.of.i, 4);
    EXPECT_EQ(vars.of.i64, 0);
    EXPECT_EQ(vars.of.f, 5);
    EXPECT_EQ(vars.gain, 6) << "outside the range";
}
