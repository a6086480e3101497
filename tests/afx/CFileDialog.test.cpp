#include "support/ScreenLock.h"

#include <afxdlgs.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>

namespace
{

/** Answers the next dialog box of this thread with a button, once it is shown. */
class Answer
{
public:
    explicit Answer(WORD button)
    {
        s_button = button;
        s_timer = ::SetTimer(nullptr, 0, 50, OnTimer);
    }
    ~Answer() { ::KillTimer(nullptr, s_timer); }
    Answer(const Answer&) = delete;
    Answer& operator=(const Answer&) = delete;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM) -> BOOL {
                wchar_t name[32] = {};
                ::GetClassNameW(window, name, 32);
                if (std::wcscmp(name, L"#32770") != 0 || !::IsWindowVisible(window))
                    return TRUE;
                ::PostMessageW(window, WM_COMMAND, s_button, 0);
                return FALSE;
            },
            0);
    }
    static WORD s_button;
    static UINT_PTR s_timer;
};

WORD Answer::s_button = 0;
UINT_PTR Answer::s_timer = 0;

} // namespace

TEST(CFileDialog, ReturnsTheUsersChoice)
{
    CFileDialog save(FALSE, L"dat", L"Z:\\tmp\\vant-afx-choice", OFN_HIDEREADONLY,
                     L"Data (*.dat)|*.dat|All|*.*||");
    const ScreenLock screen;
    const Answer answer(IDOK);
    ASSERT_EQ(save.DoModal(), IDOK);
    EXPECT_EQ(save.GetFileName(), L"vant-afx-choice.dat") << "with the default extension";
    EXPECT_EQ(save.GetFileExt(), L"dat");
    EXPECT_EQ(save.GetFileTitle(), L"vant-afx-choice");
    EXPECT_EQ(save.GetPathName(), save.GetFolderPath() + L"\\vant-afx-choice.dat");
}

TEST(CFileDialog, CancelledLeavesNothingChosen)
{
    CFileDialog open(TRUE);
    const ScreenLock screen;
    const Answer answer(IDCANCEL);
    EXPECT_EQ(open.DoModal(), IDCANCEL);
    EXPECT_EQ(open.GetStartPosition(), nullptr);
    EXPECT_EQ(open.GetPathName(), L"");
}

TEST(CFileDialog, ListsSeveralFilesOfAFolder)
{
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT);
    constexpr wchar_t Chosen[] = L"C:\\data\0one.txt\0two.txt\0";
    std::copy(std::begin(Chosen), std::end(Chosen), dialog.m_ofn.lpstrFile);
    POSITION pos = dialog.GetStartPosition();
    EXPECT_EQ(dialog.GetNextPathName(pos), L"C:\\data\\one.txt");
    ASSERT_NE(pos, nullptr);
    EXPECT_EQ(dialog.GetNextPathName(pos), L"C:\\data\\two.txt");
    EXPECT_EQ(pos, nullptr);
}
