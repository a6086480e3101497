#pragma once

class CEVal;

namespace vant::detail
{

/** What a value's mask (`aux0`) finds in the bound variable. */
enum class MaskState { None, Some, All };

/** The bits of the mask in the bound integer; None where no integer is bound. A mask reaches the low 32 bits.
 */
MaskState Bits(const CEVal& value);

/** Clears the bits of the mask if any is set, sets them all otherwise, in one step under the value's mutex:
 * other bits that other threads change meanwhile are not lost. Nothing where no integer is bound or the mutex
 * cannot be taken. */
void ToggleBits(CEVal& value);

} // namespace vant::detail
