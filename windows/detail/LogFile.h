#pragma once

#include "core/VantApi.h"

#include <afx.h>

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>

namespace vant::detail
{

/** The way of a console's lines into its file.
 *
 *  When the file takes no line (the disk is full, the drive is gone, another program holds it), one alarm
 *  tells so, and the lines wait here. They are offered again with the first line after a pause, or at once
 *  when the file is another one by then, and stand in the file in their order. Of what cannot wait any more
 *  the file tells the number. Callable from any thread. */
class VANT_API LogFile
{
public:
    static constexpr std::size_t mostWaiting = std::size_t{1} << 18; ///< bytes
    static constexpr unsigned usualPause = 5000;                     ///< milliseconds

    explicit LogFile(unsigned pause = usualPause) noexcept
        : m_pause(pause)
    {
    }

    /** Appends a line. @param file  its path  @param line  without a line end */
    void Write(const CString& file, const CString& line);

    /** Offers the lines that wait, whatever the pause. */
    void Flush();

private:
    void WriteLate(const CString& file, const CString& line);
    void Offer();
    void Wait(const CString& file, std::string_view bytes);

    const unsigned m_pause;
    std::atomic<bool> m_isFailing{false};
    std::mutex m_lock; // of what follows
    CString m_file;    // that takes no line
    std::string m_waiting;
    unsigned m_lost = 0; // lines that were too many
    std::uint64_t m_nextTry = 0;
};

} // namespace vant::detail
