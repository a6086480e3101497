// The video that the bridge records, and the pictures that it leaves.
#include "demo/bridge/CBridge.h"

#include "demo/screen/ScreenPicture.h"
#include "demo/session/Commands.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace demo
{

void CBridge::RecordVideo()
{
    const CString path = m_session.outDir + videoName;
    if (!m_video.IsOn()) {
        m_session.recording = m_session.recording && m_video.Start(path);
        return;
    }
    if (m_session.recording)
        m_video.AddFrame();
    else
        m_video.Stop();
    if (m_video.IsOn())
        return;
    m_session.recording = false; // that was the last frame
    m_session.log.Line(L"video of " + std::to_wstring(m_video.Frames()) + L" frames saved to " +
                       std::wstring(static_cast<LPCWSTR>(path)));
}

void CBridge::SavePictures()
{
    const auto note = [this](bool saved, const wchar_t* file) {
        m_session.picturesSaved &= saved;
        if (saved)
            m_session.pictures.emplace_back(file);
    };
    for (CSceneWnd* const view : Views()) {
        if (!view->IsWindowVisible())
            continue;
        const wchar_t* const file = view == &m_chart ? chartName : orbitName;
        note(view->SavePicture(m_session.outDir + file), file);
        view->RedrawWnd();
    }
    note(SavePicture(m_session, pictureName), pictureName);
    if (m_video.Frames() > 0)
        m_session.pictures.emplace_back(videoName);
    std::vector<CWnd*> windows{this};
    std::ranges::copy(Popups(), std::back_inserter(windows));
    note(SaveSeen(windows, m_session.outDir + screenName), screenName);
}

} // namespace demo
