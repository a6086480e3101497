#pragma once

#include <windows.h>

#include <GL/gl.h>

namespace vant::detail
{

/** Brings OpenGL's settings back at its end, those of arrays included; matrices stay. */
class GLStateKept
{
public:
    /** @param groups  of settings that may change meanwhile: sum of GL_ENABLE_BIT ... */
    explicit GLStateKept(GLbitfield groups = GL_ALL_ATTRIB_BITS)
    {
        glPushAttrib(groups);
        glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
    }
    ~GLStateKept()
    {
        glPopClientAttrib();
        glPopAttrib();
    }
    GLStateKept(const GLStateKept&) = delete;
    GLStateKept& operator=(const GLStateKept&) = delete;
};

} // namespace vant::detail
