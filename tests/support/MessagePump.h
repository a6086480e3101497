#pragma once

#include <functional>

namespace vant::test
{

/** Handles every message that waits. @return false when WM_QUIT was among them. */
bool PumpPending();

/** Handles messages until @p condition holds. @return Whether it held before @p milliseconds had passed; the
 *  time only bounds a test that fails. */
bool PumpUntil(const std::function<bool()>& condition, unsigned milliseconds = 10000);

/** Handles messages for so long, such as until the screen shows what was drawn. */
void PumpFor(unsigned milliseconds);

} // namespace vant::test
