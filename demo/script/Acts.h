#pragma once

#include "demo/script/CScript.h"

#include <vector>

namespace demo
{

/** @name What the program tries with itself: each kind of control, with the mouse and the keys
 *  To be played in this order. What they set stays set, but for what would look odd in the next run. @{ */
std::vector<Act> FieldActs();   ///< edit fields: storing, refusing, Escape, Tab
std::vector<Act> AlarmActs();   ///< the alarm, its message and its acknowledgement
std::vector<Act> ControlActs(); ///< categories, checks, the dial, the address, keys and buttons
std::vector<Act> ViewActs();    ///< the chart and the orbit view: pan, zoom, turn, pick
std::vector<Act> ColourActs();  ///< the colours of the depths: another table, turned
std::vector<Act> SurveyActs();  ///< the survey window: a controller, the waypoints, a menu
std::vector<Act> RecordActs();  ///< the log's clock in its fit, the distance from the route, the video
std::vector<Act> AllActs();
/** @} */

} // namespace demo
