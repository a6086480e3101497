#pragma once

#include <afx.h>

namespace vant::detail
{

/** Whether a name comes before another one: whatever their case, and by their characters where they differ in
 * case only. */
inline bool IsBefore(const CString& a, const CString& b)
{
    const int order = a.CompareNoCase(b);
    return order != 0 ? order < 0 : a.Compare(b) < 0;
}

} // namespace vant::detail
