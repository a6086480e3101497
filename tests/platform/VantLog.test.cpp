#include "platform/PlatformTest.h"

#include <stdexcept>
#include <thread>
#include <utility>

namespace
{

using namespace vant::detail;
using testing::ElementsAre;
using testing::IsEmpty;
using vant::test::Recorder;
using vant::test::recorderCapacity;
using VantLog = PlatformTest;

/** Answers as a test tells it to, and remembers what it was asked. */
class FakeSink : public ILogSink
{
public:
    CECEntry* Update(unsigned long id, int& state, const CString& text) override
    {
        updated.push_back({id, state, Text(text)});
        return answer;
    }
    CECEntry* Add(unsigned long id, int level, const CString& text) override
    {
        added.push_back({id, level, Text(text)});
        return answer;
    }

    CECEntry entry;
    CECEntry* answer = &entry;
    std::vector<Logged> updated;
    std::vector<Logged> added;
};

} // namespace

TEST_F(VantLog, EachLoggerWritesToItsOwnTarget)
{
    Vant::Console(2, L"%d %s", 7, L"lines");
    Vant::Comms(-3, L"$GPGGA,%5.1f", 12.25);
    Vant::Status(4001, 5, L"locked");
    Vant::Alarm(40, 2, L"%% of %c", L'x');

    EXPECT_THAT(Messages(LogTarget::console), ElementsAre(Logged{0, 2, L"7 lines"}));
    EXPECT_THAT(Messages(LogTarget::comms), ElementsAre(Logged{0, -3, L"$GPGGA, 12.2"}));
    EXPECT_THAT(Messages(LogTarget::status), ElementsAre(Logged{4001, 5, L"locked"}));
    EXPECT_THAT(Messages(LogTarget::alarm), ElementsAre(Logged{40, 2, L"% of x"}));
}

TEST_F(VantLog, LinesAreAddedAndStatesUpdated)
{
    FakeSink sink;
    for (const LogTarget target : {LogTarget::console, LogTarget::comms, LogTarget::status, LogTarget::alarm})
        SetLogSink(target, &sink);
    Vant::Console(1, L"a");
    Vant::Comms(2, L"b");
    Vant::Status(3, 4, L"c");
    Vant::Alarm(5, 6, L"d");
    EXPECT_THAT(sink.added, ElementsAre(Logged{0, 1, L"a"}, Logged{0, 2, L"b"}));
    EXPECT_THAT(sink.updated, ElementsAre(Logged{3, 4, L"c"}, Logged{5, 6, L"d"}));
    EXPECT_THAT(Messages(LogTarget::alarm), IsEmpty());

    SetLogSink(LogTarget::alarm, &Recorder(LogTarget::alarm));
    Vant::Alarm(5, 6, L"e");
    EXPECT_THAT(Messages(LogTarget::alarm), ElementsAre(Logged{5, 6, L"e"}));
}

TEST_F(VantLog, AlarmsAreHeardByLevelAndState)
{
    FakeSink sink;
    SetLogSink(LogTarget::alarm, &sink);
    Vant::options = 0x08;
    struct {
        int level;
        bool recorded;
        int state;
        bool heard;
    } const rows[] = {
        {1, true, 0, true},  {1, false, 0, false}, {3, true, 1, true},   {3, true, 3, false},
        {0, true, 1, false}, {2, true, 1, false},  {-1, true, 1, false},
    };
    for (const auto& row : rows) {
        sounds.clear();
        sink.entry.state = row.state;
        sink.answer = row.recorded ? &sink.entry : nullptr;
        Vant::Alarm(1, row.level, L"depth");
        EXPECT_EQ(sounds, row.heard ? std::vector{3049} : std::vector<int>{}) << row.level;
    }

    Vant::options = 0x20;
    sounds.clear();
    sink.answer = &sink.entry;
    Vant::Alarm(1, 1, L"depth");
    EXPECT_THAT(sounds, IsEmpty());
}

