#pragma once

#include "media/detail/AviHeader.h"

#include <windows.h>

namespace vant::detail
{

/** Keeps a file playable while the AVI library writes it. The library itself writes the header when the file
 * is closed, so that a process that is killed leaves frames which no player finds. This writes one through a
 * second handle, for the frames that are in the file by then; closing the file replaces it by the library's.
 */
class LiveHeader
{
public:
    /** @param video  as the stream was made; frames, largest and end are this class's */
    LiveHeader(LPCWSTR path, AviVideo video);
    ~LiveHeader();
    LiveHeader(const LiveHeader&) = delete;
    LiveHeader& operator=(const LiveHeader&) = delete;

    /** Finds the frames that were written since the last time, and writes a header that tells of them.
     * Nothing is written before a first one is there.
     *  @return false if the file cannot be opened twice or written, or is not laid out as expected: it then
     * plays when it has been closed */
    bool Update();

private:
    bool ReadHead(std::uint32_t at, std::uint32_t (&head)[2]) const;
    bool FindFrames();

    const HANDLE m_file;
    AviVideo m_video;
};

} // namespace vant::detail
