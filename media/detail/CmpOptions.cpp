#include "media/detail/CmpOptions.h"

namespace vant::detail
{

namespace
{

std::vector<char> Copy(const void* data, DWORD size)
{
    const auto* begin = static_cast<const char*>(data);
    return begin ? std::vector<char>(begin, begin + size) : std::vector<char>();
}

} // namespace

CmpOptions::CmpOptions(const AVICOMPRESSOPTIONS& chosen)
    : m_options(chosen)
    , m_format(Copy(chosen.lpFormat, chosen.cbFormat))
    , m_parameters(Copy(chosen.lpParms, chosen.cbParms))
{
}

AVICOMPRESSOPTIONS CmpOptions::Options()
{
    AVICOMPRESSOPTIONS options = m_options;
    options.lpFormat = m_format.empty() ? nullptr : m_format.data();
    options.cbFormat = static_cast<DWORD>(m_format.size());
    options.lpParms = m_parameters.empty() ? nullptr : m_parameters.data();
    options.cbParms = static_cast<DWORD>(m_parameters.size());
    return options;
}

} // namespace vant::detail
