// model: a viewer of 3DS models, with their materials.
//   model [FILE.3ds] [--picture FILE]     without a file: the buoy that comes with it
// CModel reads the file, and draws itself where a drawable (CMdl) lets it, lit by the lights of the view.
// Drag to turn, the wheel zooms, M paints it with the library's preset materials, one after the other.
#include <VantCore.h>

#include <GL/gl.h>
#include <algorithm>
#include <cstdio>
#include <memory>

class CSolid : public CMdl
{
public:
    void Draw(CDsp& dsp) override { model.DrawModel(dsp); }
    void GetInf(CMdlInf& inf) override
    {
        inf.name = model.name;
        inf.hasExt = model.GetExtents(inf.lower, inf.upper); // for ShowMdl()
    }
    CModel model;
};

class CViewer : public CDsp
{
public:
    CViewer()
    {
        m_group.RegDsp(this);
        Light(0, {-0.5F, 0.9F, 0.8F}, RGB(255, 250, 240), 0.9); // from above, behind the eye
        Light(1, {1.0F, -0.1F, 0.4F}, RGB(120, 165, 230), 0.4); // cool, from the right
        Light(2, {0.2F, 0.6F, -0.9F}, RGB(190, 215, 255), 0.7); // from behind
        backCol = RGB(22, 40, 62);
        mouseMode = mouseRotate;
        graticule = northArrow = 0;
    }

    bool Open(const CString& file)
    {
        if (!m_solid.model.Read3DS(file))
            return false;
        m_plain = m_solid.model; // shares the meshes
        m_text.Format(L"%s: %d meshes, %d triangles", m_plain.name.GetString(), m_plain.GetMeshCount(),
                      m_plain.GetFaceCount());
        CDspCam cam;
        cam.kind = CDspCam::orbit;
        cam.align = ML::D2R(35);
        cam.elev = ML::D2R(14);
        SetCam(cam);
        ShowMdl(&m_solid); // all of it, from there
        std::printf("%ls\n", m_text.GetString());
        for (unsigned i = 0; i < m_plain.mtrls.GetSize(); ++i)
            std::printf("material %ls\n", m_plain.mtrls[i]->name.GetString());
        return true;
    }

    void DrawOverlay() override
    {
        CDsp::DrawOverlay();
        double line = OverlaySize().y - 30;
        OverlayTxt(16, line, m_text, Vant::light, 18);
        for (unsigned i = 0; i < m_solid.model.mtrls.GetSize(); ++i) {
            const CDspMtrl& mtrl = *m_solid.model.mtrls[i];
            line -= 24;
            glColor4f(mtrl.diffuse.red, mtrl.diffuse.green, mtrl.diffuse.blue, 1);
            glRectd(16, line, 28, line + 12);
            OverlayTxt(36, line, mtrl.name, Vant::yellow, 16);
        }
    }

    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags)
    {
        if (key != 'M')
            return CDsp::OnKeyDown(key, repeat, flags);
        if (++m_preset == static_cast<int>(std::size(CMdl::s_defaultMtrl)))
            m_preset = -1; // its own again
        m_solid.model = m_plain;
        for (unsigned i = 0; m_preset >= 0 && i < m_solid.model.mtrls.GetSize(); ++i)
            *m_solid.model.mtrls[i] = CMdl::s_defaultMtrl[m_preset];
        m_solid.model.MtrlsChanged();
        m_solid.ModelChanged(0);
    }
    DECLARE_MESSAGE_MAP()

private:
    void Light(int number, const float (&from)[3], COLORREF colour, double intensity)
    {
        std::copy(std::begin(from), std::end(from), lights[number].position); // a direction
        lights[number].on = 1;
        lights[number].diffuseInt = lights[number].specularInt = intensity;
        lights[number].ambientInt = intensity / 4;
        lights[number].ConfigureColour(colour);
    }

    CDspGrp m_group; // brings drawables and views together
    CSolid m_solid;
    CModel m_plain; // as it was read
    CString m_text;
    int m_preset = -1;
};

BEGIN_MESSAGE_MAP(CViewer, CDsp)
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

class CModelApp : public CBaseApp
{
    BOOL InitInstance() override
    {
        Vant::hIcon = ::LoadIconW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(100));
        Vant::Init();
        const bool takesPicture = __argc > 2 && CString(__wargv[__argc - 2]) == L"--picture";
        wchar_t program[MAX_PATH] = {};
        ::GetModuleFileNameW(nullptr, program, MAX_PATH);
        CString file = CString(program).Left(CString(program).ReverseFind(L'\\') + 1) + L"buoy.3ds";
        if (__argc > (takesPicture ? 3 : 1))
            file = __wargv[1];
        m_wnd = std::make_unique<CViewer>();
        m_pMainWnd = m_wnd.get();
        m_isGood = m_wnd->CreateWnd(L"Model", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 780, 680)) &&
                   m_wnd->Open(file);
        std::printf(m_isGood ? "" : "%ls could not be shown\n", file.GetString());
        ::SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR, DWORD) {
            CVantWnd::Poll(0); // draws what has changed
        });
        if (!m_isGood || !takesPicture)
            return m_isGood;
        m_wnd->RedrawWnd();
        m_isGood = Vant::PrintScn(__wargv[__argc - 1]);
        std::printf(m_isGood ? "%ls\n" : "%ls could not be written\n", __wargv[__argc - 1]);
        return FALSE;
    }

    int ExitInstance() override
    {
        m_wnd.reset();
        Vant::Exit();
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

    std::unique_ptr<CViewer> m_wnd;
    BOOL m_isGood = FALSE;
} theApp;
