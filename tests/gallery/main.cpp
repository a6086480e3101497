// The controls of the library, each in every state, in one window.
//
//   gallery                    opens the window
//   gallery --pictures FOLDER  saves it as pictures at three scales, and ends
#include "CGalleryWnd.h"
#include "Pictures.h"
#include "resources/Ids.h"

#include <cstdio>
#include <memory>

namespace
{

class CGalleryApp : public CBaseApp
{
public:
    BOOL InitInstance() override
    {
        Vant::hIcon = ::LoadIconW(::GetModuleHandleW(L"VantCore.dll"), MAKEINTRESOURCEW(VANT_IDI_APP));
        Vant::Init();
        const bool takesPictures = __argc == 3 && CString(__wargv[1]) == L"--pictures";
        if (__argc > 1 && !takesPictures) {
            std::fputs("usage: gallery [--pictures FOLDER]\n", stderr);
            return FALSE;
        }
        m_wnd = std::make_unique<CGalleryWnd>();
        const DWORD style = takesPictures ? WS_POPUP : WS_OVERLAPPEDWINDOW;
        if (!m_wnd->CreateWnd(L"Gallery of controls", style, CRect(0, 0, CGalleryWnd::contentW + 16, 760)))
            return FALSE;
        m_pMainWnd = m_wnd.get();
        m_wnd->ShowWindow(SW_SHOW);
        m_isGood = takesPictures ? TakePictures(*m_wnd, __wargv[2]) : m_wnd->TakeStills();
        return !takesPictures;
    }

    int ExitInstance() override
    {
        if (m_wnd && m_wnd->m_hWnd)
            m_wnd->DestroyWindow();
        m_wnd.reset();
        Vant::Exit();
        CBaseApp::ExitInstance();
        return m_isGood ? 0 : 1;
    }

private:
    std::unique_ptr<CGalleryWnd> m_wnd;
    bool m_isGood = false;
};

CGalleryApp theApp;

} // namespace
