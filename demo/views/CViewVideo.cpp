#include "demo/views/CViewVideo.h"

#include "demo/views/PlainVideo.h"

namespace demo
{
namespace
{

constexpr double turn = 0.8; // degrees from frame to frame

} // namespace

bool CViewVideo::Start(const CString& path)
{
    Stop();
    m_frames = 0;
    m_isOn = m_avi.Open(path) != 0;
    return m_isOn;
}

void CViewVideo::AddFrame()
{
    if (!m_isOn)
        return;
    CDspCam cam = m_view.Cam();
    cam.align += ML::D2R(turn);
    m_view.SetCam(cam);
    const bool added = Capture() && m_avi.AddDib(m_image);
    TellOfPlainVideo();
    m_frames += added ? 1 : 0;
    if (!added || m_frames >= mostFrames)
        Stop();
}

void CViewVideo::Stop()
{
    m_avi.Close();
    m_isOn = false;
}

/** The view's picture in 24 bits: a quarter less than what is captured. */
bool CViewVideo::Capture()
{
    constexpr int bitsPerPixel = 24;
    CImage captured;
    if (!m_view.Capture(captured, {width, height}) ||
        (m_image.IsNull() && !m_image.Create(width, height, bitsPerPixel)))
        return false;
    const HDC dc = m_image.GetDC();
    const BOOL copied = captured.BitBlt(dc, 0, 0);
    m_image.ReleaseDC();
    return copied != FALSE;
}

} // namespace demo
