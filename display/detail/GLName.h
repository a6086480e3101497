#pragma once

namespace vant::detail
{

/** Owns a texture or a range of lists of the contexts that share them. Its owner may go at any time, without
 * a context: the names then wait for DeleteReleasedNames(). UI thread only. */
class GLName
{
public:
    enum class Kind { texture, lists };

    /** @param first,count  the names; count is 1 for a texture */
    GLName(Kind kind, unsigned first, int count = 1);
    ~GLName();
    GLName(const GLName&) = delete;
    GLName& operator=(const GLName&) = delete;

    /** The first name. */
    unsigned First() const noexcept;
    /** False once ForgetNames() was called: OpenGL may give the same numbers to something else. */
    bool Exists() const noexcept;

    struct Link {
        Kind kind;
        unsigned first;
        int count;
        int group; // of contexts, by number
        Link* next;
    };

private:
    Link* m_link; // made beforehand, so that letting go cannot fail
};

/** Deletes the names that wait; one of the sharing contexts must be current. */
void DeleteReleasedNames() noexcept;

/** The sharing contexts are gone and every name with them: none of them is to be deleted any more, neither
 * now nor when its owner goes. */
void ForgetNames() noexcept;

} // namespace vant::detail
