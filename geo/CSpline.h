#pragma once

#include "core/VantApi.h"

#include <vector>

/** The table by which CRoute::SplineRt() makes a smooth curve of a route: rows of four weights, one for each
 * of the four nodes around a segment. Every row gives one node of the curve in every segment. */
class VANT_API CSpline
{
public:
    /** The kinds of curve. */
    enum Basis {
        catmullRom, ///< the curve passes through the nodes
        bSpline     ///< smoother (curvature without jumps), but only passes near them
    };
    enum : int { defaultRows = 10 };

    /** The weights of a uniform cubic basis at 0, 1/rows, 2/rows ... below 1; less than one row makes one. */
    explicit CSpline(int rows = defaultRows, Basis basis = catmullRom);

    /** The number of rows: at least 1. */
    int GetCount() const noexcept { return static_cast<int>(m_rows.size()); }
    /** Four weights: for the node before the segment, its two ends, and the node after it. They add up to 1.
     * @param row  0 .. GetCount() - 1; others give the nearest */
    const double* GetRow(int row) const noexcept;
    /** Replaces the weights of a row, for a basis of the application's own; nothing for a row that is not
     * there. */
    void SetRow(int row, double w0, double w1, double w2, double w3);

private:
    struct Row {
        double weight[4];
    };
    std::vector<Row> m_rows;
};
