#include "windows/MsgTest.h"

#include "windows/CEMsgBoxModal.h"

#include <functional>
#include <thread>
#include <vector>

namespace
{

/** Gets keys as soon as it is open, each in the button that has the focus by then; it need not be shown. */
class TypedBox : public CEMsgBoxModal
{
public:
    explicit TypedBox(std::vector<UINT> keys)
        : m_keys(std::move(keys))
    {
    }

    BOOL OnInitDialog() override
    {
        const BOOL result = CEMsgBoxModal::OnInitDialog();
        PostMessage(WM_APP);
        return result;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_APP || m_next == m_keys.size())
            return CEMsgBoxModal::WindowProc(message, wParam, lParam);
        const UINT key = m_keys[m_next++];
        const HWND focus = ::GetFocus();
        ::PostMessageW(focus, WM_KEYDOWN, key, 1);
        ::PostMessageW(focus, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        PostMessage(WM_APP);
        return 0;
    }

private:
    const std::vector<UINT> m_keys;
    std::size_t m_next = 0;
};

int AnswerOf(int type, std::vector<UINT> keys)
{
    TypedBox box(std::move(keys));
    box.DisplayMsg(type, L"?");
    return static_cast<int>(box.DoModal());
}

std::function<void(HWND)> s_act;

/** Runs once, with the modal box that is shown by then. */
void CALLBACK Act(HWND, UINT, UINT_PTR timer, DWORD)
{
    const HWND box = CEMsgBoxModal::TopWnd();
    if (!box || !::IsWindowVisible(box))
        return;
    ::KillTimer(nullptr, timer);
    s_act(box);
}

void WhenShown(std::function<void(HWND)> act)
{
    s_act = std::move(act);
    ::SetTimer(nullptr, 0, 20, Act);
}

void Click(HWND box, int answer)
{
    const HWND button = ::GetDlgItem(box, answer);
    ASSERT_NE(button, nullptr) << answer;
    ::PostMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 10));
    ::PostMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(20, 10));
}

constexpr int yesNoCancel = Vant::msgYesNo | Vant::msgCancel;

class CEMsgBoxModalTest : public MsgTest
{
};

} // namespace

TEST_F(CEMsgBoxModalTest, KeysGiveEveryAnswer)
{
    const ScreenLock screen;
    const struct {
        int type;
        std::vector<UINT> keys;
        int answer;
    } rows[] = {
        {0, {VK_RETURN}, IDOK},
        {0, {VK_ESCAPE}, IDOK},
        {Vant::msgCancel, {VK_SPACE}, IDOK},
        {Vant::msgCancel, {VK_TAB, VK_RETURN}, IDCANCEL},
        {Vant::msgCancel, {VK_ESCAPE}, IDCANCEL},
        {Vant::msgYesNo, {VK_RETURN}, 6},
        {Vant::msgYesNo, {VK_RIGHT, VK_RETURN}, 7},
        {Vant::msgYesNo, {VK_ESCAPE}, 7},
        {Vant::msgYesNo, {'Y'}, 6},
        {yesNoCancel, {'N'}, 7},
        {yesNoCancel, {VK_TAB, VK_TAB, VK_SPACE}, IDCANCEL},
        {yesNoCancel, {VK_LEFT, VK_RETURN}, IDCANCEL},
        {yesNoCancel, {VK_TAB, VK_TAB, VK_TAB, VK_RETURN}, IDYES},
        {yesNoCancel, {VK_ESCAPE}, IDCANCEL},
        {0, {'Y', 'N', VK_RETURN}, IDOK},
    };
    for (const auto& row : rows)
        EXPECT_EQ(AnswerOf(row.type, row.keys), row.answer)
            << row.type << " " << testing::PrintToString(row.keys);
    EXPECT_EQ(CEMsgBoxModal::TopWnd(), nullptr);
}

TEST_F(CEMsgBoxModalTest, LinesAndTypeAreStored)
{
    CEMsgBoxModal box;
    box.DisplayMsg(Vant::msgStopIcon, L"1\n2\n3\n4\n5");
    EXPECT_EQ(Texts(box.lines), (MsgTexts{L"1", L"2", L"3", L"4\n5"}));
    EXPECT_EQ(box.msgType, 0x02);
    box.DisplayMsg(0, L"all");
    EXPECT_EQ(Texts(box.lines), (MsgTexts{L"all"}));
}

