#include "tests/settings/Support.h"

#include "settings/detail/Percent.h"
#include "settings/detail/Search.h"
#include "settings/detail/SetWriter.h"

#include <array>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace
{

using support::Narrow;
using vant::detail::ExpandWithoutArguments;
using vant::detail::FindFromCursor;

std::string Expanded(const wchar_t* format)
{
    return Narrow(std::wstring_view(ExpandWithoutArguments(std::wstring_view(format))));
}

template <class... Args>
std::string Formatted(const wchar_t* format, Args... args)
{
    CString text;
    text.Format(format, args...);
    return Narrow(text);
}

} // namespace

TEST(ExpandWithoutArguments, GivesWhatFormatGivesForZero)
{
    for (const wchar_t* format :
         {L"%d",      L"%5d|",  L"%-5d|", L"%05d", L"%+d",   L"% d",  L"%+05d", L"%.3d", L"%8.3d|",
          L"%08.3d|", L"%.0d|", L"%.d|",  L"%i",   L"%u",    L"%x",   L"%#x",   L"%X",   L"%o",
          L"%#o",     L"%#.0o", L"%hd",   L"%ld",  L"%I32d", L"%hhd", L"%+u",   L"% x"})
        EXPECT_EQ(Expanded(format), Formatted(format, 0)) << Narrow(format);
    for (const wchar_t* format : {L"%I64d", L"%lld", L"%zu", L"%jd", L"%td", L"%Id", L"%20I64x|", L"%p"})
        EXPECT_EQ(Expanded(format), Formatted(format, 0LL)) << Narrow(format);
    for (const wchar_t* format : {L"%f",    L"%.2f", L"%10.2f|", L"%-10.2f|", L"%010.2f", L"%+f", L"% .0f",
                                  L"%#.0f", L"%F",   L"%e",      L"%.0e",     L"%E",      L"%g",  L"%#g",
                                  L"%G",    L"%a",   L"%.0a",    L"%A",       L"%020a",   L"%lf"})
        EXPECT_EQ(Expanded(format), Formatted(format, 0.0)) << Narrow(format);
    for (const wchar_t* format : {L"%s|", L"%5s|", L"%-5s|", L"%.3s|", L"%ls|", L"%ws|"})
        EXPECT_EQ(Expanded(format), Formatted(format, L"")) << Narrow(format);
    for (const wchar_t* format : {L"%*d|", L"%.*d|", L"%-*.3d|"})
        EXPECT_EQ(Expanded(format), Formatted(format, 0, 0)) << Narrow(format);
    for (const wchar_t* format :
         {L"%%", L"100%", L"%y", L"a%-", L"%5.3", L"%I6", L"%", L"%%%", L"%5%|", L"plain", L"%Z"})
        EXPECT_EQ(Expanded(format), Formatted(format, 0)) << Narrow(format);
}

TEST(ExpandWithoutArguments, NeverWritesAndNeverGrowsBeyondBounds)
{
    EXPECT_EQ(Expanded(L"a%nb"), "ab");
    EXPECT_EQ(Expanded(L"a%cb%3c"), "ab   ");
    EXPECT_EQ(Expanded(L"%99999999999999999999d").size(), vant::detail::widestDirective);
    EXPECT_EQ(Expanded(L"%.99999999999999999999f").size(), vant::detail::widestDirective + 2);
    std::wstring many;
    for (int i = 0; i < 1000; ++i)
        many += L"%512d";
    EXPECT_EQ(Expanded(many.c_str()).size(), vant::detail::longestExpansion);
}

