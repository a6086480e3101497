#include "controls/RecordingWnd.h"
#include "controls/WndTest.h"
#include "platform/CECEntry.h"
#include "support/MessagePump.h"

#include <functional>
#include <memory>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using Event = RecordingWnd::Event;

/** Receives polls, writes its name down, then does what the test wants. */
class PolledWnd : public CVantWnd
{
public:
    PolledWnd(const CString& wndName, std::wstring& called, std::function<void(PolledWnd&)> then = {})
        : m_called(called)
        , m_then(std::move(then))
    {
        name = wndName;
        s_pollRx.AddTail(this);
    }
    ~PolledWnd() override { Leave(); }
    void Leave() { s_pollRx.RemoveAt(s_pollRx.Find(this)); }

    void OnPoll(double) override
    {
        m_called += static_cast<LPCWSTR>(name);
        if (m_then)
            m_then(*this);
    }

private:
    std::wstring& m_called;
    std::function<void(PolledWnd&)> m_then;
};

class CVantWndBroadcast : public WndTest
{
protected:
    /** What two polls call when one of three windows does something during the first. */
    static std::wstring PollsWith(int which, const std::function<void(PolledWnd&)>& then,
                                  bool deletesItself = false)
    {
        std::wstring called;
        std::vector<std::unique_ptr<PolledWnd>> wnds;
        for (int i = 0; i < 3; ++i) {
            const CString wndName(static_cast<wchar_t>(L'a' + i));
            wnds.push_back(std::make_unique<PolledWnd>(
                wndName, called, i == which ? then : std::function<void(PolledWnd&)>()));
        }
        CVantWnd::Poll(1.0);
        called += L" ";
        CVantWnd::Poll(2.0);
        if (deletesItself)
            wnds[static_cast<std::size_t>(which)].release();
        return called;
    }
};

} // namespace

TEST_F(CVantWndBroadcast, EveryChannelReachesItsOwnListInOrder)
{
    RecordingWnd a(L"a");
    RecordingWnd b(L"b");
    int data = 0;
    const std::pair<CLstPtr<CVantWnd*>*, Event> channels[] = {
        {&CVantWnd::s_trigRx, {L"trigger", 1.5, 2.5}}, {&CVantWnd::s_pollRx, {L"poll", 3.5, 0}},
        {&CVantWnd::s_infoRx, {L"info", 4, 0}},        {&CVantWnd::s_snsrRx, {L"snsr", 5, 0}},
        {&CVantWnd::s_dataRx, {L"data", 6, 0}},
    };
    for (const auto& [list, event] : channels) {
        a.events.clear();
        list->AddTail(&a);
        CVantWnd::Trigger(1.5, 2.5);
        CVantWnd::Poll(3.5);
        CVantWnd::InfoMsg(4, &data);
        CVantWnd::SnsrMsg(5, &data);
        CVantWnd::DataMsg(6, &data);
        EXPECT_THAT(a.events, ElementsAre(event));
        list->RemoveAt(list->Find(&a));
    }
    EXPECT_EQ(a.lastData, &data);
    EXPECT_THAT(b.events, IsEmpty());

    std::wstring called;
    PolledWnd first(L"1", called);
    PolledWnd second(L"2", called);
    CVantWnd::s_pollRx.AddHead(&second); // twice in the list: called twice
    CVantWnd::Poll(0);
    EXPECT_EQ(called, L"212");
    second.Leave();
}

TEST_F(CVantWndBroadcast, HandlerMayRemoveItsOwnWindow)
{
    const auto leave = [](PolledWnd& wnd) { wnd.Leave(); };
    EXPECT_EQ(PollsWith(0, leave), L"abc bc");
    EXPECT_EQ(PollsWith(1, leave), L"abc ac");
    EXPECT_EQ(PollsWith(2, leave), L"abc ab");
    EXPECT_TRUE(CVantWnd::s_pollRx.IsEmpty());
}

TEST_F(CVantWndBroadcast, HandlerMayDeleteItsOwnWindow)
{
    const auto destroy = [](PolledWnd& wnd) { delete &wnd; };
    EXPECT_EQ(PollsWith(0, destroy, true), L"abc bc");
    EXPECT_EQ(PollsWith(1, destroy, true), L"abc ac");
    EXPECT_EQ(PollsWith(2, destroy, true), L"abc ab");
    EXPECT_TRUE(CVantWnd::s_pollRx.IsEmpty());
}

