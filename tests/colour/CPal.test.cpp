#include "colour/CPal.h"

#include "colour/ColourTest.h"
#include "controls/ControlsTest.h"
#include "controls/RecordingWnd.h"
#include "settings/CESet.h"

#include <climits>
#include <limits>
#include <memory>

namespace
{

class CPalTest : public ControlsTest
{
protected:
    CPalTest()
    {
        SetEntries(pal.master, {red, green, blue, white});
        pal.Scroll(0);
        pal.AttachWnd(&listener);
    }
    ~CPalTest() override { CColTbl::s_colTbls.RemoveAll(); }

    /** Object and item texts of a palette. */
    static std::vector<std::wstring> Items(CPal& of)
    {
        CESet set(1);
        CESetObj* const obj = set.AddCol(L"A")->AddObj(L"B", L"C");
        of.Settings(*obj);
        std::vector<std::wstring> items;
        for (CVantPtr* pos = obj->GetHeadPos(); pos;) {
            const CESetItm& item = *obj->GetNext(pos);
            items.push_back(Text(item.m_name + L"=" + item.m_value));
        }
        return items;
    }
    void LoadFrom(const std::vector<std::pair<LPCWSTR, LPCWSTR>>& items)
    {
        CESet set(0);
        CESetObj* const obj = set.AddCol(L"A")->AddObj(L"B", L"C");
        for (const auto& [key, text] : items)
            obj->Add(key, text);
        pal.Settings(*obj);
    }

