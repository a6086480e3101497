#pragma once

#include "display/CDspGrp.h"
#include "display/CDspMInf.h"
#include "display/CMdl.h"
#include "display/CMdlInf.h"
#include "display/CMdlPos.h"
#include "display/ViewTest.h"

#include <string>
#include <vector>

/** A view as an application has it, with what it heard. Black, without graticule and instruments. */
class ChartWnd : public CDsp
{
public:
    struct Heard {
        int how;
        std::vector<std::string> hits; // text and part, nearest first
        CV3 nearest;
    };
    std::vector<Heard> picks;
    int cams = 0;
    int renders = 0;

    ChartWnd();
    void Render() override;
    void OnPick(CDspMInf& inf, int how) override;
    void OnCam() override { ++cams; }

    /** A window without a frame, not shown; a metre per pixel, around `middle`. */
    void Open(const CV3& middle = {}, int width = 200, int height = 100);
    void Capture(CImage& image);
    void Send(UINT message, WPARAM wParam, int x, int y);
    /** Presses and moves in some steps; the button stays down. @param button  MK_LBUTTON ... */
    void Drag(WPARAM button, CPoint from, CPoint to);
    void Release(WPARAM button, CPoint at);
    void Key(UINT key, int with = 0);
    void Wheel(int delta, CPoint at, UINT keys = 0);
    /** What is under a position, of which there is something. */
    CV3 Under(double x, double y) const;
};

/** A level square, drawn from its centre as part `part`. */
class Tile : public CMdl
{
public:
    Tile(std::string itsName, const CV3& centre, double halfSide);

    void Draw(CDsp& dsp) override;
    void GetInf(CMdlInf& inf) override;

    std::string name;
    CV3 at;
    double half;
    unsigned part = 0;
    COLORREF colour = RGB(255, 255, 255);
    int hasExt = 1;
    int asked = 0; // how often for its information
    std::function<void(CDsp&)> also;
};

class ChartTest : public ViewTest
{
protected:
    static constexpr CV3 faraway{489'600.125, 5'832'400.25, -31};

    CDspGrp grp;
    ChartWnd wnd;
};

std::vector<std::string> HitTexts(const CDspMInf& inf);
