// CVantWnd: broadcasts, highlight and listeners.
#include "controls/CVantWnd.h"

namespace
{

// The next node is read before the call: the handler may take its own window off the list, or delete it.
template <class Call>
void Broadcast(const CLstPtr<CVantWnd*>& receivers, Call call)
{
    for (const CVantPtr* node = receivers.GetHeadPos(); node;) {
        auto* const wnd = static_cast<CVantWnd*>(node->elem);
        node = node->next;
        call(wnd);
    }
}

void TellHighlight(CVantWnd* wnd)
{
    if (!wnd->m_hWnd || !wnd->IsWindowVisible())
        return;
    // The controls stand on the colour that changes.
    wnd->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    CVantWnd::InfoMsg(CVantWnd::hltInfo, wnd);
}

} // namespace

void CVantWnd::Trigger(double a, double b)
{
    Broadcast(s_trigRx, [a, b](CVantWnd* wnd) { wnd->OnTrigger(a, b); });
}

void CVantWnd::Poll(double t)
{
    Broadcast(s_pollRx, [t](CVantWnd* wnd) { wnd->OnPoll(t); });
}

void CVantWnd::InfoMsg(int msg, void* data)
{
    Broadcast(s_infoRx, [msg, data](CVantWnd* wnd) { wnd->OnInfoMsg(msg, data); });
}

void CVantWnd::SnsrMsg(int msg, void* data)
{
    Broadcast(s_snsrRx, [msg, data](CVantWnd* wnd) { wnd->OnSnsrMsg(msg, data); });
}

void CVantWnd::DataMsg(int msg, void* data)
{
    Broadcast(s_dataRx, [msg, data](CVantWnd* wnd) { wnd->OnDataMsg(msg, data); });
}

void CVantWnd::UpdateAllWnds()
{
    Broadcast(s_wnds, [](CVantWnd* wnd) {
        wnd->UpdCtrls();
        if (wnd->m_hWnd)
            wnd->Invalidate();
    });
}

CVantWnd* CVantWnd::GetWnd(const CString& wanted)
{
    for (CVantPtr* pos = s_wnds.GetHeadPos(); pos;) {
        CVantWnd* const wnd = s_wnds.GetNext(pos);
        if (wnd->name == wanted)
            return wnd;
    }
    return nullptr;
}

void CVantWnd::AddHlt(CVantWnd* wnd)
{
    if (!wnd || IsHlt(wnd))
        return;
    s_hltWnds.AddTail(wnd);
    TellHighlight(wnd);
}

void CVantWnd::DelHlt(CVantWnd* wnd)
{
    if (!wnd)
        return;
    s_hltWnds.RemoveAt(IsHlt(wnd));
    // Deliberately also for a window that had no highlight.
    TellHighlight(wnd);
}

CVantPtr* CVantWnd::IsHlt(CVantWnd* wnd)
{
    return s_hltWnds.Find(wnd);
}

void CVantWnd::AttachWnd(CVantWnd* wnd)
{
    if (!wnd || m_attached.Find(wnd))
        return;
    m_attached.AddTail(wnd);
    ++wnd->m_listensTo;
}

void CVantWnd::DetachWnd(CVantWnd* wnd)
{
    CVantPtr* const pos = m_attached.Find(wnd);
    if (!pos)
        return;
    m_attached.RemoveAt(pos);
    --wnd->m_listensTo;
}

void CVantWnd::NotifyWnd(int msg, void* data)
{
    Broadcast(m_attached, [this, msg, data](CVantWnd* wnd) { wnd->OnNfyWnd(this, msg, data); });
}
