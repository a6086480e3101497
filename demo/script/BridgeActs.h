#pragma once

#include "demo/CSetupWnd.h"
#include "demo/script/CScript.h"

namespace demo
{

/** What the program tries with itself: each kind of control once, with the mouse or the keys. */
std::vector<CScript::Act> BridgeActs(Session& session, CVantWnd& bridge, CSetupWnd& setup, CInput& hands);

} // namespace demo
