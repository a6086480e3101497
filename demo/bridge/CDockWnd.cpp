#include "demo/bridge/CDockWnd.h"

#include "demo/screen/Focus.h"
#include "platform/Vant.h"

#include <algorithm>

namespace demo
{
namespace
{

constexpr int border = 1; // pixels
constexpr int captionHeight = vant::skins::grad2::category.h;

} // namespace

IMPLEMENT_DYNAMIC(CDockWnd, CPanelWnd)

CDockWnd::CDockWnd(const wchar_t* title, CVantWnd& guest, Session& session, Looks& looks, Tell tell)
    : CPanelWnd((std::wstring(L"Dock ") + title).c_str(), session, looks,
                [this](CPainter& painter, const Box& box, const Readout&) { PaintFrame(painter, box); })
    , m_title(title)
    , m_guest(guest)
    , m_tell(std::move(tell))
{
}

bool CDockWnd::Open(CWnd& parent)
{
    return CPanelWnd::Open(parent) &&
           m_guest.Create(Vant::wndClass, m_title.c_str(), WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                          CRect(0, 0, 0, 0), this, 0);
}

void CDockWnd::LayoutWnd(int quiet)
{
    CPanelWnd::LayoutWnd(quiet);
    if (!m_guest.m_hWnd)
        return;
    const Box client = Client();
    const int top = border + Dpi().ToPx(captionHeight);
    m_guest.MoveWindow(border, top, std::max(client.right - 2 * border, 0),
                       std::max(client.bottom - top - border, 0));
}

void CDockWnd::PaintFrame(CPainter& painter, const Box& box) const
{
    const Caption caption = m_tell();
    painter.Panel(box, m_title, caption.note, caption.lamp);
    if (!HoldsFocus(m_guest.m_hWnd))
        return;
    const COLORREF accent = painter.Colours().accent;
    painter.Solid({box.left, box.top, box.right, box.top + border}, accent);
    painter.Solid({box.left, box.bottom - border, box.right, box.bottom}, accent);
    painter.Solid({box.left, box.top, box.left + border, box.bottom}, accent);
    painter.Solid({box.right - border, box.top, box.right, box.bottom}, accent);
}

} // namespace demo
