#include "geo/CSpline.h"

#include <algorithm>

CSpline::CSpline(int rows, Basis basis)
{
    const int count = std::max(rows, 1);
    m_rows.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const double t = static_cast<double>(i) / count;
        const double t2 = t * t;
        const double t3 = t2 * t;
        const double u = 1 - t;
        if (basis == bSpline)
            m_rows.push_back(
                {{u * u * u / 6, (3 * t3 - 6 * t2 + 4) / 6, (-3 * t3 + 3 * t2 + 3 * t + 1) / 6, t3 / 6}});
        else
            m_rows.push_back({{(-t3 + 2 * t2 - t) / 2, (3 * t3 - 5 * t2 + 2) / 2, (-3 * t3 + 4 * t2 + t) / 2,
                               (t3 - t2) / 2}});
    }
}

const double* CSpline::GetRow(int row) const noexcept
{
    return m_rows[static_cast<std::size_t>(std::clamp(row, 0, GetCount() - 1))].weight;
}

void CSpline::SetRow(int row, double w0, double w1, double w2, double w3)
{
    if (row >= 0 && row < GetCount())
        m_rows[static_cast<std::size_t>(row)] = {{w0, w1, w2, w3}};
}
