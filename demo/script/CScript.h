#pragma once

#include "demo/Session.h"
#include "demo/script/CInput.h"

#include <functional>
#include <string>
#include <vector>

namespace demo
{

/** The program tries its own controls: does things as a user, one after the other, and checks what happened.
 * Every step is reported in a line on the standard output. */
class CScript
{
public:
    /** Something to do and what must come of it. */
    struct Act {
        std::wstring name;            ///< "types a limit"
        std::function<void()> begin;  ///< tells the hands what to do; may be empty
        std::function<bool()> holds;  ///< becomes true, soon after the hands have done it
        const wchar_t* picture = L""; ///< name of a picture of the result; empty for none
        double patience = 5.0;        ///< seconds until the step has failed
    };

    /** @param hands  used by the acts @param acts  in their order */
    CScript(Session& session, CInput& hands, std::vector<Act> acts);

    /** Goes on a little; called several times a second. @param t  seconds @return whether all is done */
    bool Step(double t);

private:
    void Report(const Act& act, bool passed);

    Session& m_session;
    CInput& m_hands;
    std::vector<Act> m_acts;
    std::size_t m_current = 0;
    bool m_begun = false;
    double m_start = 0.0;
};

} // namespace demo
