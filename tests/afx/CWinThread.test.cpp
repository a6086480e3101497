#include <afxmt.h>

#include "vafx/CWinThread.h"

#include <atomic>
#include <gtest/gtest.h>
#include <memory>

namespace
{

constexpr DWORD soon = 20'000; // ms: a wait that is to succeed fails loudly instead of hanging

struct Seen {
    std::atomic<CWinThread*> thread{nullptr};
    std::atomic<DWORD> id{0};
    CEvent done{FALSE, TRUE};
};

UINT Work(LPVOID param)
{
    auto& seen = *static_cast<Seen*>(param);
    seen.thread = AfxGetThread();
    seen.id = ::GetCurrentThreadId();
    seen.done.SetEvent();
    return 42;
}

UINT EndEarly(LPVOID param)
{
    static_cast<CEvent*>(param)->SetEvent();
    AfxEndThread(7);
    return 0;
}

struct Locked {
    CSyncObject& object;
    int value = 0;
};

UINT Count(LPVOID param)
{
    auto& locked = *static_cast<Locked*>(param);
    for (int i = 0; i < 2000; ++i) {
        CSingleLock lock(&locked.object, TRUE);
        const int old = locked.value;
        if (i % 64 == 0)
            ::SwitchToThread();
        locked.value = old + 1;
    }
    return 0;
}

int CountedByTwoThreads(CSyncObject& object)
{
    Locked locked{object};
    std::unique_ptr<CWinThread> threads[2];
    for (auto& thread : threads) {
        thread.reset(AfxBeginThread(Count, &locked, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED));
        thread->m_bAutoDelete = FALSE;
        thread->ResumeThread();
    }
    for (const auto& thread : threads)
        EXPECT_EQ(::WaitForSingleObject(thread->m_hThread, soon), WAIT_OBJECT_0);
    return locked.value;
}

UINT TryMutex(LPVOID param)
{
    CSingleLock lock(static_cast<CMutex*>(param));
    return lock.Lock(0) ? 1 : 0;
}

DWORD ExitCodeOf(AFX_THREADPROC proc, LPVOID param)
{
    const std::unique_ptr<CWinThread> thread(AfxBeginThread(proc, param, 0, 0, CREATE_SUSPENDED));
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    EXPECT_EQ(::WaitForSingleObject(thread->m_hThread, soon), WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeThread(thread->m_hThread, &code);
    return code;
}

/** Pumps messages, and counts what it was given. */
class CPump : public CWinThread
{
    DECLARE_DYNCREATE(CPump)

public:
    ~CPump() override { s_gone.SetEvent(); }

    BOOL InitInstance() override
    {
        MSG msg;
        ::PeekMessageW(&msg, nullptr, 0, 0, PM_NOREMOVE); // makes the queue
        return TRUE;
    }
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (pMsg->message == WM_APP)
            s_sum += static_cast<int>(pMsg->wParam);
        return CWinThread::PreTranslateMessage(pMsg);
    }
    BOOL OnIdle(LONG lCount) override
    {
        s_idle = lCount;
        if (lCount < idleCalls)
            return TRUE;
        s_rests.SetEvent();
        return FALSE;
    }
    int ExitInstance() override { return s_exitCode = CWinThread::ExitInstance(); }

    static constexpr LONG idleCalls = 3;
    static CEvent s_rests; // after that many calls of OnIdle
    static CEvent s_gone;
    static std::atomic<int> s_sum;
    static std::atomic<LONG> s_idle;
    static std::atomic<int> s_exitCode;
};

CEvent CPump::s_rests;
CEvent CPump::s_gone(FALSE, TRUE);
std::atomic<int> CPump::s_sum{0};
std::atomic<LONG> CPump::s_idle{-1};
std::atomic<int> CPump::s_exitCode{0};

IMPLEMENT_DYNCREATE(CPump, CWinThread)

} // namespace

TEST(CWinThread, WorkerKnowsItsObjectAndAnswersACode)
{
    Seen seen;
    const std::unique_ptr<CWinThread> thread(
        AfxBeginThread(Work, &seen, THREAD_PRIORITY_TIME_CRITICAL, 0, CREATE_SUSPENDED));
    ASSERT_NE(thread, nullptr);
    EXPECT_TRUE(thread->m_bAutoDelete);
    thread->m_bAutoDelete = FALSE;
    EXPECT_EQ(thread->GetThreadPriority(), THREAD_PRIORITY_TIME_CRITICAL);
    EXPECT_FALSE(seen.done.Lock(0)) << "it waits for ResumeThread";
    thread->ResumeThread();
    ASSERT_EQ(::WaitForSingleObject(thread->m_hThread, soon), WAIT_OBJECT_0);
    EXPECT_EQ(seen.thread, thread.get());
    EXPECT_EQ(seen.id, thread->m_nThreadID);
    DWORD code = 0;
    ::GetExitCodeThread(thread->m_hThread, &code);
    EXPECT_EQ(code, 42U);
}

