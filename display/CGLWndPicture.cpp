// CGLWnd: pictures of the scene, by way of a pixel buffer.
#include "display/CGLWnd.h"

#include "display/CDsp.h"
#include "display/detail/GLCalls.h"
#include "display/detail/GLContext.h"
#include "display/detail/Pbuffer.h"
#include "display/detail/PixelRows.h"
#include "platform/Vant.h"

#include <atlimage.h>

#include <GL/gl.h>

using namespace vant::detail;

int CGLWnd::InitPB(HDC hdc, int width, int height)
{
    if (!m_rc)
        return 0;
    const CurrentContext current{hdc, m_rc};
    if (!LookUpPbuffers(hdc))
        return 0;
    std::unique_ptr<Pbuffer> made = Pbuffer::Create(hdc, width, height);
    if (!made)
        return 0;
    const bool shares = GL().shareLists(CDsp::s_sharedRC, made->Rc()) != FALSE;
    if (!shares) {
        const CString cause = Vant::ErrorString(::GetLastError());
        Vant::Alarm(0, 1, L"(PB) Error in sharing display lists code = %s", static_cast<LPCWSTR>(cause));
    }
    m_pb = std::move(made);
    m_pbShares = shares;
    m_pbWidth = width;
    m_pbHeight = height;
    return 1;
}

int CGLWnd::CapPB(CImage& image)
{
    constexpr int depth = 32;
    if (!m_rc || !m_pbWidth || !m_pbHeight)
        return 0;
    if (!image.IsDIBSection() || image.GetBPP() != depth || image.GetWidth() != m_pbWidth ||
        image.GetHeight() != m_pbHeight)
        return 0;
    const CurrentContext current{m_pb->Dc(), m_pb->Rc()};
    if (!current)
        return 0;
    RenderTo(CRect(0, 0, m_pbWidth, m_pbHeight), m_pbShares);
    glFlush();

    // Drawing into the image may be queued, and must not come after the picture.
    ::GdiFlush();
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glPixelStorei(GL_PACK_ROW_LENGTH, 0);
    glPixelStorei(GL_PACK_SKIP_ROWS, 0);
    glPixelStorei(GL_PACK_SKIP_PIXELS, 0);
    const int pitch = image.GetPitch();
    auto* const lowestAddress =
        static_cast<unsigned char*>(image.GetPixelAddress(0, pitch < 0 ? m_pbHeight - 1 : 0));
    glReadPixels(0, 0, m_pbWidth, m_pbHeight, GL_BGRA_EXT, GL_UNSIGNED_BYTE, lowestAddress);
    // OpenGL's first row is the bottom one.
    if (pitch > 0)
        FlipRows(lowestAddress, pitch, m_pbHeight);
    return 1;
}
