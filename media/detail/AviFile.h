#pragma once

#include "media/detail/AviCalls.h"
#include "media/detail/DibFrame.h"
#include "media/detail/LiveHeader.h"

#include <afx.h>

#include <memory>

namespace vant::detail
{

/** One AVI file that is open for writing, with its video stream. The destructor closes it: the library writes
 * header and index then. */
class AviFile
{
public:
    /** Creates a file, in place of one of that name. @return the library's result, and null if it failed */
    static HRESULT Create(const CString& path, std::unique_ptr<AviFile>& file);
    ~AviFile();
    AviFile(const AviFile&) = delete;
    AviFile& operator=(const AviFile&) = delete;

    const CString& Path() const noexcept { return m_path; }

    /** Makes the video stream for frames like this one. */
    HRESULT CreateStream(const DibFrame& frame);
    IAVIStream* Stream() const noexcept { return m_raw; }
    const DIBSECTION& Section() const noexcept { return m_frame.section; }

    /** Puts a compressor before the stream, in place of the one before. */
    HRESULT Compress(AVICOMPRESSOPTIONS& options);
    /** Frames can be added after this. @param section  as the frames are */
    HRESULT SetFormat(const DIBSECTION& section);
    bool IsReady() const noexcept { return m_ready; }

    /** Whether a frame of this many bytes still has room, with the index of all. */
    bool HasRoom(std::size_t bytes) const noexcept;

    /** Appends a frame, and now and then makes the file playable so far.
     *  @param headerFrames  frames after which that is done at the latest; it is once a second too */
    HRESULT Write(LONG index, const DibFrame& frame, int headerFrames);

private:
    AviFile(IAVIFile* file, const CString& path);
    void ReleaseCompressed();
    void StartHeader();
    void UpdateHeader();

    IAVIFile* const m_file;
    const CString m_path;
    IAVIStream* m_raw = nullptr;
    IAVIStream* m_compressed = nullptr;
    bool m_ready = false;
    std::vector<std::byte> m_turned;
    DibFrame m_frame{}; // the one the stream was made for
    unsigned long long m_end;
    unsigned long long m_frames = 0;
    int m_framesSinceHeader = 0;
    ULONGLONG m_headerTick = 0; // milliseconds
    std::unique_ptr<LiveHeader> m_header;
};

} // namespace vant::detail
