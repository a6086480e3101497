#include "support/MessagePump.h"
#include "support/ScreenLock.h"

#include <afxwin.h>
#include <gmock/gmock.h>

#include <string_view>
#include <vector>

namespace
{

constexpr WORD EditId = 200;
constexpr WORD ActionId = 201;

/** A dialog template as resources hold it. */
class Template
{
public:
    Template()
    {
        DWords(WS_POPUP | WS_CAPTION | DS_MODALFRAME, 0);
        Words({3, 0, 0, 120, 60, 0, 0}); // items; x, y, width, height; no menu, the system's class
        Text(L"dialog");
        Item(WS_CHILD | WS_VISIBLE | WS_TABSTOP, EditId, L'\x81');
        Item(WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, IDOK, L'\x80');
        Item(WS_CHILD | WS_VISIBLE | WS_TABSTOP, ActionId, L'\x80');
    }
    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

private:
    void Words(std::initializer_list<WORD> words)
    {
        for (const WORD word : words)
            m_words.push_back(word);
    }
    void DWords(DWORD first, DWORD second)
    {
        Words({LOWORD(first), HIWORD(first), LOWORD(second), HIWORD(second)});
    }
    void Text(std::wstring_view text)
    {
        for (const wchar_t ch : text)
            m_words.push_back(ch);
        m_words.push_back(0);
    }
    void Item(DWORD style, WORD id, wchar_t controlClass)
    {
        if (m_words.size() % 2 != 0)
            m_words.push_back(0);
        DWords(style, 0);
        Words({5, 5, 40, 12, id, 0xFFFF, controlClass, 0, 0});
    }
    std::vector<WORD> m_words;
};

class Dialog : public CDialog
{
public:
    using CDialog::CDialog;

    int init = 0;
    int actions = 0;
    int gone = 0;
    bool ownerEnabled = true;
    bool destroyInstead = false;
    UINT atStart = ActionId;
    WPARAM key = 0;

    BOOL OnInitDialog() override
    {
        EXPECT_TRUE(CDialog::OnInitDialog());
        ++init;
        SetDlgItemText(EditId, L"filled");
        ownerEnabled = ::IsWindowEnabled(::GetWindow(m_hWnd, GW_OWNER)) != FALSE;
        if (key != 0)
            ::PostMessageW(::GetDlgItem(m_hWnd, EditId), WM_KEYDOWN, key, 0);
        else
            PostMessage(WM_COMMAND, atStart);
        return TRUE;
    }

protected:
    void OnAction()
    {
        ++actions;
        if (destroyInstead)
            DestroyWindow();
        else
            EndDialog(77);
    }
    void PostNcDestroy() override { ++gone; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Dialog, CDialog)
    ON_BN_CLICKED(ActionId, &Dialog::OnAction)
END_MESSAGE_MAP()

class DialogTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(owner.CreateEx(0, ::AfxRegisterWndClass(0), L"owner", WS_POPUP | WS_VISIBLE,
                                   CRect(0, 0, 300, 200), nullptr, 0));
        ASSERT_TRUE(dialog.InitModalIndirect(definition.Get(), &owner));
    }
    const ScreenLock screen;
    Template definition;
    CWnd owner;
    Dialog dialog;
};

} // namespace

TEST_F(DialogTest, RunsUntilAPostedCommandEndsIt)
{
    EXPECT_EQ(dialog.DoModal(), 77);
    EXPECT_EQ(dialog.init, 1);
    EXPECT_EQ(dialog.actions, 1);
    EXPECT_FALSE(dialog.ownerEnabled) << "the owner takes no input meanwhile";
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);

    dialog.atStart = IDOK;
    EXPECT_EQ(dialog.DoModal(), IDOK) << "it can run again";
    dialog.atStart = IDCANCEL;
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST_F(DialogTest, EnterAndEscapeReachItFromAControl)
{
    dialog.key = VK_ESCAPE;
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    dialog.key = VK_RETURN;
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST_F(DialogTest, EndsWhenItsWindowIsDestroyedOrTheProgramEnds)
{
    dialog.destroyInstead = true;
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());

    ::PostQuitMessage(5);
    dialog.atStart = 0;
    EXPECT_EQ(dialog.DoModal(), -1);
    MSG msg;
    EXPECT_TRUE(::PeekMessageW(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 5U) << "the outer loop learns of it too";
}

TEST_F(DialogTest, WithoutTemplateThereIsNone)
{
    CDialog missing(static_cast<UINT>(4711), &owner);
    EXPECT_EQ(missing.DoModal(), -1);
    Dialog modeless;
    EXPECT_FALSE(modeless.Create(4711U, &owner));
}

TEST_F(DialogTest, ModelessStaysUntilDestroyed)
{
    Dialog modeless;
    modeless.atStart = IDOK;
    ASSERT_TRUE(modeless.CreateIndirect(definition.Get(), &owner));
    EXPECT_EQ(modeless.init, 1);
    CString text;
    EXPECT_EQ(modeless.GetDlgItemText(EditId, text), 6);
    EXPECT_EQ(text, L"filled");
    modeless.ShowWindow(SW_SHOW);
    vant::test::PumpPending();
    EXPECT_FALSE(modeless.CreateIndirect(definition.Get(), &owner)) << "one window at a time";
    EXPECT_EQ(modeless.gone, 0);
    ASSERT_NE(modeless.m_hWnd, nullptr);
    EXPECT_FALSE(modeless.IsWindowVisible()) << "OK only hides it";
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_TRUE(modeless.DestroyWindow());
}
