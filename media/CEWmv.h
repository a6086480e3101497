#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

#include <memory>

namespace vant::detail
{
class WmvWriter;
}

/** Writes bitmaps as the frames of a Windows Media file (.wmv), with a fixed profile: video of 874 x 576
 * pixels at the highest quality, no sound. A bitmap of another size is scaled by the writer.
 *
 *  A frame is shown from the moment at which it was added, counted from the first by the computer's clock;
 * two frames within a millisecond are a millisecond apart. Frames are device-independent sections of any
 * depth, with either row first; all have the size of the first. Pixels of 24 and 32 bits go to the writer as
 * they are, others are converted by GDI.
 *
 *  Windows Media is an optional part of Windows: where it is missing, Open() fails at its first step.
 *
 *  A failure raises an alarm at level 1, with one id for each message, and a line on the general console with
 * the result's number. All calls belong to one thread. */
class VANT_API CEWmv
{
public:
    CEWmv();
    /** Closes the file. */
    virtual ~CEWmv();
    CEWmv(const CEWmv&) = delete;
    CEWmv& operator=(const CEWmv&) = delete;

    /** Prepares a writer with the embedded profile, finds its video input and sets the file, which is created
     * in place of one that is there. A file that is open is closed before.
     *  @return 1; 0 after the alarm of the step that failed, in this order: 1221 "Unable to Create
     * WindowsMedia Profile Manager", 1222 "Unable to Query Interface for ProfileManager2", 1223 "Unable to
     * Set System Profile Version", 1224 "Unable to Load System Profile", 1225 "Unable to Create Media Writer
     * Object", 1226 "Unable to Set System Profile", 1227 "Unable to Get input count For Profile", 1228
     * "Unable to GetInput Properties", 1229 "Unable to Get Input Property Type", 1230 "Unable to Find Video
     * Input", 1231 "Unable to Set Output Filename" */
    int Open(CString path);

    /** Appends a frame. The first one decides on the size and starts the writing.
     *  @param bitmap  a section; only read. One that is not of 24 or 32 bits must not be selected into a
     * device context.
     *  @return 1; 0 after an alarm, and the frame is dropped: 1232 "Cannot add bitmap - wmv not open", 1233
     * "Cannot add bitmap - invalid handle", 1234 "Cannot add bitmap - not a valid DIB", 1235 for another size
     * than the first frame's, 1236 "Unable to Set Input Properties", 1237 "Unable to Begin Writing", 1238
     * "Unable to Allocate Sample", 1239 "Unable to Write Sample" */
    int AddDib(HBITMAP bitmap);

    /** Finishes the file. Nothing if none is open. Alarm 1240: "Unable to End Writing". */
    void Close();

private:
    std::unique_ptr<vant::detail::WmvWriter> m_writer;
};
