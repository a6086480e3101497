#pragma once

#include <vector>

class CTmFn;

namespace vant::detail
{

/** The sources as they stand in TmSync::tmFns at this moment. */
void CopySources(std::vector<CTmFn*>& copy);

} // namespace vant::detail
