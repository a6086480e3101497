// The code of docs/3d.md.
#include <VantCore.h>

#include <GL/gl.h>

#include <memory>

// [drawable]
class CBuoy : public CMdl
{
public:
    explicit CBuoy(const CV3& place)
        : m_place(place)
    {
    }

    void MoveTo(const CV3& place)
    {
        m_place = place;
        ModelChanged(changeMoved); // every view draws anew at the next poll
    }

    void Draw(CDsp& dsp) override
    {
        dsp.PushOrg(m_place); // what follows counts from here, exactly
        glBegin(GL_LINES);
        glVertex3d(0, 0, 0);
        glVertex3d(0, 0, height);
        glEnd();
        dsp.PopOrg();
        dsp.Label(m_place, L"North cardinal", Vant::light, 8, 0);
    }

    void GetInf(CMdlInf& inf) override
    {
        inf.name = L"North cardinal";
        inf.kind = L"Buoy";
        inf.hasExt = 1;
        inf.lower = m_place;
        inf.upper = m_place + CV3(0, 0, height);
    }

private:
    static constexpr int changeMoved = 0; // a number of its own; views hear it
    static constexpr double height = 4;   // metres
    CV3 m_place;                          // display coordinates
};
// [drawable]

class CViewApp : public CBaseApp
{
public:
    BOOL InitInstance() override;

private:
    std::unique_ptr<CDspGrp> m_group;
    std::unique_ptr<CBuoy> m_buoy;
    std::unique_ptr<CDsp> m_view;
};

BOOL CViewApp::InitInstance()
{
    // [view]
    Vant::Init();
    m_group = std::make_unique<CDspGrp>(); // first: drawables and views join it
    m_buoy = std::make_unique<CBuoy>(CV3(489'250, 5'832'400, 0));
    m_view = std::make_unique<CDsp>();
    m_view->CreateWnd(L"Chart", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 900, 700));
    m_view->ShowMdl(m_buoy.get());
    // [view]
    m_pMainWnd = m_view.get();
    return TRUE;
}
