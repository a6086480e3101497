#include "colour/ColourTest.h"
#include "platform/PlatformTest.h"
#include "settings/CESet.h"

#include <filesystem>
#include <fstream>

namespace
{

class CColTblTest : public PlatformTest
{
protected:
    ~CColTblTest() override { CColTbl::s_colTbls.RemoveAll(); }

    std::wstring Write(const std::wstring& name, const std::string& bytes) const
    {
        const std::wstring path = m_dir + name;
        std::ofstream(std::filesystem::path(path), std::ios::binary) << bytes;
        return path;
    }
    std::wstring Dir() const { return m_dir; }

    static std::vector<std::wstring> Listed()
    {
        std::vector<std::wstring> names;
        for (CVantPtr* pos = CColTbl::s_colTbls.GetHeadPos(); pos;)
            names.push_back(Text(CColTbl::s_colTbls.GetNext(pos)->name));
        return names;
    }

private:
    std::wstring m_dir = TempDir();
};

TEST_F(CColTblTest, GreyHasIntegerSteps)
{
    const struct {
        unsigned size;
        int step;
    } cases[] = {{1, 255}, {2, 127}, {3, 85}, {128, 1}, {255, 1}, {256, 0}, {1000, 0}};
    CColTbl tbl;
    EXPECT_EQ(Entries(tbl), std::vector<CRgb>(256, CRgb(0, 0, 0))) << "the default grey";
    for (const auto& c : cases) {
        tbl.cols.SetSize(c.size);
        tbl.GenGrey();
        for (unsigned i = 0; i < c.size; ++i) {
            const auto grey = static_cast<unsigned char>(static_cast<int>(i) * c.step);
            ASSERT_EQ(*tbl.cols[i], CRgb(grey, grey, grey)) << c.size << " " << i;
        }
    }
    tbl.cols.SetSize(0);
    tbl.GenGrey();
    EXPECT_EQ(tbl.cols.GetSize(), 0u);
}

TEST_F(CColTblTest, ACopyKeepsItsDirectionAndAnAssignmentItsOwn)
{
    CColTbl from;
    SetEntries(from, {red, green, blue});
    from.name = L"A";
    from.file = L"C:\\a.clt";
    from.reversed = 1;
    CColTbl master;
    from.source = &master;

    const CColTbl copy(from);
    EXPECT_EQ(Entries(copy), Entries(from));
    EXPECT_EQ(copy.source, &master);
    EXPECT_EQ(copy.reversed, 1);

    CColTbl to;
    to.reversed = 7;
    to = from;
    EXPECT_EQ(Entries(to), Entries(from));
    EXPECT_EQ(Text(to.name + to.file), L"AC:\\a.clt");
    EXPECT_EQ(to.source, &from);
    EXPECT_EQ(to.reversed, 7);
    CColTbl& same = to;
    to = same;
    EXPECT_EQ(to.source, &from);
}

TEST_F(CColTblTest, AFileGivesNameAndEntries)
{
    CColTbl tbl;
    const std::wstring path = Write(L"a.b.clt", "0 63 0\n32 0 0");
    EXPECT_EQ(tbl.Load(path.c_str()), 1);
    EXPECT_EQ(Text(tbl.file), path);
    EXPECT_EQ(Text(tbl.name), L"a.b.clt");
    ASSERT_EQ(tbl.cols.GetSize(), 64u);
    EXPECT_EQ(*tbl.cols[0], CRgb(0, 255, 0));
    EXPECT_EQ(*tbl.cols[1], CRgb(129, 0, 0));
    EXPECT_EQ(*tbl.cols[2], CRgb(0, 0, 0)); // as it was

    // The entries that a file does not reach stay; those that are new are white. The path is the table's own.
    Write(L"a.b.clt", "COLOURTABLE 66 \"Zwei W\xF6rter\"\n1 2 3\n");
    tbl.Load(tbl.file);
    EXPECT_EQ(Text(tbl.name), L"Zwei W\u00F6rter");
    ASSERT_EQ(tbl.cols.GetSize(), 66u);
    EXPECT_EQ(*tbl.cols[0], CRgb(1, 2, 3));
    EXPECT_EQ(*tbl.cols[1], CRgb(129, 0, 0));
    EXPECT_EQ(*tbl.cols[64], white);

    tbl.Load(Write(L"c.clt", "LookUpTable Jig\n9 4 5 6\n").c_str());
    EXPECT_EQ(Text(tbl.name), L"Jig");
    EXPECT_EQ(tbl.cols.GetSize(), 256u);
    EXPECT_EQ(*tbl.cols[0], CRgb(4, 5, 6));

    tbl.Load(Write(L"marked.clt", "\xEF\xBB\xBF"
                                  "COLOURTABLE 0 \"\xC3\xBC\"")
                 .c_str());
    EXPECT_EQ(Text(tbl.name), L"\u00FC");
    tbl.Load(Write(L"empty.clt", "").c_str());
    EXPECT_EQ(tbl.cols.GetSize(), 64u);
    EXPECT_THAT(alarms, testing::IsEmpty());
}

TEST_F(CColTblTest, NamesAreCutTo1024Characters)
{
    std::string bytes = "\xEF\xBB\xBFLookUpTable ";
    for (int i = 0; i < 2000; ++i)
        bytes += "\xE6\xB7\xB1";
    CColTbl tbl;
    tbl.Load(Write(L"b.clt", bytes + "\n0 7 8 9").c_str());
    EXPECT_EQ(Text(tbl.name), std::wstring(1024, L'\u6DF1'));
    EXPECT_EQ(*tbl.cols[0], CRgb(7, 8, 9));
}

TEST_F(CColTblTest, AFileThatCannotBeReadChangesNothingButTheAlarms)
{
    CColTbl tbl;
    SetEntries(tbl, {red, green});
    tbl.name = L"Mine";
    const std::wstring missing = Dir() + L"missing.clt";
    EXPECT_EQ(tbl.Load(missing.c_str()), 1);
    const std::wstring refused = Write(L"refused.clt", "COLOURTABLE 65537 \"A\"\n1 2 3\n");
    EXPECT_EQ(tbl.Load(refused.c_str()), 1);
    EXPECT_EQ(Entries(tbl), (std::vector<CRgb>{red, green}));
    EXPECT_EQ(Text(tbl.name), L"Mine");
    EXPECT_TRUE(tbl.file.IsEmpty());
    const std::wstring start = L"Colour Table <Mine>: Unable to ";
    EXPECT_THAT(
        alarms,
        testing::ElementsAre(
            Logged{70, 1, start + L"open " + missing + L" cause:The file could not be located"},
            Logged{70, 1,
                   start + L"read " + refused + L" cause:The number of entries is not between 0 and 65536"}));
}

TEST_F(CColTblTest, ADirectoryIsReadIntoTheList)
{
    Write(L"a.clt", "COLOURTABLE 1 \"First\"\n1 2 3");
    Write(L"b.CLT", "COLOURTABLE 1 \"Second\"\n4 5 6");
    Write(L"c.txt", "COLOURTABLE 1 \"No table\"\n4 5 6");
    Write(L"d.clt", "COLOURTABLE -1 \"Refused\"\n4 5 6");
    ::CreateDirectoryW((Dir() + L"e.clt").c_str(), nullptr);
    CColTbl::EnumColTbls(Dir().c_str());
    EXPECT_THAT(Listed(), testing::UnorderedElementsAre(L"First", L"Second", L"Default Grey"));
    EXPECT_EQ(alarms.size(), 1u);

    CColTbl* const first = CColTbl::GetColTbl(L"First");
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(Text(first->file), Dir() + L"a.clt");
    EXPECT_EQ(CColTbl::GetColTbl(L"first"), nullptr);

    // Without the backslash, behind what is there; the first of a name is found.
    CColTbl::EnumColTbls(Dir().substr(0, Dir().size() - 1).c_str());
    EXPECT_EQ(Listed().size(), 6u);
    EXPECT_EQ(CColTbl::GetColTbl(L"First"), first);
    CColTbl::EnumColTbls((Dir() + L"missing").c_str());
    EXPECT_EQ(Listed().size(), 6u);
}

TEST_F(CColTblTest, SettingsNameTheTablesAndNeverChangeTheList)
{
    AddTable(L"Depths", {red});
    AddTable(L"Two words", {green});
    CESet saved(1);
    CColTbl::SaveSet(saved);
    CESetCol* const col = saved.GetCol(L"Colour Tables");
    ASSERT_NE(col, nullptr);
    ASSERT_EQ(col->GetCount(), 2);
    EXPECT_EQ(Text(col->GetTail()->m_name), L"Two words");
    EXPECT_TRUE(col->GetTail()->IsEmpty());

    CESet loaded(0);
    loaded.AddCol(L"Colour Tables")->AddObj(L"Unknown", L"ColTbl");
    loaded.GetCol(L"Colour Tables")->AddObj(L"Depths", L"ColTbl");
    for (const int create : {0, 1})
        CColTbl::LoadSet(loaded, create);
    CESet without(0);
    CColTbl::LoadSet(without, 1);
    EXPECT_THAT(Listed(), testing::ElementsAre(L"Depths", L"Two words"));
    EXPECT_EQ(*CColTbl::GetColTbl(L"Depths")->cols[0], red);
}

TEST_F(CColTblTest, TheTablesThatAreShippedAreWhole)
{
    wchar_t program[MAX_PATH] = {}; // they stand beside the programs
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    CColTbl::EnumColTbls((std::filesystem::path(program).parent_path() / L"clt").c_str());
    EXPECT_THAT(Listed(), testing::UnorderedElementsAre(L"Grey", L"Depths", L"Even", L"Diverging", L"Compass",
                                                        L"Blue Yellow"));
    EXPECT_THAT(alarms, testing::IsEmpty());
    for (CVantPtr* pos = CColTbl::s_colTbls.GetHeadPos(); pos;) {
        const CColTbl& tbl = *CColTbl::s_colTbls.GetNext(pos);
        EXPECT_EQ(tbl.cols.GetSize(), 256u);
        EXPECT_FALSE(*tbl.cols[0] == *tbl.cols[128]);
    }
}

} // namespace
