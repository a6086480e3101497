#pragma once

#include "core/VantApi.h"

#include <cstddef>

namespace vant::detail
{

/** Memory for the containers: never null. When the heap has no room the process ends through EUtil with
 *  "Malloc cannot allocate %d bytes" or "Realloc cannot allocate %d bytes". A size of 0 gives a block that
 * may be released but not used. */
VANT_API void* Malloc(std::size_t bytes);
VANT_API void* Realloc(void* block, std::size_t bytes);

/** Releases a block from the two above, on the heap that it came from; null is allowed. */
VANT_API void Free(void* block) noexcept;

} // namespace vant::detail
