#pragma once

namespace demo
{

/** Where no Xvid codec is installed, the library raises an alarm and writes whole frames
 * (CEAvi::GenDefCmp()). For the demonstration's short videos that is no fault: takes the alarm back and tells
 * of it in the console instead. To be called after a frame was added. */
void TellOfPlainVideo();

} // namespace demo
