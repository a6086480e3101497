#include "display/detail/GLName.h"

#include <windows.h>

#include <GL/gl.h>

#include <memory>

namespace vant::detail
{

namespace
{

// Not a container: owners that are static objects may go after every other static object of this library.
constinit GLName::Link* released = nullptr;
constinit int currentGroup = 0;

void Delete(const GLName::Link& link) noexcept
{
    if (link.group != currentGroup)
        return;
    if (link.kind == GLName::Kind::texture)
        glDeleteTextures(1, &link.first);
    else
        glDeleteLists(link.first, link.count);
}

} // namespace

GLName::GLName(Kind kind, unsigned first, int count)
    : m_link(new Link{kind, first, count, currentGroup, nullptr})
{
}

GLName::~GLName()
{
    m_link->next = released;
    released = m_link;
}

unsigned GLName::First() const noexcept
{
    return m_link->first;
}

bool GLName::Exists() const noexcept
{
    return m_link->group == currentGroup;
}

void DeleteReleasedNames() noexcept
{
    while (released) {
        const std::unique_ptr<GLName::Link> link(released);
        released = link->next;
        Delete(*link);
    }
}

void ForgetNames() noexcept
{
    ++currentGroup;
    DeleteReleasedNames(); // none of this group is left: frees the links
}

} // namespace vant::detail