TEST_F(CEMsgBoxModalTest, TheMainWindowWaits)
{
    const ScreenLock screen;
    MainWnd main(CRect(200, 200, 1000, 800));
    CWnd field;
    field.Create(L"EDIT", L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &main.Wnd(), 1);
    field.SetFocus();
    bool wasEnabled = true;
    CRect place;
    HWND window = nullptr;
    WhenShown([&](HWND box) {
        window = box;
        wasEnabled = ::IsWindowEnabled(main.Wnd().m_hWnd) != FALSE;
        place = PlaceOf(box);
        // A message that comes meanwhile does not cover the question.
        Vant::MsgBox(Vant::msgStay, L"meanwhile");
        CRect common;
        EXPECT_FALSE(common.IntersectRect(place, PlaceOf(Vant::msgBox.m_hWnd)));
        EXPECT_TRUE(IsInside(PlaceOf(Vant::msgBox.m_hWnd), PrimaryWorkArea()));
        Click(box, IDNO);
    });
    EXPECT_EQ(Vant::MsgBox(Vant::msgModal | yesNoCancel, L"Save?"), IDNO);
    EXPECT_FALSE(wasEnabled);
    EXPECT_TRUE(main.Wnd().IsWindowEnabled());
    EXPECT_EQ(place, CRect(CPoint(425, 375), CSize(350, 250)));
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(::GetFocus(), field.m_hWnd);

    // Nor does one that was there before.
    Vant::msgBox.MoveToPlace();
    WhenShown([&](HWND box) {
        CRect common;
        EXPECT_FALSE(common.IntersectRect(PlaceOf(box), PlaceOf(Vant::msgBox.m_hWnd)));
        ::PostMessageW(box, WM_CLOSE, 0, 0);
    });
    EXPECT_EQ(Vant::MsgBox(Vant::msgModal | Vant::msgYesNo, L"Really?"), IDNO);
}

TEST_F(CEMsgBoxModalTest, GrowsWithItsTextAndItsScale)
{
    const ScreenLock screen;
    CString text;
    for (int i = 0; i < 60; ++i)
        text += L"as much text as a question needs ";
    WhenShown([&](HWND box) {
        const CRect place = PlaceOf(box);
        EXPECT_GT(place.Width(), 350);
        EXPECT_GT(place.Height(), 250);
        EXPECT_TRUE(IsInside(place, PrimaryWorkArea()));
        const CRect button = PlaceOf(::GetDlgItem(box, IDOK));
        EXPECT_EQ(place.BottomRight() - button.BottomRight(), CSize(14, 14));

        ::SendMessageW(box, WM_DPICHANGED, MAKEWPARAM(144, 144), 0);
        EXPECT_EQ(PlaceOf(::GetDlgItem(box, IDOK)).Height(), 54);
        EXPECT_GT(PlaceOf(box).Width(), place.Width());
        EXPECT_TRUE(IsInside(PlaceOf(box), PrimaryWorkArea()));
        Click(box, IDOK);
    });
    EXPECT_EQ(Vant::MsgBox(Vant::msgModal, L"%s", text.GetString()), IDOK);
}

TEST_F(CEMsgBoxModalTest, AnotherThreadsQuestionIsAskedByTheUiThread)
{
    const ScreenLock screen;
    DWORD owner = 0;
    WhenShown([&owner](HWND box) {
        owner = ::GetWindowThreadProcessId(box, nullptr);
        Click(box, IDCANCEL);
    });
    std::atomic<int> answer = -1;
    std::thread asking([&answer] { answer = Vant::MsgBox(Vant::msgModal | Vant::msgCancel, L"Stop?"); });
    EXPECT_TRUE(vant::test::PumpUntil([&answer] { return answer != -1; }));
    asking.join();
    EXPECT_EQ(answer, IDCANCEL);
    EXPECT_EQ(owner, ::GetCurrentThreadId());
}