TEST_F(VantLog, AlarmsAreBroadcastFromLevelZeroUp)
{
    static std::vector<std::pair<int, std::wstring>> sent;
    sent.clear();
    Windows().infoMsg = [](int message, void* data) {
        sent.emplace_back(message, Text(static_cast<CECEntry*>(data)->text));
    };
    Vant::Alarm(7, -1, L"silent");
    Vant::Alarm(7, 0, L"lowest");
    Vant::Alarm(7, 4000, L"high");
    Vant::Status(7, 0, L"no alarm");
    EXPECT_THAT(sent, ElementsAre(std::pair(6000, L"lowest"), std::pair(6000, L"high")));
    EXPECT_THAT(Messages(LogTarget::alarm), ElementsAre(Logged{7, 4000, L"high"}));

    FakeSink sink;
    sink.answer = nullptr;
    SetLogSink(LogTarget::alarm, &sink);
    Vant::Alarm(7, 0, L"not kept");
    EXPECT_EQ(sent.size(), 2u);
}

TEST_F(VantLog, AReceiverThatThrowsDoesNotReachTheCaller)
{
    static int calls;
    calls = 0;
    Windows().infoMsg = [](int, void*) {
        if (++calls == 1)
            throw std::runtime_error("receiver");
        AfxThrowUserException();
    };
    EXPECT_NO_THROW(Vant::Alarm(7, 0, L"first"));
    EXPECT_NO_THROW(Vant::Alarm(7, 0, L"second"));
    EXPECT_EQ(calls, 2);
}

TEST_F(VantLog, RecorderKeepsOneEntryPerId)
{
    int state = 1;
    const CECEntry* const first = Recorder(LogTarget::status).Update(20, state, L"a");
    Vant::Status(10, 2, L"b");
    Vant::Status(20, 3, L"c");
    EXPECT_THAT(Messages(LogTarget::status), ElementsAre(Logged{10, 2, L"b"}, Logged{20, 3, L"c"}));
    EXPECT_EQ(first->text, L"c");
    EXPECT_EQ(first->repeats, 2);
    EXPECT_NE(first->time, 0);
    for (int i = 2; i < 1000; ++i)
        Vant::Status(20, 3, L"c");
    EXPECT_EQ(first->repeats, 0);
    CECEntry lower;
    lower.id = 10;
    EXPECT_TRUE(lower < *first);
    EXPECT_FALSE(*first < *first);
}

TEST_F(VantLog, RecorderForgetsTheOldest)
{
    constexpr int count = static_cast<int>(recorderCapacity) + 10;
    for (int i = 0; i < count; ++i)
        Vant::Console(i, L"line");
    const auto messages = Messages(LogTarget::console);
    ASSERT_EQ(messages.size(), recorderCapacity);
    EXPECT_EQ(messages.front().level, 10);
    EXPECT_EQ(messages.back().level, count - 1);

    // The longest without an update goes first.
    for (int id = 0; id < count; ++id) {
        Vant::Status(0, id, L"often");
        Vant::Status(static_cast<unsigned long>(id), id, L"once");
    }
    const auto states = Messages(LogTarget::status);
    ASSERT_EQ(states.size(), recorderCapacity);
    EXPECT_EQ(states[recorderCapacity - 2], (Logged{0, count - 1, L"often"}));
}

TEST_F(VantLog, ThreadsMayLogAtOnce)
{
    constexpr int perThread = 2000;
    constexpr int threads = 4;
    {
        std::vector<std::jthread> crew;
        for (int t = 0; t < threads; ++t)
            crew.emplace_back([t] {
                for (int i = 0; i < perThread; ++i)
                    Vant::Status(static_cast<unsigned long>(t), i, L"reading %d", i);
            });
    }
    const auto messages = Messages(LogTarget::status);
    std::vector<unsigned long> ids;
    for (const Logged& message : messages) {
        EXPECT_EQ(message.text, L"reading " + std::to_wstring(perThread - 1));
        ids.push_back(message.id);
    }
    EXPECT_THAT(ids, testing::UnorderedElementsAre(0u, 1u, 2u, 3u));
}
