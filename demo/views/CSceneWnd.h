#pragma once

#include "demo/scene/Scene.h"
#include "demo/screen/CPopup.h"
#include "display/CDsp.h"
#include "display/CDspMHit.h"

class CImage;

namespace demo
{

/** A view of the scene in a window of its own. The boat stays in its middle until the user takes hold of the
 * view; F follows the boat again. */
class CSceneWnd : public CPopup<CDsp>
{
    DECLARE_DYNAMIC(CSceneWnd)

public:
    /** @param place  see PopupFrame */
    CSceneWnd(const wchar_t* wndName, const wchar_t* title, Session& session, Scene& scene,
              PopupPlace& place);

    /** Follows the boat, or no longer. */
    void FollowBoat(bool follows);
    bool IsFollowing() const { return Followed() != nullptr; }

    /** Shows the whole planned route, and no longer follows the boat. */
    void ShowRoute();

    /** What the user picked last; empty for nothing. */
    const CString& Picked() const noexcept { return m_picked.text; }

    /** Saves a picture of the scene. @return whether it could be saved */
    bool SavePicture(const CString& path);

    /** Draws the scene into an image of any size, which is made here; where the driver cannot do that, the
     * image is what the screen shows, stretched. @return whether there is an image */
    bool Capture(CImage& image, CSize size);

    void OnPoll(double t) override;
    void OnInfoMsg(int msg, void* data) override;
    void OnNfyWnd(CVantWnd* sender, int msg, void* data) override;
    void DrawOverlay() override;
    void OnPick(CDspMInf& inf, int how) override;
    /** What the drawables add, then what the view itself can do. */
    void OnMenu(CDspMInf& inf, CEMenu& menu) override;

protected:
    /** What the view's note says besides of what it follows. */
    virtual CString Note() const = 0;
    /** The lights' shared colours. */
    void SetLight(int number, COLORREF colour, double ambientShare, const CV3& from);

    Scene& SceneOf() noexcept { return m_scene; }

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMButtonDown(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    DECLARE_MESSAGE_MAP()

private:
    void OnShowAll();
    void OnNorthUp() { SetUp(upNorth); }
    void OnCourseUp() { SetUp(upCourse); }
    bool DrawsPictures(CSize size);
    bool CopySeen(CImage& image, CSize size);

    Scene& m_scene;
    CDspMHit m_picked;
    bool m_drawsPictures; // the driver does, apart from the window; until it refuses
};

} // namespace demo
