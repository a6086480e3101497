#include "tests/display/ChartTest.h"

#include <array>

ChartWnd::ChartWnd()
{
    graticule = 0;
    northArrow = 0;
    scaleBar = 0;
    backCol = 0;
}

void ChartWnd::Render()
{
    ++renders;
    CDsp::Render();
}

void ChartWnd::OnPick(CDspMInf& inf, int how)
{
    picks.push_back({how, HitTexts(inf), CV3(inf.ray[6], inf.ray[7], inf.ray[8])});
}

void ChartWnd::Open(const CV3& middle, int width, int height)
{
    ASSERT_TRUE(CreateEx(WS_EX_TOPMOST | WS_EX_NOACTIVATE, Vant::wndClass, L"Chart", WS_POPUP,
                         CRect(0, 0, width, height), nullptr, 0));
    SetViewOrg(middle);
    SetZoom(height);
    cams = 0;
}

void ChartWnd::Capture(CImage& image)
{
    CRect client;
    GetClientRect(&client);
    CaptureScene(*this, image, client.Size());
}

void ChartWnd::Send(UINT message, WPARAM wParam, int atX, int atY)
{
    SendMessage(message, wParam, MAKELPARAM(atX, atY));
}

void ChartWnd::Drag(WPARAM button, CPoint from, CPoint to)
{
    constexpr int steps = 4;
    Send(button == MK_LBUTTON   ? WM_LBUTTONDOWN
         : button == MK_MBUTTON ? WM_MBUTTONDOWN
                                : WM_RBUTTONDOWN,
         button, from.x, from.y);
    for (int i = 1; i <= steps; ++i)
        Send(WM_MOUSEMOVE, button, from.x + (to.x - from.x) * i / steps,
             from.y + (to.y - from.y) * i / steps);
}

void ChartWnd::Release(WPARAM button, CPoint at)
{
    Send(button == MK_LBUTTON   ? WM_LBUTTONUP
         : button == MK_MBUTTON ? WM_MBUTTONUP
                                : WM_RBUTTONUP,
         0, at.x, at.y);
}

void ChartWnd::Key(UINT key, int with)
{
    std::array<BYTE, 256> before{};
    ::GetKeyboardState(before.data());
    std::array<BYTE, 256> state{};
    if (with)
        state[static_cast<std::size_t>(with)] = 0x80;
    ::SetKeyboardState(state.data());
    SendMessage(WM_KEYDOWN, key, 1);
    ::SetKeyboardState(before.data());
}

void ChartWnd::Wheel(int delta, CPoint at, UINT keys)
{
    ClientToScreen(&at);
    SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(keys, static_cast<WORD>(delta)), MAKELPARAM(at.x, at.y));
}

CV3 ChartWnd::Under(double atX, double atY) const
{
    CV3 pt;
    EXPECT_TRUE(Xy2Pt(atX, atY, pt));
    return pt;
}

Tile::Tile(std::string itsName, const CV3& centre, double halfSide)
    : name(std::move(itsName))
    , at(centre)
    , half(halfSide)
{
    lit = 0;
}

void Tile::Draw(CDsp& dsp)
{
    glLoadName(part);
    glColor3ub(GetRValue(colour), GetGValue(colour), GetBValue(colour));
    glNormal3d(0, 0, 1);
    dsp.PushOrg(at);
    glRectd(-half, -half, half, half);
    dsp.PopOrg();
    if (also)
        also(dsp);
}

void Tile::GetInf(CMdlInf& inf)
{
    ++asked;
    inf.name = name.c_str();
    inf.hasExt = hasExt;
    inf.lower = at - CV3(half, half, 0);
    inf.upper = at + CV3(half, half, 0);
}

std::vector<std::string> HitTexts(const CDspMInf& inf)
{
    std::vector<std::string> texts;
    for (CVantPtr* pos = inf.hits.GetHeadPos(); pos;) {
        const CDspMHit& hit = *inf.hits.GetNext(pos);
        std::string& text = texts.emplace_back(CStringA(hit.text));
        if (hit.part) {
            text += ' ';
            text += std::to_string(hit.part);
        }
    }
    return texts;
}
