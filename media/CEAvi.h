#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

#include <memory>

namespace vant::detail
{
class AviFile;
class CmpOptions;
struct DibFrame;
} // namespace vant::detail

/** Writes bitmaps as the frames of an AVI file: 50 in a second of video, compressed with Xvid where it is
 * installed, otherwise as they are.
 *
 *      CEAvi avi;
 *      if (avi.Open(L"C:\\VantData\\dive.avi"))
 *          avi.AddDib(image); // a CImage of 24 or 32 bits, after each CapPB()
 *
 *  Frames are device-independent sections of 8, 24 or 32 bits, with either row first; all have the size and
 * depth of the first. The fourth byte of 32-bit pixels is written as it is.
 *
 *  **Long recordings.** A file holds less than 2 GiB (4 minutes of 400 x 400 pixels at 24 bits): beyond, the
 * system's library goes on without an error and loses frames. Before that the recording continues in a file
 * beside the first, "dive-2.avi" and so on, a number that no file has yet, and a line on the general console
 * tells. A continuation that cannot be created raises the alarm of Open() at each frame, which is dropped.
 *
 *  **A process that is killed** leaves a file that plays up to its last second: until it is closed, its
 * header is brought up to date after a second or 25 frames at the latest, whichever comes first. It has no
 * index then, so that players search slowly. Where the header cannot be written beside the library, a line on
 * the general console tells so at the first frame.
 *
 *  A failure raises an alarm at level 1, with one id for each message: 1201 to 1213. A frame that fails is
 * dropped, and the next is tried. All calls belong to one thread. */
class VANT_API CEAvi
{
public:
    /** Starts the system's AVI library, as long as this object exists. */
    CEAvi();
    /** Closes the file. */
    virtual ~CEAvi();
    CEAvi(const CEAvi&) = delete;
    CEAvi& operator=(const CEAvi&) = delete;

    /** Creates a file for writing, in place of one that is there; its name ends in ".avi". A file that is
     * open is closed before.
     *  @return 1; 0 after alarm 1201: "Cannot open avi file <path> - <ErrStr()>" */
    int Open(CString path);

    /** Appends a frame. The first one decides on size, depth and compression.
     *  @param bitmap  a section; only read
     *  @return 1; 0 after an alarm, and the frame is dropped: 1202 "Cannot add bitmap - avi not open", 1203
     * "Cannot add bitmap - invalid handle", 1204 "Cannot add bitmap - not a valid DIB", 1205 "Cannot create
     * avi stream - <cause>", 1206 "Cannot add bitmap to stream - <cause>", 1207 for another size or depth
     * than the first frame's, or one of GenDefCmp() */
    int AddDib(HBITMAP bitmap);

    /** Prepares the compression of the stream: Xvid, or else uncompressed frames. AddDib() calls it at the
     * first frame, unless the user has chosen.
     *  @param section  describes the frames
     *  @return 1, also after alarm 1208 "Cannot generate Xvid compression trying DIB - <cause>"; 0 after
     * alarm 1209 "Failed to generate compression - <cause>" or 1210 "Failed to set the compression - <cause>"
     */
    int GenDefCmp(const DIBSECTION& section);

    /** Lets the user choose the compression in the system's dialog: between Open() and the first frame. The
     * choice holds for this object's later files too. If the codec then refuses, alarm 1211 tells so and the
     * default takes its place.
     *  @param bitmap  like the frames that will follow
     *  @return 1; 0 if the user cancels, or after alarm 1202, 1204, 1205, 1207 or, once frames were added,
     * 1212 */
    int SelectCmp(HBITMAP bitmap);

    /** Finishes the file. Nothing if none is open. */
    void Close();

    /** Frames that were written to the file that is open now: a continuation begins at 0. */
    int FrameCount() const noexcept { return m_frames; }

    /** What a result of the AVI library means; "unknown avi result code" for one that is not its own. */
    static CString ErrStr(int result);

private:
    int OpenFile(const CString& path);
    int BeginStream(const vant::detail::DibFrame& frame);
    int BeginFrames(const vant::detail::DibFrame& frame);
    int ContinueInNext(const vant::detail::DibFrame& frame);
    bool Compress(const DIBSECTION& section);

    CString m_path; // as it was given to Open()
    std::unique_ptr<vant::detail::AviFile> m_file;
    std::unique_ptr<vant::detail::CmpOptions> m_choice; // the user's; null for the default
    bool m_noXvid = false;                              // this recording has fallen back to whole frames
    int m_frames = 0;
    int m_headerFrames = 25; // frames after which the header is brought up to date: half a second of video
    int m_number = 1;        // of the file in a recording that goes on in several
};
