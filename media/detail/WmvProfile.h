#pragma once

#include <string>

namespace vant::detail
{

/** The profile that every Windows Media file is written with, as the document that the profile manager loads:
 * lossless sound, of which nothing is ever given, and video of 874 x 576 pixels at the highest quality,
 * nominally 5 frames per second. */
std::wstring WmvProfile();

} // namespace vant::detail
