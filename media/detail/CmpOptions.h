#pragma once

#include "media/detail/AviCalls.h"

#include <vector>

namespace vant::detail
{

/** A choice of compression that outlives the dialog it was made in. */
class CmpOptions
{
public:
    /** Copies the options, with the codec's own data that they point to. */
    explicit CmpOptions(const AVICOMPRESSOPTIONS& chosen);

    /** As the library takes them; they point into this object. */
    AVICOMPRESSOPTIONS Options();

private:
    AVICOMPRESSOPTIONS m_options;
    std::vector<char> m_format;
    std::vector<char> m_parameters;
};

} // namespace vant::detail
