#pragma once

namespace demo
{

/** What plays the program in its user's place. */
class CActor
{
public:
    CActor() = default;
    virtual ~CActor() = default;
    CActor(const CActor&) = delete;
    CActor& operator=(const CActor&) = delete;

    /** Goes on a little; called several times a second. @param t  seconds @return whether all is done */
    virtual bool Step(double t) = 0;
    virtual bool IsDone() const = 0;
};

} // namespace demo