TEST_F(CVantWndBroadcast, WindowThatForgotToLeaveIsTakenOff)
{
    auto wnd = std::make_unique<RecordingWnd>();
    for (auto* const list : {&CVantWnd::s_trigRx, &CVantWnd::s_infoRx, &CVantWnd::s_hltWnds})
        list->AddTail(wnd.get());
    const CVantWnd* const gone = wnd.get();
    wnd.reset();
    for (const auto* const list : {&CVantWnd::s_trigRx, &CVantWnd::s_infoRx, &CVantWnd::s_hltWnds})
        EXPECT_EQ(list->Find(gone), nullptr);
}

TEST_F(CVantWndBroadcast, HighlightIsBroadcastWhenItChanges)
{
    RecordingWnd listener;
    CVantWnd::s_infoRx.AddTail(&listener);
    RecordingWnd wnd;
    const Event changed{L"info", 216, 0};

    CVantWnd::AddHlt(&wnd);
    EXPECT_NE(CVantWnd::IsHlt(&wnd), nullptr);
    EXPECT_THAT(listener.events, IsEmpty()) << "there is no window to see";
    CVantWnd::DelHlt(&wnd);
    EXPECT_EQ(CVantWnd::IsHlt(&wnd), nullptr);

    wnd.CreatePopup();
    CVantWnd::AddHlt(&wnd);
    CVantWnd::DelHlt(&wnd);
    EXPECT_THAT(listener.events, IsEmpty()) << "it is hidden";

    wnd.ShowWindow(SW_SHOWNOACTIVATE);
    vant::test::PumpPending();
    CVantWnd::AddHlt(&wnd);
    EXPECT_THAT(listener.events, ElementsAre(changed));
    EXPECT_EQ(listener.lastData, static_cast<CVantWnd*>(&wnd));
    EXPECT_TRUE(wnd.GetUpdateRect(nullptr));

    wnd.UpdateWindow();
    CVantWnd::AddHlt(&wnd);
    EXPECT_THAT(listener.events, ElementsAre(changed)) << "nothing has changed";
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr));
    EXPECT_EQ(CVantWnd::s_hltWnds.GetCount(), 1);

    CVantWnd::DelHlt(&wnd);
    CVantWnd::DelHlt(&wnd);
    EXPECT_THAT(listener.events, ElementsAre(changed, changed, changed)) << "also without a highlight";
    EXPECT_TRUE(wnd.GetUpdateRect(nullptr));
}

TEST_F(CVantWndBroadcast, AlarmsReachTheWindows)
{
    RecordingWnd listener;
    CVantWnd::s_infoRx.AddTail(&listener);
    Vant::Alarm(40, 0, L"Too %s", L"deep");
    ASSERT_THAT(listener.events, ElementsAre(Event{L"info", 6000, 0}));
    const auto& entry = *static_cast<CECEntry*>(listener.lastData);
    EXPECT_EQ(entry.id, 40u);
    EXPECT_EQ(entry.text, L"Too deep");
    Vant::Alarm(40, -1, L"silent");
    EXPECT_EQ(listener.events.size(), 1u);
}

TEST_F(CVantWndBroadcast, NotifiesAttachedWindows)
{
    RecordingWnd sender(L"sender");
    RecordingWnd a(L"a");
    auto b = std::make_unique<RecordingWnd>(L"b");
    int data = 0;
    sender.AttachWnd(&a);
    sender.AttachWnd(b.get());
    sender.AttachWnd(&a);
    sender.NotifyWnd(7, &data);
    EXPECT_THAT(a.events, ElementsAre(Event{L"notify", 7, 0}));
    EXPECT_THAT(b->events, ElementsAre(Event{L"notify", 7, 0}));
    EXPECT_EQ(a.lastSender, &sender);
    EXPECT_EQ(a.lastData, &data);

    b.reset(); // stops listening
    sender.DetachWnd(&a);
    sender.NotifyWnd(8, nullptr);
    EXPECT_EQ(a.events.size(), 1u);

    sender.AttachWnd(&a);
    {
        RecordingWnd other;
        other.AttachWnd(&a);
    }
    sender.NotifyWnd(9, nullptr);
    EXPECT_EQ(a.events.size(), 2u);
}
