#include "demo/views/CSceneWnd.h"

#include "controls/CEMenu.h"
#include "demo/scene/Drawing.h"
#include "display/CDspMInf.h"
#include "platform/Vant.h"

#include <algorithm>
#include <iterator>

#include <GL/gl.h>

namespace demo
{
namespace
{

/** @name Of the note in the upper left corner, units @{ */
constexpr double noteSize = 14.0;
constexpr double noteGap = 10.0;
constexpr double linePitch = 18.0;
/** @} */

constexpr double scaleWidth = 64.0; // of the graticule's labels at the left edge, which stay legible, units

void Plate(double left, double bottom, double right, double top)
{
    constexpr GLubyte opacity = 176;
    SetGlColour(Vant::back, opacity);
    glRectd(left, bottom, right, top);
}

} // namespace

IMPLEMENT_DYNAMIC(CSceneWnd, CDsp)

BEGIN_MESSAGE_MAP(CSceneWnd, CDsp)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_MBUTTONDOWN()
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

CSceneWnd::CSceneWnd(const wchar_t* wndName, const wchar_t* title, Session& session, Scene& scene,
                     PopupPlace& place)
    : CPopup(title, session, place)
    , m_scene(scene)
    , m_drawsPictures(session.pbuffers)
{
    CVantWnd::name = wndName;
    lightsInScene = 1;
    FollowBoat(true);
}

void CSceneWnd::FollowBoat(bool follows)
{
    if (follows)
        Follow(CString(Scene::boatPos));
    else
        Follow(nullptr);
    NeedDraw();
}

int CSceneWnd::OnCreate(LPCREATESTRUCT create)
{
    if (CDsp::OnCreate(create) == -1)
        return -1;
    s_pollRx.AddTail(this);
    return 0;
}

void CSceneWnd::OnDestroy()
{
    s_pollRx.RemoveAt(s_pollRx.Find(this));
    CDsp::OnDestroy();
}

void CSceneWnd::OnPoll(double t)
{
    CDsp::OnPoll(t);
    SetCourse(m_scene.Boat().Now().heading);
}

void CSceneWnd::OnInfoMsg(int msg, void* data)
{
    CPopup::OnInfoMsg(msg, data);
    const bool isForThis = data == static_cast<CDsp*>(this);
    if (msg == CBoatMdl::followInfo && isForThis)
        FollowBoat(!IsFollowing());
    if (msg == CPlanMdl::showInfo && isForThis)
        ShowRoute();
    if (msg == sessionInfo)
        NeedDraw(); // units may have changed
}

void CSceneWnd::OnNfyWnd(CVantWnd*, int, void*)
{
    NeedDraw(); // the palette has changed
}

void CSceneWnd::OnLButtonDown(UINT flags, CPoint point)
{
    if (mouseMode == mousePan)
        FollowBoat(false);
    CDsp::OnLButtonDown(flags, point);
}

void CSceneWnd::OnMButtonDown(UINT flags, CPoint point)
{
    FollowBoat(false);
    CDsp::OnMButtonDown(flags, point);
}

void CSceneWnd::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    if (key == 'F')
        FollowBoat(true);
    else
        CDsp::OnKeyDown(key, repeats, flags);
}

void CSceneWnd::OnPick(CDspMInf& inf, int how)
{
    if (how == pickDblClick)
        return;
    m_picked = inf.count > 0 ? *inf.hits.GetHead() : CDspMHit();
    NeedDraw();
}

void CSceneWnd::ShowRoute()
{
    FollowBoat(false);
    ShowMdl(&m_scene.Plan());
}

void CSceneWnd::OnShowAll()
{
    FollowBoat(false);
    ShowMdl(nullptr);
}

void CSceneWnd::OnMenu(CDspMInf& inf, CEMenu& menu)
{
    CDsp::OnMenu(inf, menu);
    menu.AddSep();
    menu.Add(L"Show &everything\tHome", this, static_cast<CEVal::CbNone>(&CSceneWnd::OnShowAll));
    menu.AddSep();
    const auto up = [&](const wchar_t* text, int which, CEVal::CbNone fn) {
        menu.Add(text, this, fn)->SetMark(GetUp() == which ? CEMEnt::markBullet : CEMEnt::markNone);
    };
    up(L"&North up\tN", upNorth, static_cast<CEVal::CbNone>(&CSceneWnd::OnNorthUp));
    up(L"&Course up\tC", upCourse, static_cast<CEVal::CbNone>(&CSceneWnd::OnCourseUp));
}

void CSceneWnd::DrawOverlay()
{
    CDsp::DrawOverlay();
    const CString follows = IsFollowing() ? L"follows the boat" : L"F follows the boat";
    if (m_picked.mdl == &m_scene.Boat())
        m_picked.mdl->OnHit(*this, m_picked); // what it says of itself goes on changing
    const CString lines[] = {Note() + L",  " + follows, m_picked.text};
    const double left = graticule ? scaleWidth : noteGap;
    double top = OverlaySize().y - noteGap;
    for (const CString& line : lines) {
        if (line.IsEmpty())
            continue;
        const double width = OverlayTxtWidth(line, noteSize);
        Plate(left - 4, top - linePitch, left + width + 6, top);
        OverlayTxt(left, top - linePitch / 2, line, &line == &lines[0] ? Vant::light : Vant::cyan, noteSize,
                   alignLeft | alignMiddle);
        top -= linePitch + 2;
    }
}

void CSceneWnd::SetLight(int number, COLORREF colour, double ambientShare, const CV3& from)
{
    CDspLight& light = lights[number];
    light.on = 1;
    light.ambientInt = ambientShare;
    light.ConfigureColour(colour);
    const double place[] = {from.x, from.y, from.z, 0};
    std::transform(std::begin(place), std::end(place), light.position,
                   [](double part) { return static_cast<float>(part); });
}

} // namespace demo
