#pragma once

#include "demo/views/CSceneWnd.h"
#include "media/CEAvi.h"

#include <atlimage.h>

namespace demo
{

/** A short video of a view, which turns around the boat meanwhile: two seconds of it, a frame at each poll.
 */
class CViewVideo
{
public:
    static constexpr int width = 400; ///< pixels
    static constexpr int height = 250;
    static constexpr int mostFrames = 100;

    explicit CViewVideo(CSceneWnd& view)
        : m_view(view)
    {
    }

    /** Begins a video, in place of the one before. @return whether the file could be created */
    bool Start(const CString& path);
    bool IsOn() const noexcept { return m_isOn; }
    /** Of this video, or of the last one. */
    int Frames() const noexcept { return m_frames; }

    /** Adds what the view shows now. The last frame, and one that cannot be made, end the video. */
    void AddFrame();
    void Stop();

private:
    bool Capture();

    CSceneWnd& m_view;
    CEAvi m_avi;
    CImage m_image;
    int m_frames = 0;
    bool m_isOn = false;
};

} // namespace demo
