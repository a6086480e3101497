#include "demo/views/CChartWnd.h"

#include "demo/draw/ColourSet.h"

namespace demo
{
namespace
{

constexpr double firstZoom = 260.0; // metres from the lower to the upper edge

} // namespace

IMPLEMENT_DYNAMIC(CChartWnd, CSceneWnd)

CChartWnd::CChartWnd(Session& session, Scene& scene)
    : CSceneWnd(L"Chart", L"Chart", session, scene, session.settings.chart)
{
    backCol = ColourSet::FromScheme().deep;
    SetZoom(firstZoom);
    // From the north-west, as charts are shaded.
    SetLight(0, RGB(255, 250, 240), 0.45, {-0.6, 0.6, 0.7});
}

int CChartWnd::Shows(const CMdl& mdl)
{
    return CSceneWnd::Shows(mdl) && !SceneOf().IsScenery(mdl);
}

CString CChartWnd::Note() const
{
    return GetUp() == upNorth ? L"North up" : GetUp() == upCourse ? L"Course up" : L"Turned by hand";
}

} // namespace demo
