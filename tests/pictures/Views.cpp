// A view of a sea bed and a boat that it follows, five million metres from zero as real coordinates are.
#include "pictures/CBoat.h"
#include "pictures/CSeabed.h"
#include "pictures/Scenes.h"

#include <atlimage.h>

namespace
{

const CV3 somewhere(489'600, 5'832'400, 0); // metres east and north, as real charts have them

bool Save(CDsp& view, const CString& file)
{
    constexpr int width = 900;
    constexpr int height = 560;
    constexpr int depth = 32;
    CClientDC dc(&view);
    CImage image;
    if (!view.InitPB(dc, width, height) || !image.Create(width, height, depth) || !view.CapPB(image))
        return false;
    // What counts on a screen is the colour; a picture's viewer would show through.
    for (int row = 0; row < height; ++row)
        for (int column = 0; column < width; ++column)
            static_cast<unsigned char*>(image.GetPixelAddress(column, row))[3] = 255;
    return SUCCEEDED(image.Save(file));
}

} // namespace

bool TakeViews(const CString& chartFile, const CString& sceneFile)
{
    const CDspGrp group;
    const CSeabed seabed(somewhere);
    CBoat boat(somewhere);
    constexpr int polls = 800;
    constexpr double timePerPoll = 0.25; // seconds
    for (int i = 1; i <= polls; ++i)
        boat.MoveTo(i * timePerPoll);

    CDsp view;
    view.SetViewOrg(somewhere);
    view.SetZoom(560);
    view.Follow(L"Boat");
    if (!view.CreateWnd(L"View", WS_POPUP, CRect(0, 0, 100, 100)))
        return false;
    bool isGood = Save(view, chartFile);
    CDspCam cam = view.Cam();
    cam.kind = CDspCam::orbit;
    cam.align = ML::D2R(330);
    cam.elev = ML::D2R(33);
    cam.org = somewhere + CV3(0, 0, -20);
    cam.zoom = 520;
    view.SetCam(cam);
    isGood = Save(view, sceneFile) && isGood;
    view.DestroyWindow();
    return isGood;
}
