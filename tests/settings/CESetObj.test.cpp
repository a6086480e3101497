#include "tests/settings/Support.h"

#include "core/CMat.h"
#include "core/CV3.h"
#include "tests/support/GermanLocale.h"

#include <limits>

namespace
{

using support::Narrow;

/** An object of a tree of the wanted direction. */
struct ObjOfTree {
    explicit ObjOfTree(int storing)
        : set(storing)
        , obj(*set.AddCol(L"c")->AddObj(L"o", L"t"))
    {
    }
    CESet set;
    CESetObj& obj;
};

/** The text that storing a value gives. */
template <class T>
std::string Written(T value)
{
    ObjOfTree tree(1);
    tree.obj.Item(L"v", value);
    EXPECT_EQ(tree.obj.GetCount(), 1);
    return Narrow(tree.obj.GetHead()->m_value);
}

/** What a variable is after its item was read from a text. */
template <class T>
T Read(const wchar_t* text, T before)
{
    ObjOfTree tree(0);
    tree.obj.Add(L"v", L"%s", text);
    tree.obj.Item(L"v", before);
    return before;
}

CString Text(const wchar_t* text)
{
    return text;
}

} // namespace

TEST(CESetObjItem, WritesEachTypeInItsFormat)
{
    EXPECT_EQ(Written<unsigned char>(200), "200");
    EXPECT_EQ(Written<char>('x'), "x");
    EXPECT_EQ(Written<char>(' '), " ");
    EXPECT_EQ(Written<char>('\0'), "");
    EXPECT_EQ(Written<unsigned long>(255), "0xff");
    EXPECT_EQ(Written<unsigned long>(0xFFFF'FFFF), "0xffffffff");
    EXPECT_EQ(Written<short>(-32768), "-32768");
    EXPECT_EQ(Written<unsigned short>(65535), "65535");
    EXPECT_EQ(Written<int>(std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(Written<unsigned int>(4294967295U), "4294967295");
    EXPECT_EQ(Written<float>(0.1F), "0.1");
    EXPECT_EQ(Written<float>(1e-10F), "1e-10");
    EXPECT_EQ(Written(Text(L"as it is: 100% \u00FC")), "as it is: 100% \\u00FC");
}

TEST(CESetObjItem, WritesDoublesWithSixDigitsAndAPoint)
{
    const struct {
        double value;
        const char* text;
    } rows[] = {{0.0, "0"},
                {-0.0, "-0"},
                {1.0, "1"},
                {0.1, "0.1"},
                {1234567.0, "1.23457e+06"},
                {999999.5, "1e+06"},
                {0.0001, "0.0001"},
                {0.00001, "1e-05"},
                {-1.5e100, "-1.5e+100"},
                {-32768.0, "-32768"},
                {std::numeric_limits<double>::max(), "1.79769e+308"},
                {std::numeric_limits<double>::infinity(), "inf"},
                {-std::numeric_limits<double>::infinity(), "-inf"},
                {std::numeric_limits<double>::quiet_NaN(), "nan"},
                {-std::numeric_limits<double>::quiet_NaN(), "nan"}};
    for (const auto& row : rows)
        EXPECT_EQ(Written(row.value), row.text);
    EXPECT_EQ(Written(CV3(1, -2.5, 1e10)), "1, -2.5, 1e+10");
    EXPECT_EQ(Written(CMat()), "1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0");
}

TEST(CESetObjItem, KnowsNoDecimalComma)
{
    const vant::test::GermanLocale locale;
    if (!locale.IsActive())
        GTEST_SKIP() << "this system has no German locale";
    EXPECT_EQ(Written(0.5), "0.5");
    EXPECT_EQ(Written(CV3(0.5, 1.5, 2.5)), "0.5, 1.5, 2.5");
    EXPECT_EQ(Read(L"0.25", 9.0), 0.25);
    EXPECT_EQ(Read(L"0,25", 9.0), 9.0);
}

TEST(CESetObjItem, ReadsIntegersThatAreTheWholeText)
{
    const struct {
        const wchar_t* text;
        int value;
    } rows[] = {{L"12", 12},
                {L"-12", -12},
                {L"+12", 12},
                {L" \t12", 12},
                {L"2147483647", 2147483647},
                {L"-2147483648", std::numeric_limits<int>::min()},
                {L"12 ", 7},
                {L"12abc", 7},
                {L"12.5", 7},
                {L"1 2", 7},
                {L"- 12", 7},
                {L"--12", 7},
                {L"0x12", 7},
                {L"abc", 7},
                {L"", 7},
                {L" ", 7},
                {L"-", 7},
                {L"\uFF11", 7},
                {L"2147483648", std::numeric_limits<int>::min()}, // the low bits
                {L"-2147483649", 2147483647},
                {L"99999999999999999999999999x", 7}};
    for (const auto& row : rows)
        EXPECT_EQ(Read(row.text, 7), row.value) << Narrow(row.text);
}

TEST(CESetObjItem, ReadsUnsignedAsScanfDoes)
{
    EXPECT_EQ(Read(L"4294967295", 7U), 4294967295U);
    EXPECT_EQ(Read(L"-1", 7U), 4294967295U);
    EXPECT_EQ(Read(L"4294967297", 7U), 1U); // the low bits
    EXPECT_EQ(Read(L"1 ", 7U), 7U);
    EXPECT_EQ(Read(L"255", static_cast<unsigned char>(7)), 255);
    EXPECT_EQ(Read(L"256", static_cast<unsigned char>(7)), 0);
    EXPECT_EQ(Read(L"65537", static_cast<unsigned short>(7)), 1);
    EXPECT_EQ(Read(L"-1", static_cast<unsigned short>(7)), 65535);
    EXPECT_EQ(Read(L"32768", static_cast<short>(7)), -32768);
    EXPECT_EQ(Read(L"3276x", static_cast<short>(7)), 7);
}

TEST(CESetObjItem, ReadsUnsignedLongOnlyBehindItsPrefix)
{
    const struct {
        const wchar_t* text;
        unsigned long value;
    } rows[] = {{L"0xff", 255},      {L"0xFf", 255},         {L"0xffffffff", 0xFFFF'FFFF},
                {L"0x0xff", 255}, // the pattern's prefix, then the one that a hexadecimal number may have
                {L"0x ff", 255},     {L"0x-1", 0xFFFF'FFFF}, {L"255", 7},
                {L"0Xff", 7},        {L" 0xff", 7},          {L"0xff ", 7},
                {L"0x", 7},          {L"0x0x", 7},           {L"0xfg", 7},
                {L"0x10000000a", 10}};
    for (const auto& row : rows)
        EXPECT_EQ(Read(row.text, 7UL), row.value) << Narrow(row.text);
}

TEST(CESetObjItem, ReadsOneCharacter)
{
    EXPECT_EQ(Read(L"x", 'a'), 'x');
    EXPECT_EQ(Read(L" ", 'a'), ' ');
    EXPECT_EQ(Read(L"xy", 'a'), 'a');
    EXPECT_EQ(Read(L"", 'a'), 'a');
    EXPECT_EQ(Read(L"\u4E00", 'a'), 'a'); // in no 8-bit code page
    for (int code = 1; code < 256; ++code) {
        const char c = static_cast<char>(code);
        ObjOfTree stored(1);
        char v = c;
        stored.obj.Item(L"v", v);
        EXPECT_EQ(Read(stored.obj.GetHead()->m_value, static_cast<char>(c ^ 1)), c) << code;
    }
}

TEST(CESetObjItem, ReadsFloatingNumbersThatAreTheWholeText)
{
    const struct {
        const wchar_t* text;
        double value;
    } rows[] = {{L"1.5", 1.5},  {L" -1.5e3", -1500}, {L".5", 0.5}, {L"5.", 5},        {L"+5", 5},
                {L"1e-400", 0}, {L"0x1.8p1", 7},     {L"inf", 7},  {L"-Infinity", 7}, {L"1.5 ", 7},
                {L"1.5x", 7},   {L"1,5", 7},         {L"1e", 7},   {L"1e+", 7},       {L".", 7},
                {L"", 7},       {L"0x", 7},          {L"nan", 7},  {L"nan(1)", 7},    {L"1e400", 7},
                {L"-1e400", 7}};
    for (const auto& row : rows)
        EXPECT_EQ(Read(row.text, 7.0), row.value) << Narrow(row.text);
    EXPECT_EQ(Read(L"1e39", 7.0F), 7.0F);
    EXPECT_EQ(Read(L"1e-50", 7.0F), 0.0F);
    EXPECT_EQ(Read(L"16777217", 7.0F), 16777216.0F);
    EXPECT_EQ(Read((L"0." + std::wstring(3000, L'0') + L"1e3001").c_str(), 7.0), 1.0);
}

TEST(CESetObjItem, ReadsVectorsWhenAllFieldsConvert)
{
    const CV3 before(7, 8, 9);
    for (const wchar_t* text : {L"1, 2, 3", L"1,2,3", L" 1, \t2,3", L"1, 2, 3 and more", L"1, 2, 3, 4"})
        EXPECT_TRUE(Read(text, before) == CV3(1, 2, 3)) << Narrow(text);
    for (const wchar_t* text : {L"1,2", L"1, 2, ", L"1 , 2, 3", L"1 2 3", L"1; 2; 3", L"a, 2, 3", L"1, 2, 3e",
                                L"1, 2, 1e400", L"1, nan, 3", L""})
        EXPECT_TRUE(Read(text, before) == before) << Narrow(text);
}

TEST(CESetObjItem, ReadsMatricesWhenAllFieldsConvert)
{
    CMat source;
    source.RotateZ(0.5);
    source.Translate(10, 20, 30);
    ObjOfTree stored(1);
    stored.obj.Item(L"v", source);
    const CString text = stored.obj.GetHead()->m_value;
    EXPECT_EQ(Written(Read(text, CMat())), Narrow(text));
    EXPECT_EQ(Written(Read(text.Left(text.ReverseFind(L',')), CMat())), Written(CMat())); // eleven
}

TEST(CESetObjItem, ReadsTextAsItIs)
{
    EXPECT_EQ(Narrow(Read(L" 12 abc ", Text(L"before"))), " 12 abc ");
    EXPECT_EQ(Narrow(Read(L"", Text(L"before"))), "");
}

TEST(CESetObjItem, KeepsTheVariableWhenTheItemIsMissing)
{
    ObjOfTree tree(0);
    tree.obj.Add(L"Level", L"5");
    int i = 1;
    CString s = L"before";
    CV3 v(1, 2, 3);
    tree.obj.Item(L"level", i); // names are case-sensitive
    tree.obj.Item(L"s", s);
    tree.obj.Item(L"v", v);
    EXPECT_EQ(i, 1);
    EXPECT_EQ(Narrow(s), "before");
    EXPECT_TRUE(v == CV3(1, 2, 3));
    tree.obj.Item(L"Level", i);
    EXPECT_EQ(i, 5);
}

TEST(CESetObjItem, ResolvesPointersOnlyWhenLoading)
{
    int target = 0;
    int before = 0;
    CString asked;
    const auto factory = [&](const CString& key) -> void* {
        asked += key;
        return &target;
    };

    ObjOfTree stored(1);
    void* p = &before;
    stored.obj.Item(L"p", p, factory);
    EXPECT_TRUE(stored.obj.IsEmpty());
    EXPECT_EQ(p, &before);

    ObjOfTree loaded(0);
    loaded.obj.Item(L"p", p, factory);
    EXPECT_EQ(p, &before);
    loaded.obj.Add(L"p", L"key");
    loaded.obj.Add(L"null", L"NULL");
    loaded.obj.Add(L"empty", L"");
    loaded.obj.Item(L"p", p, factory);
    EXPECT_EQ(p, &target);
    for (const wchar_t* name : {L"null", L"empty"}) {
        p = &before;
        loaded.obj.Item(name, p, factory);
        EXPECT_EQ(p, nullptr);
    }
    EXPECT_EQ(Narrow(asked), "key");
}

TEST(CESetObj, FormatsItemsAndDataLines)
{
    CESetObj obj;
    obj.Add(L"a", L"%d of %s, %.1f%%", 3, L"four", 5.5);
    obj.Add(L"a", L"again");
    obj.Data(L"%04d", 12);
    ASSERT_EQ(obj.GetCount(), 2);
    EXPECT_EQ(Narrow(obj.GetHead()->m_value), "3 of four, 5.5%");
    EXPECT_EQ(Narrow(obj.GetTail()->m_value), "again");
    ASSERT_EQ(obj.m_data.GetCount(), 1);
    EXPECT_EQ(Narrow(*obj.m_data.GetHead()), "0012");
}

TEST(CESetObj, FindsItemsInAnyOrder)
{
    CESetObj obj;
    for (int i = 0; i < 10; ++i)
        obj.Add(CString(static_cast<wchar_t>(L'a' + i)), L"%d", i);
    const auto find = [&](wchar_t name) {
        CString value = L"?";
        return obj.GetItm(CString(name), value) != 0 ? Narrow(value) : "none, " + Narrow(value);
    };
    for (const wchar_t name : std::wstring(L"abcdefghij"))
        EXPECT_EQ(find(name), std::to_string(name - L'a'));
    for (const wchar_t name : std::wstring(L"jihgfedcba"))
        EXPECT_EQ(find(name), std::to_string(name - L'a'));
    EXPECT_EQ(find(L'z'), "none, ?");
    EXPECT_EQ(find(L'd'), "3");
    EXPECT_EQ(find(L'd'), "3");
}

TEST(CESetObj, FindsTheNextOfSeveralOfOneName)
{
    CESetObj obj;
    for (const wchar_t* value : {L"1", L"2", L"3"})
        obj.Add(L"n", value);
    std::string found;
    for (int i = 0; i < 5; ++i) {
        CString value;
        EXPECT_EQ(obj.GetItm(L"n", value), 1);
        found += Narrow(value);
    }
    EXPECT_EQ(found, "12312");
}

TEST(CESetObj, SearchesOnAfterItemsWereRemoved)
{
    const auto filled = [](CESetObj& obj) {
        for (const wchar_t* name : {L"a", L"b", L"c"})
            obj.Add(name, name);
        CString value;
        EXPECT_EQ(obj.GetItm(L"a", value), 1); // the next search would begin at b
    };
    const auto finds = [](CESetObj& obj) {
        std::string found;
        for (const wchar_t* name : {L"c", L"b", L"a", L"d"}) {
            CString value;
            if (obj.GetItm(name, value) != 0)
                found += Narrow(value);
        }
        return found;
    };
    CESetObj at;
    filled(at);
    at.RemoveAt(at.FindIndex(1));
    EXPECT_EQ(finds(at), "ca");

    CESetObj all;
    filled(all);
    all.RemoveAll();
    EXPECT_EQ(finds(all), "");
    all.Add(L"d", L"d");
    EXPECT_EQ(finds(all), "d");

    CESetObj lost; // Remove leaves the node where it is
    filled(lost);
    lost.Remove(lost.GetAt(lost.FindIndex(1)));
    EXPECT_EQ(finds(lost), "ca");

    CESetObj assigned;
    filled(assigned);
    CESetObj one;
    one.Add(L"d", L"d");
    assigned = one;
    EXPECT_EQ(finds(assigned), "d");
}
