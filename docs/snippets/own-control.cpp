// A control of one's own: the lever of a thruster, and a window with two of them.
#include <VantCore.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace
{

// [class]
// The lever of a thruster: a bar from the middle up or down. Bound to a number between the ends of its range,
// 0 being the middle; dragged with the mouse, or moved with the arrow keys.
class CEThrust : public CECtrl
{
public:
    CEThrust() { SetRange(-1, 1); }

    void Draw(CDC* dc) override;
    unsigned long WndStyle() const override { return CECtrl::WndStyle() | WS_TABSTOP | keepFocus; }

protected:
    afx_msg void OnLButtonDown(UINT flags, CPoint px);
    afx_msg void OnMouseMove(UINT flags, CPoint px);
    afx_msg void OnLButtonUp(UINT flags, CPoint px);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    DECLARE_MESSAGE_MAP()

private:
    static constexpr int textH = 20; // of the figures below the bar, units
    void DragTo(CPoint px);
    CRect Bar() const;
};

BEGIN_MESSAGE_MAP(CEThrust, CECtrl)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()
// [class]

// [draw]
CRect CEThrust::Bar() const
{
    CRect bar = ClientRc(); // units, at every scale
    bar.bottom -= textH;
    bar.DeflateRect(bar.Width() / 3, 4);
    return bar;
}

void CEThrust::Draw(CDC* dc)
{
    DrawBack(dc);
    style.Set(dc); // font, brush, pen and text colour
    CRect bar = Bar();
    const bool hasFocus = ::GetFocus() == m_hWnd;
    dc->SelectObject(hasFocus ? &Vant::lightL : &Vant::medL);
    dc->Rectangle(bar);
    constexpr int marks = 10; // above and below the middle together
    for (int i = 0; i <= marks; ++i) {
        const int y = bar.top + i * (bar.Height() - 1) / marks;
        dc->MoveTo(bar.left - (i % (marks / 2) == 0 ? 10 : 6), y);
        dc->LineTo(bar.left - 2, y);
    }

    const double thrust = GetVal(); // under the mutex, if there is one
    constexpr double noData = -32768.0;
    if (thrust != noData) {
        bar.DeflateRect(3, 3);
        const int middle = bar.CenterPoint().y;
        const double share = std::clamp(thrust / rangeMax, -1.0, 1.0);
        const int end = middle - static_cast<int>(std::lround(share * bar.Height() / 2));
        const CRect filled(bar.left, std::min(middle, end), bar.right, std::max(middle, end) + 1);
        dc->FillRect(filled, !IsEnabled() ? &Vant::greyB : share < 0 ? &Vant::redB : &Vant::greenB);
        const CRect handle(bar.left - 6, end - 3, bar.right + 6, end + 4);
        dc->FillRect(handle, IsEnabled() ? &Vant::lightB : &Vant::darkB);
    }

    CRect figures = ClientRc();
    figures.top = figures.bottom - textH;
    dc->DrawText(GetText(1), -1, figures, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}
// [draw]

// [input]
void CEThrust::DragTo(CPoint px)
{
    const CRect bar = Bar();
    const double share = 1 - 2.0 * (Dpi().ToUnits(px).y - bar.top) / bar.Height();
    SetVal(std::clamp(share, -1.0, 1.0) * rangeMax);
    Update(1);
    Execute(); // the last thing: a callback may destroy the window
}

void CEThrust::OnLButtonDown(UINT, CPoint px)
{
    SetFocus();
    SetCapture();
    DragTo(px);
}

void CEThrust::OnMouseMove(UINT flags, CPoint px)
{
    if (GetCapture() == this)
        return DragTo(px);
    CECtrl::OnMouseMove(flags, px);
}

void CEThrust::OnLButtonUp(UINT, CPoint)
{
    if (GetCapture() == this)
        ::ReleaseCapture();
}

void CEThrust::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (key != VK_UP && key != VK_DOWN)
        return CECtrl::OnKeyDown(key, repeat, flags);
    constexpr double step = 0.05;
    Jog(key == VK_UP ? 1 : -1, step * rangeMax, 0); // clamps, shows, and calls the callbacks
}
// [input]

class CBridgeWnd : public CVantWnd
{
public:
    // [use]
    void SetupCtrls() override
    {
        name = L"Bridge";
        ctrlH = 160;
        for (double* const thrust : {&m_port, &m_starboard}) {
            auto* const lever = new CEThrust;
            InsCtrl(80, lever, 0);
            lever->Init(*thrust);
            lever->units = 7;   // a ratio, shown in per cent
            lever->scale = 100; // of the variable, which goes from -1 to 1
            lever->decimals = 0;
            lever->aux1 = thrust == &m_port ? L"Port" : L"Starboard"; // in the settings
        }
    }
    // [use]

private:
    double m_port = 0.65;
    double m_starboard = -0.2;
};

class CBridgeApp : public CBaseApp
{
    BOOL InitInstance() override
    {
        Vant::Init();
        m_wnd = std::make_unique<CBridgeWnd>();
        m_pMainWnd = m_wnd.get();
        return m_wnd->CreateWnd(L"Thrusters", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(80, 80, 280, 300));
    }
    int ExitInstance() override
    {
        m_wnd.reset();
        Vant::Exit();
        return CBaseApp::ExitInstance();
    }
    std::unique_ptr<CBridgeWnd> m_wnd;
};

CBridgeApp theApp;

} // namespace
