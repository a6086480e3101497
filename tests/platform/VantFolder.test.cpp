#include "platform/PlatformTest.h"

#include <atomic>
#include <filesystem>
#include <functional>
#include <shlobj.h>
#include <thread>

namespace
{

namespace fs = std::filesystem;
using VantFolder = PlatformTest;

/** The dialog of this process, once it is shown. */
HWND FindDialog()
{
    HWND found = nullptr;
    ::EnumWindows(
        [](HWND wnd, LPARAM result) -> BOOL {
            wchar_t name[32] = {};
            DWORD process = 0;
            ::GetWindowThreadProcessId(wnd, &process);
            ::GetClassNameW(wnd, name, 32);
            if (process != ::GetCurrentProcessId() || !::IsWindowVisible(wnd) ||
                std::wstring(name) != L"#32770")
                return TRUE;
            *reinterpret_cast<HWND*>(result) = wnd;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

/** The texts of all controls of a dialog. */
std::vector<std::wstring> ControlTexts(HWND dialog)
{
    std::vector<std::wstring> texts;
    ::EnumChildWindows(
        dialog,
        [](HWND wnd, LPARAM result) -> BOOL {
            wchar_t text[MAX_PATH] = {};
            ::SendMessageW(wnd, WM_GETTEXT, MAX_PATH, reinterpret_cast<LPARAM>(text));
            reinterpret_cast<std::vector<std::wstring>*>(result)->push_back(text);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&texts));
    return texts;
}

bool Shows(HWND dialog, const std::wstring& path)
{
    const auto texts = ControlTexts(dialog);
    return std::any_of(texts.begin(), texts.end(),
                       [&](const std::wstring& text) { return ::_wcsicmp(text.c_str(), path.c_str()) == 0; });
}

/** The user: waits for the dialog, acts on it and answers it. */
class User
{
public:
    User(std::function<void(HWND)> act, int button)
        : m_thread([this, act, button] {
            HWND dialog = nullptr;
            while (!(dialog = FindDialog()) && !m_done)
                ::Sleep(5);
            if (!dialog)
                return;
            act(dialog);
            ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
        })
    {
    }
    ~User()
    {
        m_done = true;
        m_thread.join();
    }
    User(const User&) = delete;
    User& operator=(const User&) = delete;

private:
    std::atomic<bool> m_done{false};
    std::thread m_thread;
};

bool Eventually(const std::function<bool()>& condition)
{
    constexpr int attempts = 500; // only bounds a test that fails
    for (int i = 0; i < attempts && !condition(); ++i)
        ::Sleep(10);
    return condition();
}

} // namespace

TEST_F(VantFolder, StartsAtTheGivenFolderAndReturnsTheChosenOne)
{
    const ScreenLock screen;
    const std::wstring start = TempDir() + L"first";
    const std::wstring other = TempDir() + L"second";
    fs::create_directories(start);
    fs::create_directories(other);
    CString dir;
    bool showsStart = false;
    bool followsSelection = false;
    int result = 0;
    // On a busy machine a dialog now and then fills its tree so late that it ignores every selection.
    for (int dialogs = 0; dialogs < 3 && !followsSelection; ++dialogs) {
        dir = start.c_str();
        const User user(
            [&](HWND dialog) {
                showsStart = Eventually([&] { return Shows(dialog, start); });
                // The dialog may still be opening the start folder, which takes the selection back.
                followsSelection = Eventually([&] {
                    ::SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(other.c_str()));
                    return Shows(dialog, other);
                });
            },
            IDOK);
        result = Vant::GetDir(dir, false);
    }
    EXPECT_TRUE(showsStart);
    EXPECT_TRUE(followsSelection);
    EXPECT_NE(result, 0);
    EXPECT_EQ(::_wcsicmp(dir, other.c_str()), 0) << testing::PrintToString(Text(dir));
}

TEST_F(VantFolder, CancellingKeepsTheFolder)
{
    const ScreenLock screen;
    const std::wstring start = TempDir() + L"first";
    fs::create_directories(start);
    CString dir = start.c_str();
    const User user([](HWND) {}, IDCANCEL);
    EXPECT_EQ(Vant::GetDir(dir, false), 0);
    EXPECT_EQ(Text(dir), start);
}

TEST_F(VantFolder, AFieldToTypeInIsThereOnDemand)
{
    const ScreenLock screen;
    CString dir = TempDir().c_str();
    for (const bool typed : {false, true}) {
        HWND edit = nullptr;
        {
            const User user([&](HWND dialog) { edit = ::FindWindowExW(dialog, nullptr, L"Edit", nullptr); },
                            IDCANCEL);
            Vant::GetDir(dir, typed);
        }
        if (typed && !edit)
            GTEST_SKIP() << "this system's dialog has no such field";
        EXPECT_EQ(edit != nullptr, typed);
    }
}
