// The thread itself.
#include "time/TimeTest.h"

#include <afxmt.h>

#include <functional>
#include <memory>
#include <thread>

using namespace std::chrono_literals;

namespace
{

constexpr DWORD soon = 20'000; // ms: a wait that is to succeed fails loudly instead of hanging

bool IsSet(CEvent& event)
{
    return ::WaitForSingleObject(event.m_hObject, soon) == WAIT_OBJECT_0;
}

DWORD MsOf(const std::function<void()>& work)
{
    const ULONGLONG begin = ::GetTickCount64();
    work();
    return static_cast<DWORD>(::GetTickCount64() - begin);
}

class TmSyncThread : public TimeTest
{
protected:
    TmSyncThread() { TmSync::interval = 5; }
};

/** A source that counts its polls, and may hang in one. */
class Counting : public CTmFn
{
public:
    int PollTm(double& value) override
    {
        priority = ::GetThreadPriority(::GetCurrentThread());
        if (++polls == 3)
            polledThrice.SetEvent();
        if (hangs) {
            inside.SetEvent();
            ::WaitForSingleObject(letGo.m_hObject, INFINITE);
            left.SetEvent();
        }
        value = TmSync::GetPc() * 2.0;
        return 1;
    }

    std::atomic<int> polls = 0;
    std::atomic<int> priority = 0;
    std::atomic<bool> hangs = false;
    CEvent polledThrice;
    CEvent inside;
    CEvent letGo;
    CEvent left;
};

/** Keeps whoever writes a status line until it is told to go on. */
class SlowSink : public vant::detail::ILogSink
{
public:
    CECEntry* Update(unsigned long, int&, const CString&) override
    {
        ++begun;
        ::WaitForSingleObject(goOn.m_hObject, INFINITE);
        return nullptr;
    }
    CECEntry* Add(unsigned long, int, const CString&) override { return nullptr; }

    std::atomic<int> begun = 0;
    CEvent goOn{FALSE, TRUE};
};

} // namespace

TEST_F(TmSyncThread, PollsAtTheHighestPriorityUntilExit)
{
    Counting source;
    ASSERT_EQ(TmSync::Init(), 1);
    const double clock = TmSync::GetClock() - static_cast<double>(TmSync::base80);
    EXPECT_GT(TmSync::GetTm(), clock - 0.02);
    EXPECT_LT(TmSync::GetTm(), clock + 5.0);
    EXPECT_EQ(TmSync::Init(), 1) << "again, without effect";
    EXPECT_EQ(TmSync::tmFns.GetHead(), &TmSync::ltf);
    TmSync::AddTmFn(&source); // while it polls
    ASSERT_TRUE(IsSet(source.polledThrice));
    EXPECT_EQ(source.priority, THREAD_PRIORITY_TIME_CRITICAL);
    while (source.polls < 10)
        std::this_thread::sleep_for(1ms);
    EXPECT_EQ(TmSync::Exit(), 1);
    const int polls = source.polls;
    EXPECT_NEAR(source.GetTm(100.0) - source.GetTm(0.0), 50.0, 0.5) << "of a thread that may be held up";
    EXPECT_THAT(Line(4101), testing::StartsWith(L"Default "));
    EXPECT_THAT(Line(4002), testing::StartsWith(L"Elpsd:0.0min "));
    EXPECT_TRUE(TmSync::tmFns.IsEmpty());
    EXPECT_EQ(TmSync::hExit, nullptr);
    std::this_thread::sleep_for(50ms);
    EXPECT_EQ(source.polls, polls) << "the thread has ended";
    EXPECT_EQ(TmSync::Exit(), 1);

    TmSync::interval = 600'000;
    ASSERT_EQ(TmSync::Init(), 1) << "and once more";
    EXPECT_LT(MsOf([] { EXPECT_EQ(TmSync::Exit(), 1); }), 900U) << "without waiting for the interval";
}

TEST_F(TmSyncThread, ExitReturnsWithinItsSecondWhileASourceHangs)
{
    Counting hanging;
    auto never = std::make_unique<Counting>();
    ASSERT_EQ(TmSync::Init(), 1);
    TmSync::AddTmFn(&hanging);
    hanging.hangs = true;
    TmSync::AddTmFn(never.get());
    ASSERT_TRUE(IsSet(hanging.inside));
    const DWORD ms = MsOf([] { EXPECT_EQ(TmSync::Exit(), 0); });
    EXPECT_GE(ms, 900U);
    EXPECT_LT(ms, 3000U) << "on a busy machine";
    // What the thread must not touch any more goes before it wakes up.
    const int polls = never->polls;
    EXPECT_LE(polls, 1);
    never.reset();

    // A new life begins while the old thread still hangs.
    Counting next;
    ASSERT_EQ(TmSync::Init(), 1);
    TmSync::AddTmFn(&next);
    EXPECT_TRUE(IsSet(next.polledThrice));
    hanging.letGo.SetEvent();
    ASSERT_TRUE(IsSet(hanging.left));
    std::this_thread::sleep_for(100ms);
    EXPECT_EQ(hanging.GetTm(7.0), 7.0) << "no sample after Exit()";
    EXPECT_EQ(TmSync::Exit(), 1) << "its events are its own";
}

TEST_F(TmSyncThread, PollingGoesOnWhileALineIsWritten)
{
    SlowSink slow;
    auto* const before = vant::detail::SetLogSink(vant::detail::LogTarget::status, &slow);
    Counting source;
    ASSERT_EQ(TmSync::Init(), 1);
    TmSync::AddTmFn(&source);
    ASSERT_TRUE(IsSet(source.polledThrice));
    const int polls = source.polls;
    while (source.polls < polls + 20)
        std::this_thread::sleep_for(1ms);
    EXPECT_EQ(slow.begun, 1) << "one report at a time";
    const DWORD ms = MsOf([] { EXPECT_EQ(TmSync::Exit(), 0) << "a line is still being written"; });
    EXPECT_LT(ms, 3000U) << "on a busy machine";
    vant::detail::SetLogSink(vant::detail::LogTarget::status, before);
    slow.goOn.SetEvent();
    while (Line(4002).empty()) // until the writer has left the sink
        std::this_thread::sleep_for(1ms);
}
