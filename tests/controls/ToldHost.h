#pragma once

#include "controls/InputHost.h"

#include <vector>

namespace vant::test
{

/** A host that writes down what it is told by its children. */
class ToldHost : public InputHost
{
public:
    using InputHost::InputHost;
    std::vector<UINT> told; ///< codes of WM_COMMAND

protected:
    BOOL OnCommand(WPARAM w, LPARAM l) override
    {
        told.push_back(HIWORD(w));
        return InputHost::OnCommand(w, l);
    }
};

} // namespace vant::test
