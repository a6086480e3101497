#include "windows/detail/LogFile.h"

#include "platform/detail/Append.h"

#include <windows.h>

namespace vant::detail
{

// For clients that bind references to them.
constexpr std::size_t LogFile::mostWaiting;
constexpr unsigned LogFile::usualPause;

void LogFile::Write(const CString& file, const CString& line)
{
    const CString text = line + L"\r\n";
    if (m_isFailing) {
        WriteLate(file, text);
        return;
    }
    const std::string bytes = CodePageBytes(text);
    // Without the lock: the alarm's receivers may write lines themselves, in other consoles too.
    const Appended done = Append(file, bytes, &text);
    // A line that fails while an alarm is raised is lost untold; the next one shall tell.
    if (!done.isWhole && done.isTold)
        Wait(file, std::string_view(bytes).substr(done.written));
}

void LogFile::Wait(const CString& file, std::string_view bytes)
{
    const std::lock_guard guard(m_lock);
    m_file = file;
    m_waiting += bytes;
    m_nextTry = ::GetTickCount64() + m_pause;
    m_isFailing = true;
}

void LogFile::WriteLate(const CString& file, const CString& line)
{
    const std::string bytes = CodePageBytes(line);
    const std::lock_guard guard(m_lock);
    if (m_waiting.size() + bytes.size() <= mostWaiting && m_lost == 0)
        m_waiting += bytes;
    else
        ++m_lost;
    // The lines that waited may have been taken before the lock was had: nobody would come for this one.
    if (!m_isFailing || m_file != file || ::GetTickCount64() >= m_nextTry) {
        m_file = file;
        Offer();
    }
}

void LogFile::Flush()
{
    if (!m_isFailing)
        return;
    const std::lock_guard guard(m_lock);
    Offer();
}

/** Under the lock; what is raised here would come back, so nothing is. */
void LogFile::Offer()
{
    Appended done = Append(m_file, m_waiting, nullptr);
    m_waiting.erase(0, done.written);
    if (done.isWhole && m_lost > 0) {
        CString note;
        note.Format(L"%u lines are missing here: the file could not be written\r\n", m_lost);
        done = Append(m_file, CodePageBytes(note), nullptr);
    }
    m_nextTry = ::GetTickCount64() + m_pause;
    if (!done.isWhole)
        return;
    m_lost = 0;
    m_isFailing = false;
}

} // namespace vant::detail
