#include "windows/WindowsTest.h"

#include <regex>
#include <thread>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Console = WindowsTest;

bool Matches(const CString& text, const wchar_t* pattern)
{
    return std::regex_match(Text(text), std::wregex(pattern));
}

CECEntry* Update(CConsole& console, unsigned long id, int state, const wchar_t* text = L"")
{
    return console.UpdateEntry(id, state, text);
}

} // namespace

TEST_F(Console, StartsWithItsDefaultsAsAReceiverOfTriggers)
{
    const int before = CVantWnd::s_trigRx.GetCount();
    {
        CConsole console;
        EXPECT_EQ(CVantWnd::s_trigRx.GetTail(), &console);
        EXPECT_TRUE(console.entries.IsEmpty());
        EXPECT_EQ(console.maxEntries, 20);
        EXPECT_EQ(console.seq, 0);
        EXPECT_EQ(console.changed, 1);
        EXPECT_EQ(console.cslKind, -1);
        EXPECT_EQ(console.logTo, 0);
        EXPECT_EQ(console.filter, 0x8fffffu);
        EXPECT_EQ(console.detail, 1);
        CVantWnd::Trigger(0.0, 0.0); // nothing to draw on
        EXPECT_EQ(console.changed, 1);
    }
    EXPECT_EQ(CVantWnd::s_trigRx.GetCount(), before);
}

TEST_F(Console, TheKindChoosesTheLogFile)
{
    CConsole console;
    console.fileName = L"own.csv";
    const struct {
        int kind;
        std::wstring file;
    } rows[] = {
        {7, L"own.csv"},
        {-1, L"own.csv"},
        {0, Dir() + L"Logs\\Console.csv"},
        {1, Dir() + L"Logs\\Status.csv"},
        {2, Dir() + L"Logs\\Alarms.csv"},
        {3, Dir() + L"Logs\\Alarms.csv"},
    };
    for (const auto& row : rows) {
        console.SetupCsl(row.kind);
        EXPECT_EQ(console.cslKind, row.kind);
        EXPECT_EQ(Text(console.fileName), row.file);
    }
}

TEST_F(Console, KeyedEntriesStandInTheOrderOfTheirIds)
{
    CConsole console;
    CECEntry* const first = Update(console, 30, 1, L"c");
    Update(console, 10, 2, L"a");
    Update(console, 20, 3, L"b");
    Update(console, 0xFFFFFFFF, 3, L"d");
    EXPECT_THAT(Ids(console), ElementsAre(10u, 20u, 30u, 0xFFFFFFFFu));
    EXPECT_THAT(Messages(console), ElementsAre(L"a", L"b", L"c", L"d"));
    EXPECT_EQ(console.FindEntry(30), first);
    EXPECT_EQ(console.FindEntry(31), nullptr);
    EXPECT_LT(*console.FindEntry(20), *first);

    console.ClearEntry(20);
    console.ClearEntry(21);
    EXPECT_THAT(Ids(console), ElementsAre(10u, 30u, 0xFFFFFFFFu));
    console.ClearList();
    EXPECT_THAT(Ids(console), IsEmpty());
}

TEST_F(Console, AnUpdateSetsStateTimeTextAndCounter)
{
    CConsole console;
    console.changed = 0;
    CECEntry* const entry = Update(console, 40, 5, L"Depth, 4.5m");
    EXPECT_EQ(console.changed, 1);
    EXPECT_TRUE(Matches(entry->text, L"00040\\.001 \\(\\d\\d:\\d\\d:\\d\\d\\) :Depth, 4\\.5m"))
        << Text(entry->text).c_str();
    EXPECT_NE(entry->text.Find(L"(" + entry->displayTime + L")"), -1);
    EXPECT_LE(CTime::GetCurrentTime().GetTime() - entry->time, 2);
    EXPECT_EQ(entry->state, 5);
    EXPECT_EQ(entry->repeats, 1);

    console.changed = 0;
    int state = 6000;
    EXPECT_EQ(console.UpdateEntry(40, state, L"100 % of %s"), entry)
        << "updated in place, and text is no format";
    EXPECT_EQ(state, 6000);
    EXPECT_EQ(console.changed, 1);
    EXPECT_EQ(entry->state, 6000);
    EXPECT_TRUE(Matches(entry->text, L"00040\\.002 \\(.*\\) :100 % of %s"));
    EXPECT_EQ(console.entries.GetCount(), 1);

    for (int i = 2; i < 1000; ++i)
        Update(console, 40, 1);
    EXPECT_EQ(entry->repeats, 0);
    EXPECT_TRUE(Matches(entry->text, L"00040\\.000 .*"));
    Update(console, 40, 1);
    EXPECT_EQ(entry->repeats, 1);
}

TEST_F(Console, TheStateMinusOneClears)
{
    CConsole console;
    Update(console, 10, 1);
    Update(console, 20, 1);
    console.changed = 0;
    EXPECT_EQ(Update(console, 10, -1, L"gone"), nullptr);
    EXPECT_EQ(console.changed, 1);
    EXPECT_EQ(Update(console, 15, -1, L"never there"), nullptr);
    EXPECT_THAT(Ids(console), ElementsAre(20u));
    EXPECT_NE(Update(console, 20, -2), nullptr) << "only -1";

    // RecordEntry() keeps it.
    int state = -1;
    ASSERT_NE(console.RecordEntry(20, state, L"over"), nullptr);
    EXPECT_EQ(console.FindEntry(20)->state, -1);
}

