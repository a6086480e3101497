#include "tests/settings/Support.h"

#include <regex>

namespace
{

using support::Dump;
using support::Narrow;
using support::ReadBytes;
using support::TempDir;

void Fill(CESet& set)
{
    CESetObj& plan = *set.AddCol(L"Windows")->AddObj(L"Plan", L"CPlanWnd");
    plan.Add(L"Level", L"%d", 3);
    plan.Data(L"first");
    plan.Add(L"Title", L"Fairway \u00FCber 20 m");
    plan.Data(L"%d and %d", 1, 2);
    set.GetCol(L"Windows")->AddObj(L"Depth", L"CDepthWnd");
    set.AddCol(L"Empty");
}

const char* const filled = "Windows{Plan:CPlanWnd{Level=3;Title=Fairway \\u00FCber 20 m;*first;*1 and 2;}"
                           "Depth:CDepthWnd{}}Empty{}";

/** A tree of one value, written and read again. */
std::string RoundTrip(const wchar_t* value)
{
    const TempDir dir;
    CESet stored(1);
    CString text = value;
    stored.AddCol(L"c")->AddObj(L"o", L"t")->Item(L"v", text);
    EXPECT_NE(stored.Save(dir.File()), 0);
    CESet loaded(0);
    EXPECT_NE(loaded.Load(dir.File()), 0);
    text = L"(kept)";
    loaded.GetCol(L"c")->GetObj(L"o")->Item(L"v", text);
    return Narrow(text);
}

} // namespace

TEST(CESet, FindsTheFirstOfExactlyThatName)
{
    CESet set(1);
    CESetCol* const first = set.AddCol(L"a");
    set.AddCol(L"a");
    CESetObj* const object = first->AddObj(L"o", L"1");
    first->AddObj(L"o", L"2");
    EXPECT_EQ(set.GetCount(), 2);
    EXPECT_EQ(set.GetCol(L"a"), first);
    EXPECT_EQ(set.GetCol(L"A"), nullptr);
    EXPECT_EQ(set.GetCol(L""), nullptr);
    EXPECT_EQ(first->GetObj(L"o"), object);
    EXPECT_EQ(first->GetObj(L"o "), nullptr);
}

TEST(CESet, PassesItsDirectionDown)
{
    for (const int storing : {0, 1, -5}) {
        CESet set(storing);
        const CESetCol& col = *set.AddCol(L"c");
        const CESetObj& obj = *set.GetCol(L"c")->AddObj(L"o", L"t");
        EXPECT_EQ(set.IsStoring() != 0, storing != 0);
        EXPECT_EQ(col.IsStoring(), storing);
        EXPECT_EQ(obj.IsStoring(), storing);
        EXPECT_EQ(col.IsLoading() != 0, storing == 0);
        EXPECT_EQ(obj.IsLoading() != 0, storing == 0);
    }
    EXPECT_NE(CESetObj().IsLoading(), 0);
    EXPECT_NE(CESetCol().IsLoading(), 0);
}

TEST(CESet, CopiesBelongToThemselves)
{
    CESet copy(0);
    copy.AddCol(L"old")->AddObj(L"old", L"t")->Add(L"old", L"1");
    {
        CESet source(1);
        Fill(source);
        CESet constructed(source);
        EXPECT_EQ(Dump(constructed), filled);
        copy = constructed;
        constructed.GetCol(L"Windows")->GetObj(L"Plan")->Add(L"later", L"1");
    } // the sources are gone; a copy that refers to them would now read freed memory
    EXPECT_EQ(Dump(copy), filled);
    CESetObj& plan = *copy.GetCol(L"Windows")->GetObj(L"Plan");
    EXPECT_NE(plan.IsStoring(), 0);
    CString value;
    EXPECT_EQ(plan.GetItm(L"Title", value), 1);

    CESet other(0);
    CESetCol& col = *other.AddCol(L"c");
    col = *copy.GetCol(L"Windows");
    EXPECT_EQ(col.IsStoring(), 0);
    EXPECT_EQ(col.GetHead()->IsStoring(), 0);
    const CESetCol loose(*copy.GetCol(L"Windows"));
    EXPECT_NE(loose.GetHead()->IsStoring(), 0);
}