TEST(FindFromCursor, ComparesOncePerElementInWrittenOrder)
{
    constexpr int count = 100'000;
    CLstMgd<int> list;
    for (int i = 0; i < count; ++i)
        list.AddTail(new int(i));
    int comparisons = 0;
    CVantPtr* cursor = nullptr;
    const auto find = [&](int wanted) {
        return FindFromCursor(list, cursor, [&](int each) { return ++comparisons, each == wanted; });
    };
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < count; ++i)
            ASSERT_EQ(*find(i), i);
    }
    EXPECT_EQ(comparisons, 2 * count);

    comparisons = 0;
    EXPECT_EQ(*find(10), 10);
    EXPECT_EQ(*find(9), 9); // all around, but for the one that was found before
    EXPECT_EQ(comparisons, 11 + count - 1);
    comparisons = 0;
    EXPECT_EQ(find(-1), nullptr);
    EXPECT_EQ(comparisons, count);
    comparisons = 0;
    EXPECT_EQ(*find(10), 10) << "a search in vain leaves the cursor where it was";
    EXPECT_EQ(comparisons, 1);
}

TEST(FindFromCursor, EndsOnEmptyAndUnlinked)
{
    CLstMgd<int> list;
    CVantPtr* cursor = nullptr;
    const auto none = [](int) { return false; };
    EXPECT_EQ(FindFromCursor(list, cursor, none), nullptr);
    for (int i = 0; i < 3; ++i)
        list.AddTail(new int(i));
    cursor = list.FindIndex(1);
    CVantPtr* const unlinked = cursor;
    list.Remove(list.GetAt(cursor));
    EXPECT_EQ(FindFromCursor(list, cursor, none), nullptr);
    delete unlinked; // a node that the list let go
}

TEST(SetWriter, WritesAnItemOfAnyLengthWithAnySpecialCharacterAnywhere)
{
    // The bytes that stand for a character of a value; NUL ends the value.
    const std::pair<wchar_t, const char*> specials[] = {
        {L'a', "a"},       {L' ', " "},    {L'~', "~"},     {L'\x7F', "\x7F"}, {L'\t', "\t"}, {L'\n', "\r\n"},
        {L'\x1F', "\x1F"}, {L'\x80', "?"}, {L'\x100', "?"}, {L'\x4161', "?"},  {0, nullptr},
    };
    const auto encode = [](std::wstring_view text) {
        std::string bytes;
        for (const wchar_t c : text)
            bytes += c < 0x80 ? static_cast<char>(c) : '?';
        return bytes;
    };
    std::string written;
    const auto drain = [&written](const char* bytes, std::size_t count) { written.append(bytes, count); };
    for (const std::size_t room : {30U, 35U, 256U}) {
        for (std::size_t length = 1; length <= 13; ++length) {
            for (std::size_t place = 0; place < length; ++place) {
                for (const auto& [special, bytes] : specials) {
                    std::wstring value(length, L'v');
                    value[place] = special;
                    std::string expected(place, 'v');
                    if (bytes != nullptr)
                        expected += bytes + std::string(length - place - 1, 'v');
                    vant::detail::SetWriter<wchar_t, decltype(encode), decltype(drain)> writer(encode, drain,
                                                                                               room);
                    written.clear();
                    writer.Item(L"Name", value);
                    writer.Item(value, L"1");
                    writer.End();
                    ASSERT_EQ("\t\t\t<Name val=\"" + expected + "\"/>\r\n\t\t\t<" + expected +
                                  " val=\"1\"/>\r\n</Corvane>\r\n",
                              written)
                        << "length " << length << ", place " << place << ", room " << room;
                }
            }
        }
    }
}

TEST(SlotPool, ServesTreesOfSeveralThreads)
{
    std::vector<std::thread> threads;
    std::array<int, 4> sums{};
    for (int& sum : sums) {
        threads.emplace_back([&sum] {
            for (int round = 0; round < 20; ++round) {
                CESet set(1);
                CESetObj& obj = *set.AddCol(L"c")->AddObj(L"o", L"t");
                for (int i = 0; i < 1'000; ++i)
                    obj.Item(L"i", i);
                for (CVantPtr* pos = obj.GetHeadPos(); pos != nullptr;)
                    sum += _wtoi(obj.GetNext(pos)->m_value);
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (const int sum : sums)
        EXPECT_EQ(sum, 20 * 999 * 1'000 / 2);
}
