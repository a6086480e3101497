#pragma once

#include <cstddef>

namespace vafx::detail
{

/** A block of the run-time heap, to be released with std::free. Asks the new-handler when there is no room,
 * and throws CMemoryException when that gives up. */
void* Allocate(std::size_t bytes);

} // namespace vafx::detail
