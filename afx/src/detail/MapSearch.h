#pragma once

#include "vafx/MessageMap.h"

namespace vafx::detail
{

/** The first entry, from the class's own map through those of its bases, for a message, code and identifier.
 *  Codes are compared by their low words, as WM_COMMAND carries them. @return Null when there is none. */
const AFX_MSGMAP_ENTRY* FindEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id) noexcept;

} // namespace vafx::detail
