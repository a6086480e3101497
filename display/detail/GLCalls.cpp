#include "display/detail/GLCalls.h"

#include <GL/gl.h>

namespace vant::detail
{

namespace
{

void* LookUp(LPCSTR name)
{
    // Some drivers answer these small numbers instead of null.
    void* const found = reinterpret_cast<void*>(::wglGetProcAddress(name));
    const auto number = reinterpret_cast<INT_PTR>(found);
    return number >= -1 && number <= 3 ? nullptr : found;
}

HGLRC CreateContext(HDC dc)
{
    return ::wglCreateContext(dc);
}

BOOL DeleteContext(HGLRC rc)
{
    return ::wglDeleteContext(rc);
}

BOOL MakeCurrent(HDC dc, HGLRC rc)
{
    return ::wglMakeCurrent(dc, rc);
}

BOOL ShareLists(HGLRC from, HGLRC to)
{
    return ::wglShareLists(from, to);
}

BOOL FontOutlines(HDC dc, DWORD first, DWORD count, DWORD lists, GLYPHMETRICSFLOAT* metrics)
{
    return ::wglUseFontOutlinesW(dc, first, count, lists, 0, 0, WGL_FONT_POLYGONS, metrics);
}

BOOL ShowBackBuffer(HDC dc)
{
    return ::SwapBuffers(dc);
}

bool AcceptsTexture(int width, int height)
{
    constexpr GLint components = 3;
    GLint accepted = 0;
    glTexImage2D(GL_PROXY_TEXTURE_2D, 0, components, width, height, 0, GL_RGB, GL_UNSIGNED_BYTE, nullptr);
    glGetTexLevelParameteriv(GL_PROXY_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, &accepted);
    return accepted != 0;
}

unsigned NewTexture()
{
    GLuint name = 0;
    glGenTextures(1, &name);
    return name;
}

constinit GLCalls inUse{&LookUp,       &CreateContext,  &DeleteContext,  &MakeCurrent, &ShareLists,
                        &FontOutlines, &ShowBackBuffer, &AcceptsTexture, &NewTexture};

} // namespace

GLCalls& GL() noexcept
{
    return inUse;
}

} // namespace vant::detail