TEST(CESet, SavesExactlyThisText)
{
    const TempDir dir;
    CESet set(1);
    Fill(set);
    ASSERT_NE(set.Save(dir.File()), 0);
    const std::string bytes = ReadBytes(dir.File());
    const std::size_t head = bytes.find("\">\r\n") + 4;
    EXPECT_TRUE(std::regex_match(
        bytes.substr(0, head),
        std::regex("<\\?xml version=\"1.0\" \\?>\r\n<Corvane date=\"[^\"\r\n]{10,128}\">\r\n")));
    if (GetACP() == 1252) {
        EXPECT_EQ(bytes.substr(head), "\t<Collection name=\"Windows\">\r\n"
                                      "\t\t<Object name=\"Plan\" type=\"CPlanWnd\">\r\n"
                                      "\t\t\t<Level val=\"3\"/>\r\n"
                                      "\t\t\t<Title val=\"Fairway \xFC"
                                      "ber 20 m\"/>\r\n"
                                      "\t\t\t<Data>first</Data>\r\n"
                                      "\t\t\t<Data>1 and 2</Data>\r\n"
                                      "\t\t</Object>\r\n"
                                      "\t\t<Object name=\"Depth\" type=\"CDepthWnd\">\r\n"
                                      "\t\t</Object>\r\n"
                                      "\t</Collection>\r\n"
                                      "\t<Collection name=\"Empty\">\r\n"
                                      "\t</Collection>\r\n"
                                      "</Corvane>\r\n");
    }
    EXPECT_EQ(dir.Files().size(), 1U);
}

TEST(CESet, LoadsWhatItSavedBehindWhatIsThere)
{
    const TempDir dir;
    CESet stored(1);
    Fill(stored);
    ASSERT_NE(stored.Save(dir.File()), 0);
    CESet loaded(0);
    loaded.AddCol(L"before");
    ASSERT_NE(loaded.Load(dir.File()), 0);
    EXPECT_EQ(Dump(loaded), std::string("before{}") + filled);
    EXPECT_NE(loaded.GetCol(L"Windows")->GetObj(L"Plan")->IsLoading(), 0);
}

TEST(CESet, KeepsAndLosesValuesAsDocumented)
{
    EXPECT_EQ(RoundTrip(L"plain & simple <'text'>"), "plain & simple <'text'>");
    EXPECT_EQ(RoundTrip(L"a\"b"), "a");
    EXPECT_EQ(RoundTrip(L"a\nb"), "a");
    EXPECT_EQ(RoundTrip(L""), "(kept)");
    EXPECT_EQ(RoundTrip(L"100%% sure"), "100% sure");
    EXPECT_EQ(RoundTrip(L"%d%s%n%"), "0");
    EXPECT_EQ(RoundTrip(std::wstring(4095, L'x').c_str()), std::string(4095, 'x'));
    EXPECT_EQ(RoundTrip(std::wstring(5000, L'x').c_str()), std::string(4095, 'x'));
    EXPECT_EQ(RoundTrip(std::wstring(600'000, L'x').c_str()), std::string(4095, 'x'));
    EXPECT_EQ(RoundTrip((L"\u00E4" + std::wstring(600'000, L'x')).c_str()),
              "\\u00E4" + std::string(4094, 'x'));
}

TEST(CESet, ReplacesWhatTheCodePageLacks)
{
    if (GetACP() != 1252)
        GTEST_SKIP() << "the expectations are those of code page 1252";
    EXPECT_EQ(RoundTrip(L"\u20AC \u00DF \u00FF"), "\\u20AC \\u00DF \\u00FF");
    EXPECT_EQ(RoundTrip(L"\u4E00 \u03A9"), "? ?");
    // A look-alike of the quotation mark must not become one.
    EXPECT_EQ(RoundTrip(L"a\uFF02/>b"), "a?/>b");
}

TEST(CESet, SavesEveryFormOfLineEndAndZeroSafely)
{
    const TempDir dir;
    CESet set(1);
    CString text(L"a\nb\0c", 5);
    CESetObj& obj = *set.AddCol(L"c")->AddObj(L"o", L"t");
    obj.Item(L"v", text);
    text = CString(L"\u00E4\n\0c", 4);
    obj.Item(L"w", text);
    ASSERT_NE(set.Save(dir.File()), 0);
    const std::string bytes = ReadBytes(dir.File());
    EXPECT_NE(bytes.find("<v val=\"a\r\nb\"/>\r\n"), bytes.npos);
    EXPECT_NE(bytes.find("\r\n\"/>\r\n"), bytes.npos);
    EXPECT_EQ(bytes.find('\0'), bytes.npos);
}

TEST(CESet, BuildsSavesLoadsAndDestroysAHugeTree)
{
    const TempDir dir;
    constexpr int count = 400'000;
    CESet set(1);
    for (const wchar_t* name : {L"many", L"more"}) {
        CESetCol& col = *set.AddCol(name);
        CESetObj& wide = *col.AddObj(L"wide", L"t");
        for (int i = 0; i < count; ++i)
            wide.Item(L"i", i);
        for (int i = 0; i < count / 10; ++i)
            col.AddObj(L"o", L"t");
    }
    ASSERT_NE(set.Save(dir.File()), 0);
    CESet loaded(0);
    ASSERT_NE(loaded.Load(dir.File()), 0);
    ASSERT_EQ(loaded.GetCount(), 2);
    EXPECT_EQ(loaded.GetTail()->GetCount(), count / 10 + 1);
    CESetObj& wide = *loaded.GetTail()->GetHead();
    for (int i = 0; i < count; ++i) {
        int value = -1;
        wide.Item(L"i", value);
        ASSERT_EQ(value, i);
    }
}
