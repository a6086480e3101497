#pragma once

#include <afxwin.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <vector>

namespace vant::detail
{

/** Brings work of other threads to the thread that opened it, which has to handle messages. Everything but
 * Open() and Close() may be called from any thread. */
class UiThread : public CWnd
{
public:
    using Work = std::function<void()>;

    /** The calling thread does the work from now on. @return whether it can be reached */
    bool Open();
    /** Ends that. Work that has not begun is dropped; who waits for it goes on. Called by the same thread. */
    void Close();

    bool IsOpen() const noexcept { return m_mailbox != nullptr; }
    /** Whether this is the thread that does the work. */
    bool IsHere() const noexcept { return IsOpen() && ::GetCurrentThreadId() == m_thread; }
    /** Does the work and returns when it is done, at once if this is the thread. @return whether it was done
     */
    bool Run(const Work& work);
    /** Has the work done as soon as the thread handles messages. @return whether it was taken */
    bool Post(Work work);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    static constexpr UINT runMsg = WM_APP;
    static constexpr UINT postMsg = WM_APP + 1;

    void DoPosted();

    std::atomic<HWND> m_mailbox = nullptr; // m_hWnd, for the other threads
    std::atomic<DWORD> m_thread = 0;
    std::mutex m_lock; // guards m_posted
    std::vector<Work> m_posted;
};

} // namespace vant::detail