TEST_F(Console, AnEntryThatClearsItselfTellsItsCaller)
{
    CConsole console;
    int state = 4;
    console.UpdateEntry(10, state, L"first", CConsole::kindSelfClear);
    EXPECT_EQ(state, 4) << "a new entry leaves the state alone";
    EXPECT_TRUE(console.TestEntry(console.FindEntry(10)));
    CECEntry* const entry = console.UpdateEntry(10, state, L"second");
    EXPECT_EQ(state, -1);
    EXPECT_EQ(entry->state, 4);
    EXPECT_EQ(console.UpdateEntry(10, state, L"third"), nullptr);
    EXPECT_THAT(Ids(console), IsEmpty());
}

TEST_F(Console, LinesAreNumberedAndTheOldestGoes)
{
    CConsole console;
    for (int i = 1; i <= 25; ++i)
        console.AddEntry(7, i, L"line");
    EXPECT_EQ(console.seq, 25);
    ASSERT_EQ(console.entries.GetCount(), 20);
    EXPECT_TRUE(Matches(console.entries.GetHead()->text, L"00006\\. \\(\\d\\d:\\d\\d:\\d\\d\\) :line"));
    EXPECT_EQ(console.entries.GetTail()->state, 25);
    EXPECT_EQ(console.entries.GetTail()->id, 7u);

    console.ClearList();
    console.maxEntries = 3;
    for (int i = 0; i < 5; ++i)
        console.AddEntry(0, 0, L"");
    EXPECT_EQ(console.entries.GetCount(), 3);
    EXPECT_EQ(console.seq, 30) << "the sequence goes on";
    console.maxEntries = 0;
    console.AddEntry(0, 0, L"last");
    EXPECT_THAT(Messages(console), ElementsAre(L"last"));
}

TEST_F(Console, TheFilterTestsLevelRangesAndKinds)
{
    CConsole console;
    CECEntry entry;
    const auto passes = [&](int state, unsigned int filter) {
        entry.state = state;
        console.filter = filter;
        return console.TestEntry(&entry) != 0;
    };
    const struct {
        int state;
        int bit;
    } rows[] = {{0, 4},     {999, 4},    {1000, 5},     {4321, 8}, {8999, 12},
                {9000, 13}, {10000, 13}, {INT_MAX, 13}, {-1, 4},   {INT_MIN, 4}};
    for (const auto& row : rows) {
        EXPECT_TRUE(passes(row.state, 1u << row.bit)) << row.state;
        EXPECT_FALSE(passes(row.state, 0x3ff0u & ~(1u << row.bit))) << row.state;
        EXPECT_TRUE(passes(row.state, 0x8fffffu)) << "at first everything passes";
    }
    entry.kind = 0x5;
    EXPECT_TRUE(passes(0, 0x15));
    EXPECT_FALSE(passes(0, 0x11)) << "all kind bits, not one of them";
    entry.kind = CConsole::kindVerbose;
    EXPECT_FALSE(passes(0, 0x8fffff)) << "verbose entries are hidden at first";
    entry.kind = CConsole::kindDetailed;
    EXPECT_TRUE(passes(0, 0x8fffff));
    console.detail = 0;
    EXPECT_FALSE(passes(0, 0x8fffff));
    EXPECT_EQ(console.TestEntry(nullptr), 0);
}

TEST_F(Console, APointerToAnEntryStaysGood)
{
    CConsole console;
    CECEntry* const cleared = Update(console, 10, 1, L"cleared");
    console.ClearEntry(10);
    // Its memory is used again, and belongs to the console whatever happens.
    CECEntry* const next = Update(console, 20, 2, L"next");
    EXPECT_EQ(next, cleared);
    EXPECT_EQ(next->id, 20u);
    EXPECT_EQ(next->repeats, 1);

    CECEntry copy;
    EXPECT_TRUE(console.GetEntry(20, copy));
    EXPECT_EQ(copy.text, next->text);
    EXPECT_FALSE(console.GetEntry(10, copy));
    EXPECT_EQ(copy.id, 20u);
}

TEST_F(Console, ManyIdsStayQuick)
{
    constexpr int ids = 1000;
    CConsole console;
    const ULONGLONG start = ::GetTickCount64();
    for (int round = 0; round < 10; ++round)
        for (int i = 0; i < ids; ++i)
            Update(console, static_cast<unsigned long>(i * 7919 % ids), round, L"state");
    EXPECT_LT(::GetTickCount64() - start, 5000u);
    const auto kept = Ids(console);
    EXPECT_THAT(kept, SizeIs(ids));
    EXPECT_TRUE(std::is_sorted(kept.begin(), kept.end()));
}

TEST_F(Console, ThreadsMayUpdateClearAndRead)
{
    constexpr int rounds = 3000;
    CConsole console;
    {
        std::vector<std::jthread> crew;
        for (int t = 0; t < 4; ++t)
            crew.emplace_back([&console, t] {
                for (int i = 0; i < rounds; ++i) {
                    const auto id = static_cast<unsigned long>(i % 5);
                    if (t == 3 && i % 3 == 0) {
                        console.ClearEntry(id);
                        continue;
                    }
                    int state = t;
                    const CECEntry* const entry = console.UpdateEntry(id, state, L"text of some length");
                    const CSingleLock guard(&console.entryLock, TRUE);
                    EXPECT_EQ(entry->text.Right(4), L"ngth");
                }
            });
    }
    const auto ids = Ids(console);
    EXPECT_LE(ids.size(), 5u);
    EXPECT_TRUE(std::is_sorted(ids.begin(), ids.end()));
    EXPECT_EQ(std::adjacent_find(ids.begin(), ids.end()), ids.end()) << "an id twice";
}
