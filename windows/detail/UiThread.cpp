#include "windows/detail/UiThread.h"

#include "platform/Vant.h"

#include <utility>

namespace vant::detail
{

namespace
{

/** No exception of the work may go through the system's code that brought the message. */
bool Do(const UiThread::Work& work)
{
    try {
        work();
        return true;
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
        // Whoever sent it goes on without it.
    }
    return false;
}

} // namespace

bool UiThread::Open()
{
    Close();
    const bool opened = CWnd::CreateEx(0, Vant::wndClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr) != FALSE;
    m_thread = ::GetCurrentThreadId();
    m_mailbox = m_hWnd;
    return opened;
}

void UiThread::Close()
{
    m_mailbox = nullptr;
    if (m_hWnd)
        DestroyWindow();
    const std::lock_guard lock(m_lock);
    m_posted.clear();
}

bool UiThread::Run(const Work& work)
{
    const HWND mailbox = m_mailbox;
    if (!mailbox)
        return false;
    if (IsHere())
        return Do(work);
    return ::SendMessageW(mailbox, runMsg, 0, reinterpret_cast<LPARAM>(&work)) != 0;
}

bool UiThread::Post(Work work)
{
    const HWND mailbox = m_mailbox;
    if (!mailbox)
        return false;
    {
        const std::lock_guard lock(m_lock);
        m_posted.push_back(std::move(work));
    }
    return ::PostMessageW(mailbox, postMsg, 0, 0) != FALSE;
}

void UiThread::DoPosted()
{
    std::vector<Work> posted;
    {
        const std::lock_guard lock(m_lock);
        posted.swap(m_posted);
    }
    for (const Work& work : posted)
        Do(work);
}

LRESULT UiThread::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == runMsg)
        return Do(*reinterpret_cast<const Work*>(lParam)) ? 1 : 0;
    if (message == postMsg) {
        DoPosted();
        return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

} // namespace vant::detail
