#include "platform/PlatformTest.h"

#include <map>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/** Windows on the screen, and registries that know some of them. */
class VantHelp : public PlatformTest
{
protected:
    struct Entry {
        CString topic;
        HWND parent = nullptr;
    };
    static inline std::map<HWND, Entry> controls;
    static inline std::map<HWND, CString> windows;

    VantHelp()
    {
        controls.clear();
        windows.clear();
        vant::detail::Help().findControl = [](HWND wnd, CString& topic, HWND& parent) {
            const auto found = controls.find(wnd);
            if (found == controls.end())
                return false;
            topic = found->second.topic;
            parent = found->second.parent;
            return true;
        };
        vant::detail::Help().findWindow = [](HWND wnd, CString& topic) {
            const auto found = windows.find(wnd);
            if (found == windows.end())
                return false;
            topic = found->second;
            return true;
        };
        // Not activated: the window need not wait for a window manager then.
        ::ShowWindow(m_outer, SW_SHOWNOACTIVATE);
        ::SetCursorPos(150, 150);
    }

    ~VantHelp() override { ::DestroyWindow(m_outer); }

    std::vector<std::wstring> PagesOpened()
    {
        helpCalls.clear();
        Vant::SpawnHelp();
        return PagesOfHelp();
    }

    const ScreenLock m_screen;
    // STATIC answers hit tests as transparent, so an edit field stands for the control.
    HWND m_outer = ::CreateWindowExW(WS_EX_TOPMOST, L"EDIT", L"", WS_POPUP, 50, 50, 200, 200, nullptr,
                                     nullptr, nullptr, nullptr);
    HWND m_middle = ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 20, 20, 160, 160, m_outer,
                                      nullptr, nullptr, nullptr);
    HWND m_inner = ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 20, 20, 120, 120, m_middle,
                                     nullptr, nullptr, nullptr);
};

} // namespace

TEST_F(VantHelp, TopicBecomesAPageOfTheHelpFile)
{
    Vant::SpawnHelpTopic(L"Range (m), A/B");
    ASSERT_THAT(helpCalls, SizeIs(1));
    EXPECT_EQ(helpCalls[0].page, L"RangemAB.htm");
    EXPECT_EQ(helpCalls[0].file, Text(Vant::helpFile));
    EXPECT_THAT(Messages(vant::detail::LogTarget::status),
                ElementsAre(Logged{0, 0, L"Spawned Help Topic = RangemAB.htm"}));
}

TEST_F(VantHelp, NothingIsOpenedWhenNothingIsLeftOfTheTopic)
{
    Vant::SpawnHelpTopic(L"");
    Vant::SpawnHelpTopic(L" (,/) ");
    EXPECT_THAT(helpCalls, IsEmpty());
    EXPECT_THAT(Messages(vant::detail::LogTarget::status), IsEmpty());
}

TEST_F(VantHelp, ViewerBelongsToTheMainWindow)
{
    CWnd mainWnd;
    mainWnd.Attach(m_outer);
    AfxGetApp()->m_pMainWnd = &mainWnd;
    Vant::SpawnHelpTopic(L"Depth %s 100%"); // a topic is text, not a format
    AfxGetApp()->m_pMainWnd = nullptr;
    mainWnd.Detach();
    ASSERT_THAT(helpCalls, SizeIs(1));
    EXPECT_EQ(helpCalls[0].owner, m_outer);
    EXPECT_EQ(helpCalls[0].page, L"Depth%s100%.htm");
    EXPECT_THAT(Messages(vant::detail::LogTarget::status),
                ElementsAre(Logged{0, 0, L"Spawned Help Topic = Depth%s100%.htm"}));
}

TEST_F(VantHelp, ControlUnderTheMouseComesFirst)
{
    controls[m_inner] = {L"Gain", m_middle};
    windows[m_inner] = L"Window";
    windows[m_middle] = L"Middle";
    EXPECT_THAT(PagesOpened(), ElementsAre(L"Gain.htm"));
}

TEST_F(VantHelp, ControlWithoutTopicPassesOnToItsParentWindow)
{
    controls[m_inner] = {L"", m_middle};
    windows[m_inner] = L"Own window";
    windows[m_middle] = L"Sonar View";
    EXPECT_THAT(PagesOpened(), ElementsAre(L"SonarView.htm"));

    // The parent is not asked as a control.
    controls[m_middle] = {L"Other", m_outer};
    EXPECT_THAT(PagesOpened(), ElementsAre(L"SonarView.htm"));
    windows.erase(m_middle);
    EXPECT_THAT(PagesOpened(), ElementsAre(L"UsingtheSoftware.htm"));
}

TEST_F(VantHelp, WindowWithoutTopicOpensTheDefault)
{
    windows[m_inner] = L"";
    EXPECT_THAT(PagesOpened(), ElementsAre(L"UsingtheSoftware.htm"));
    windows[m_inner] = L"Chart";
    EXPECT_THAT(PagesOpened(), ElementsAre(L"Chart.htm"));
}

TEST_F(VantHelp, UnknownPlacesOpenTheDefault)
{
    windows[m_outer] = L"Outer"; // not the window under the mouse
    EXPECT_THAT(PagesOpened(), ElementsAre(L"UsingtheSoftware.htm"));
    vant::detail::Help() = {};
    EXPECT_THAT(PagesOpened(), ElementsAre(L"UsingtheSoftware.htm"));
}
