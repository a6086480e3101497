#include "windows/CEMsgBoxModal.h"

#include "controls/CDpi.h"
#include "controls/detail/PaintBuffer.h"
#include "platform/Vant.h"
#include "windows/CEMsgBox.h"
#include "windows/detail/MsgBtn.h"
#include "windows/detail/MsgFace.h"
#include "windows/detail/MsgPlace.h"

#include <algorithm>

using vant::detail::MsgBtn;

namespace
{

/** A dialog without controls, whose size is found when it opens. */
struct alignas(DWORD) EmptyDialog {
    DLGTEMPLATE head{WS_POPUP | WS_CLIPCHILDREN, 0, 0, 0, 0, 0, 0};
    WORD menu = 0;
    WORD windowClass = 0;
    WORD title = 0;
};

constexpr EmptyDialog emptyDialog;
constexpr int widest = 700; // units; wider lines are hard to read

/** The answers of a box, from left to right. */
std::vector<int> Answers(int type)
{
    std::vector<int> answers;
    if (type & Vant::msgYesNo)
        answers = {IDYES, IDNO};
    else
        answers = {IDOK};
    if (type & Vant::msgCancel)
        answers.push_back(IDCANCEL);
    return answers;
}

} // namespace

CEMsgBoxModal* CEMsgBoxModal::s_top = nullptr;

IMPLEMENT_DYNAMIC(CEMsgBoxModal, CDialog)

BEGIN_MESSAGE_MAP(CEMsgBoxModal, CDialog)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_DESTROY()
    ON_COMMAND(IDYES, &CEMsgBoxModal::OnYes)
    ON_COMMAND(IDNO, &CEMsgBoxModal::OnNo)
    ON_MESSAGE(WM_DPICHANGED, &CEMsgBoxModal::OnDpiChanged)
END_MESSAGE_MAP()

CEMsgBoxModal::CEMsgBoxModal(CWnd* parent)
{
    InitModalIndirect(&emptyDialog.head, parent);
}

CEMsgBoxModal::~CEMsgBoxModal()
{
    if (m_hWnd)
        DestroyWindow();
}

void CEMsgBoxModal::DisplayMsg(int type, const CString& text)
{
    msgType = type;
    lines = vant::detail::SplitMsg(text);
}

HWND CEMsgBoxModal::TopWnd() noexcept
{
    return s_top ? s_top->m_hWnd : nullptr;
}

INT_PTR CEMsgBoxModal::DoModal()
{
    const HWND focus = ::GetFocus();
    const INT_PTR answer = CDialog::DoModal();
    if (::IsWindow(focus) && ::GetAncestor(focus, GA_ROOT) == ::GetActiveWindow())
        ::SetFocus(focus);
    return answer;
}

BOOL CEMsgBoxModal::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_below = s_top;
    s_top = this;
    const HWND over = ::GetWindow(m_hWnd, GW_OWNER);
    CDpi::Of(over ? over : m_hWnd).Set(m_hWnd);
    SetWindowText(Vant::appTitle);
    CreateButtons();
    Arrange(over);
    if (Vant::msgBox.active)
        Vant::msgBox.MoveToPlace();
    SetDefID(static_cast<UINT>(m_btns.front()->Answer()));
    m_btns.front()->SetFocus();
    return FALSE;
}

void CEMsgBoxModal::CreateButtons()
{
    m_btns.clear();
    for (const int answer : Answers(msgType)) {
        auto& button = m_btns.emplace_back(std::make_unique<MsgBtn>(answer));
        // The arrow keys go round in the group that the first one begins.
        const unsigned long group = m_btns.size() == 1 ? WS_GROUP : 0;
        button->Create(button->WndStyle() | group, CRect(0, 0, 0, 0), this, static_cast<UINT>(answer));
    }
}

void CEMsgBoxModal::Arrange(HWND over)
{
    const CDpi dpi = CDpi::Of(m_hWnd);
    const CSize area = dpi.ToUnits(vant::detail::WorkArea(over)).Size();
    {
        CClientDC dc(this);
        dpi.Apply(dc);
        m_size = vant::detail::MsgSizeFor(dc, lines, CSize(std::min<int>(area.cx, widest), area.cy));
    }
    const CRect place = vant::detail::MsgPlace(over, dpi.ToPx(CRect(CPoint(0, 0), m_size)).Size());
    SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    int fromRight = static_cast<int>(m_btns.size());
    for (const auto& button : m_btns)
        button->MoveWindow(dpi.ToPx(vant::detail::MsgButtonRc(m_size, --fromRight)));
}

BOOL CEMsgBoxModal::PreTranslateMessage(MSG* msg)
{
    const bool isKey = msg->message == WM_KEYDOWN || msg->message == WM_SYSKEYDOWN;
    if (isKey && (msgType & Vant::msgYesNo) && ::GetKeyState(VK_CONTROL) >= 0) {
        if (msg->wParam == 'Y') {
            OnYes();
            return TRUE;
        }
        if (msg->wParam == 'N') {
            OnNo();
            return TRUE;
        }
    }
    return CDialog::PreTranslateMessage(msg);
}

void CEMsgBoxModal::OnCancel()
{
    if (msgType & Vant::msgCancel)
        CDialog::OnCancel();
    else if (msgType & Vant::msgYesNo)
        OnNo();
    else
        OnOK();
}

void CEMsgBoxModal::OnYes()
{
    EndDialog(IDYES);
}

void CEMsgBoxModal::OnNo()
{
    EndDialog(IDNO);
}

void CEMsgBoxModal::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    if (client.IsRectEmpty())
        return;
    vant::detail::PaintBuffer buffer(dc, client.Size(), CDpi::Of(m_hWnd), Vant::back);
    vant::detail::DrawMsgFace(buffer.Dc(), m_size, msgType, lines);
    buffer.Show();
}

BOOL CEMsgBoxModal::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CEMsgBoxModal::OnDestroy()
{
    CEMsgBoxModal** link = &s_top;
    while (*link && *link != this)
        link = &(*link)->m_below;
    if (*link)
        *link = m_below;
    CDialog::OnDestroy();
}

LRESULT CEMsgBoxModal::OnDpiChanged(WPARAM dpi, LPARAM)
{
    CDpi(HIWORD(dpi)).Set(m_hWnd);
    Arrange(::GetWindow(m_hWnd, GW_OWNER));
    Invalidate(FALSE);
    return 0;
}