    CPal pal;
    RecordingWnd listener;
};

TEST_F(CPalTest, ColoursComeFromTheWorkingTableOrAreTheFallback)
{
    const CPal fresh;
    *fresh.working.cols[255] = green;
    EXPECT_EQ(fresh.GetCol(254.4), 0x00B400u);
    EXPECT_EQ(fresh.GetCol(0), 0u);
    EXPECT_EQ(pal.fallback, CRgb(255, 255, 255, 255));
    const std::vector<double> values = {-1, 32, 255, 256, 1e9, std::numeric_limits<double>::quiet_NaN()};
    for (pal.wrap = 0; pal.wrap < 2; ++pal.wrap) {
        std::vector<CRgb> colours(values.size());
        pal.GetCols(values, colours);
        for (std::size_t i = 0; i < values.size(); ++i) {
            CRgb one(1, 2, 3, 4);
            pal.GetCol(values[i], one);
            EXPECT_EQ(colours[i], one) << values[i];
        }
    }
    pal.wrap = 0;
    pal.fallback = CRgb(7, 8, 9);
    pal.start = pal.end = 12;
    EXPECT_EQ(pal.GetCol(12), RGB(7, 8, 9));
    EXPECT_EQ(pal.GetCol(-3), RGB(7, 8, 9));
    pal.end = 20;
    EXPECT_EQ(pal.GetCol(12), RGB(red.red, red.green, red.blue));
    EXPECT_EQ(pal.GetCol(std::numeric_limits<double>::quiet_NaN()), RGB(7, 8, 9));
    SetEntries(pal.master, {});
    pal.Scroll(3);
    EXPECT_EQ(pal.GetCol(13), RGB(7, 8, 9));
}

TEST_F(CPalTest, ScrollingTurnsTheTableAndTellsTheAttachedWindows)
{
    const struct {
        int by;
        std::vector<CRgb> working;
    } cases[] = {
        {1, {white, red, green, blue}},       {3, {green, blue, white, red}},
        {4, {red, green, blue, white}},       {-1, {green, blue, white, red}},
        {INT_MAX, {green, blue, white, red}}, {INT_MIN, {red, green, blue, white}},
    };
    listener.events.clear();
    for (const auto& c : cases) {
        pal.Scroll(c.by);
        EXPECT_EQ(pal.offset, c.by);
        EXPECT_EQ(Entries(pal.working), c.working) << c.by;
    }
    EXPECT_EQ(Entries(pal.master), (std::vector<CRgb>{red, green, blue, white}));
    ASSERT_EQ(listener.events.size(), std::size(cases));
    EXPECT_EQ(listener.events.back(), (RecordingWnd::Event{L"notify", CPal::changedMsg, 0}));
    EXPECT_EQ(listener.lastData, &pal);
    EXPECT_EQ(listener.lastSender, &pal);
}

TEST_F(CPalTest, TheOptionLoadChoosesATable)
{
    CColTbl* const tbl = AddTable(L"Two", {blue, green});
    pal.Scroll(1);
    listener.events.clear();
    pal.ParseOptions(L"Load=Three,Name=Sonar", 0);
    EXPECT_EQ(Entries(pal.working), (std::vector<CRgb>{white, red, green, blue}));
    EXPECT_TRUE(pal.tblName.IsEmpty());
    EXPECT_TRUE(listener.events.empty());
    EXPECT_EQ(Text(pal.name), L"Sonar");

    pal.ParseOptions(L"Load=Two", 0);
    EXPECT_EQ(Text(pal.tblName), L"Two");
    EXPECT_EQ(Text(pal.master.name), L"Two");
    EXPECT_EQ(pal.master.source, tbl);
    EXPECT_EQ(Entries(pal.working), (std::vector<CRgb>{green, blue}));
    EXPECT_EQ(listener.events.size(), 1u);
}

TEST_F(CPalTest, SettingsGoThereAndBack)
{
    pal.start = -1.5;
    pal.end = 12;
    pal.wrap = 1;
    pal.offset = 3;
    pal.master.name = L"Two words";
    EXPECT_THAT(Items(pal), testing::IsSupersetOf(
                                {L"Start=-1.5", L"End=12", L"Wrap=1", L"Offset=3", L"ColTbl=Two words"}));

    AddTable(L"Two", {blue, green});
    LoadFrom({{L"Start", L"1"}, {L"End", L"2"}, {L"Wrap", L"0"}, {L"Offset", L"1"}, {L"ColTbl", L"Two"}});
    EXPECT_EQ(pal.start + pal.end + pal.wrap, 3.0);
    EXPECT_EQ(Entries(pal.working), (std::vector<CRgb>{green, blue}));

    // What is missing or unknown stays; what was loaded counts.
    LoadFrom({{L"End", L"x"}, {L"Offset", L"-2147483648"}, {L"ColTbl", L"Unknown"}});
    EXPECT_EQ(pal.end, 2.0);
    EXPECT_EQ(Entries(pal.working), (std::vector<CRgb>{blue, green}));
    pal.wrap = 1;
    pal.Scroll(1);
    pal.SetDefaults();
    EXPECT_THAT(Items(pal),
                testing::IsSupersetOf({L"Start=0", L"End=255", L"Wrap=0", L"Offset=0", L"ColTbl=Two"}));
    EXPECT_EQ(Entries(pal.working), (std::vector<CRgb>{blue, green}));
}

TEST_F(CPalTest, PalettesAreListedByName)
{
    CPal second;
    const CPal hidden(CPal::unlisted | 6);
    const CPal third(2u);
    pal.name = L"Sonar";
    second.name = L"Sonar";
    EXPECT_EQ(CPal::s_pals.GetCount(), 3);
    EXPECT_EQ(CPal::GetPal(L"Sonar"), &pal);
    EXPECT_EQ(CPal::GetPal(L"sonar"), nullptr);
    {
        const std::unique_ptr<CObject> made(RUNTIME_CLASS(CPal)->CreateObject());
        EXPECT_EQ(CPal::s_pals.GetTail(), made.get());
    }
    EXPECT_EQ(CPal::s_pals.GetTail(), &third);

    // A table called Depths is where the table comes from, but not what it holds.
    EXPECT_EQ(pal.master.source, nullptr);
    CColTbl* const depths = AddTable(L"Depths", {blue});
    const CPal later;
    EXPECT_EQ(later.master.source, depths);
    EXPECT_EQ(later.master.cols.GetSize(), 256u);
}

TEST_F(CPalTest, AllListedPalettesAreStored)
{
    CPal second;
    pal.name = L"First";
    second.name = L"Second";
    second.start = 7;
    CESet set(1);
    CPal::SaveSet(set);
    CESetCol* const col = set.GetCol(L"Palettes");
    ASSERT_NE(col, nullptr);
    ASSERT_EQ(col->GetCount(), 2);
    EXPECT_EQ(Text(col->GetTail()->m_name), L"Second");
    EXPECT_EQ(Text(col->GetTail()->m_type), L"Palette");

    CESet loaded(0);
    CESetCol* const to = loaded.AddCol(L"Palettes");
    to->AddObj(L"Unknown", L"Palette")->Add(L"Start", L"1");
    to->AddObj(L"Second", L"Palette")->Add(L"Start", L"2");
    for (const int create : {0, 1})
        CPal::LoadSet(loaded, create);
    CESet without(0);
    CPal::LoadSet(without, 1);
    EXPECT_EQ(second.start, 2.0);
    EXPECT_EQ(pal.start, 0.0);
    EXPECT_EQ(CPal::s_pals.GetCount(), 2);
}

} // namespace
