#pragma once

#include "core/CV3.h"
#include "display/CMdlInf.h"

#include <algorithm>

namespace vant::detail
{

/** The box around points. */
class Extents
{
public:
    /** Nothing for a point that is not finite. */
    void Add(const CV3& pt)
    {
        if (!pt.Finite())
            return;
        for (int i = 0; i < 3; ++i) {
            m_lower[i] = m_isKnown ? std::min(m_lower[i], pt[i]) : pt[i];
            m_upper[i] = m_isKnown ? std::max(m_upper[i], pt[i]) : pt[i];
        }
        m_isKnown = true;
    }

    /** Nothing before a point was added. */
    void Tell(CMdlInf& inf) const
    {
        if (!m_isKnown)
            return;
        inf.hasExt = 1;
        inf.lower = m_lower;
        inf.upper = m_upper;
    }

private:
    bool m_isKnown = false;
    CV3 m_lower;
    CV3 m_upper;
};

} // namespace vant::detail