TEST(CWinThread, WorkerMayEndEarlyOrDeleteItself)
{
    CEvent ran(FALSE, TRUE);
    EXPECT_EQ(ExitCodeOf(EndEarly, &ran), 7U);
    EXPECT_TRUE(ran.Lock(0));
    // Many that end before AfxBeginThread returns: the object deletes itself, once.
    for (int i = 0; i < 50; ++i) {
        CEvent done;
        AfxBeginThread(EndEarly, &done);
        EXPECT_TRUE(done.Lock(soon));
    }
}

TEST(CWinThread, PumpsMessages)
{
    CPump::s_sum = 0;
    CPump::s_rests.ResetEvent();
    CPump::s_gone.ResetEvent();
    CWinThread* const thread = AfxBeginThread(RUNTIME_CLASS(CPump));
    ASSERT_NE(thread, nullptr);
    ASSERT_TRUE(CPump::s_rests.Lock(soon)) << "without messages it is idle";
    EXPECT_EQ(CPump::s_idle, CPump::idleCalls);
    EXPECT_TRUE(thread->PostThreadMessage(WM_APP, 3, 0));
    ASSERT_TRUE(CPump::s_rests.Lock(soon)) << "and again after one";
    EXPECT_TRUE(thread->PostThreadMessage(WM_APP, 4, 0));
    EXPECT_TRUE(thread->PostThreadMessage(WM_QUIT, 5, 0));
    ASSERT_TRUE(CPump::s_gone.Lock(soon));
    EXPECT_EQ(CPump::s_sum, 7);
    EXPECT_EQ(CPump::s_exitCode, 5);
}

TEST(CMutex, IsOwnedByOneThread)
{
    CMutex mutex;
    EXPECT_EQ(CountedByTwoThreads(mutex), 4000);
    CMutex owned(TRUE);
    EXPECT_EQ(ExitCodeOf(TryMutex, &owned), 0U);
    EXPECT_TRUE(owned.Lock(0)) << "the owner may take it again";
    EXPECT_TRUE(owned.Unlock());
    EXPECT_EQ(ExitCodeOf(TryMutex, &owned), 0U);
    EXPECT_TRUE(owned.Unlock());
    EXPECT_EQ(ExitCodeOf(TryMutex, &owned), 1U);
    EXPECT_FALSE(owned.Unlock()) << "it is nobody's now";

    CMutex named(FALSE, L"vant-test-mutex");
    CMutex same(FALSE, L"vant-test-mutex");
    EXPECT_TRUE(named.Lock(0));
    EXPECT_EQ(ExitCodeOf(TryMutex, &same), 0U);
    named.Unlock();
}

TEST(CCriticalSection, IsOwnedByOneThread)
{
    CCriticalSection section;
    EXPECT_EQ(CountedByTwoThreads(section), 4000);
}

TEST(CEvent, SignalsOnceOrUntilReset)
{
    CEvent automatic;
    EXPECT_FALSE(automatic.Lock(0));
    automatic.SetEvent();
    EXPECT_TRUE(automatic.Lock(0));
    EXPECT_FALSE(automatic.Lock(0));
    CEvent manual(TRUE, TRUE);
    EXPECT_TRUE(manual.Lock(0));
    EXPECT_TRUE(manual.Lock(0));
    manual.ResetEvent();
    EXPECT_FALSE(manual.Lock(0));
}

TEST(CSingleLock, GivesBackWhatItHolds)
{
    CMutex mutex;
    {
        CSingleLock lock(&mutex);
        EXPECT_FALSE(lock.IsLocked());
        EXPECT_FALSE(lock.Unlock());
        EXPECT_TRUE(lock.Lock());
        EXPECT_TRUE(lock.IsLocked());
        EXPECT_EQ(ExitCodeOf(TryMutex, &mutex), 0U);
        EXPECT_TRUE(lock.Unlock());
        EXPECT_EQ(ExitCodeOf(TryMutex, &mutex), 1U);
        EXPECT_TRUE(lock.Lock());
    }
    EXPECT_EQ(ExitCodeOf(TryMutex, &mutex), 1U);
}
