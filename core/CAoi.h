#pragma once

#include "core/CV3.h"
#include "core/VantApi.h"

#include <afx.h>

class CArchive;
class CESetObj;

/** An area of interest: an axis-aligned rectangle with its width, height and centre kept beside its bounds.
 *
 *  Top is the edge with the smaller y and bottom the one with the larger y, as on a screen. Every operation
 * says whether it refreshes the derived values (width, height, centre). Nothing keeps left <= right: Brdr()
 * with a large negative amount turns the rectangle inside out. */
class VANT_API CAoi
{
public:
    /** All fields 0. The first AddPt() therefore grows the area from the origin: deliberate. For a tight box,
     * construct from the first point. */
    CAoi() = default;
    CAoi(double l, double t, double r, double b);

    /** All fields 0. */
    void Reset();

    /** Whether the four bounds are exactly equal. */
    int operator==(const CAoi& other) const;
    int operator!=(const CAoi& other) const { return !(*this == other); }

    /** Grows the area to include another one; derived values are refreshed. */
    CAoi& operator+=(const CAoi& other);

    /** Grows the bounds to include a point; derived values are refreshed only when `update` is non-zero. */
    void AddPt(double x, double y, int update);
    void AddPt(const CV3& pt, int update) { AddPt(pt.x, pt.y, update); }

    /** Width, height and centre from the bounds. */
    void CalcCentre();
    /** The bounds from width, height and centre. */
    void CalcExt();

    /** Sets width and height about the unchanged centre. */
    void SetWidth(double w, double h);
    /** Moves the centre, width and height unchanged. */
    void SetCentre(double x, double y);
    void SetCentre(const CV3& pt) { SetCentre(pt.x, pt.y); }

    /** @name Setting one corner
     *  Each leaves the opposite bounds alone and refreshes the derived values. T is the top (the smaller y),
     * B the bottom, L the left, R the right. @{ */
    void SetTL(double x, double y) { SetCorner(left, x, top, y); }
    void SetTL(const CV3& pt) { SetTL(pt.x, pt.y); }
    void SetTR(double x, double y) { SetCorner(right, x, top, y); }
    void SetTR(const CV3& pt) { SetTR(pt.x, pt.y); }
    void SetBL(double x, double y) { SetCorner(left, x, bottom, y); }
    void SetBL(const CV3& pt) { SetBL(pt.x, pt.y); }
    void SetBR(double x, double y) { SetCorner(right, x, bottom, y); }
    void SetBR(const CV3& pt) { SetBR(pt.x, pt.y); }
    /** @} */

    /** @name Points of the area
     *  Each has z = 0: the centre, and the corners at the top (the smaller y) and bottom, left and right. @{
     */
    CV3 Centre() const { return {cx, cy, 0.0}; }
    CV3 TL() const { return {left, top, 0.0}; }
    CV3 TR() const { return {right, top, 0.0}; }
    CV3 BL() const { return {left, bottom, 0.0}; }
    CV3 BR() const { return {right, bottom, 0.0}; }
    /** @} */

    /** Multiplies width and height about the unchanged centre. */
    void Scale(double sx, double sy);
    /** Shifts bounds and centre. */
    void Offset(double dx, double dy);

    /** @name Growing
     *  Each moves the sides outwards (inwards, when negative) and refreshes the derived values. @{ */
    void Brdr(double d) { Brdr(d, d, d, d); }
    void Brdr(double dx, double dy) { Brdr(dx, dy, dx, dy); }
    void Brdr(double l, double t, double r, double b);
    /** @} */

    /** Whether a point lies in the area, edges included. */
    int Inside(double x, double y) const { return left <= x && x <= right && top <= y && y <= bottom; }
    int Inside(const CV3& pt) const { return Inside(pt.x, pt.y); }

    /** Whether a point lies exactly on an edge, without any tolerance. */
    int OnBrdr(double x, double y) const;
    int OnBrdr(const CV3& pt) const { return OnBrdr(pt.x, pt.y); }

    /** Archives four doubles in the order left, right, top, bottom: not the order of the fields. Loading
     * refreshes the derived values. Throws what the archive throws. */
    void Serialize(CArchive& ar);

    /** Writes the bounds to a settings object, or reads them from it, as one item "left, top, right, bottom".
     * Loading leaves the area alone unless all four numbers are there ("inf" and "nan" are none), and does
     * not refresh the derived values: the caller does, with CalcCentre(). Deliberate. */
    void Settings(const CString& key, CESetObj& obj);

    double left = 0.0;   ///< smallest x
    double top = 0.0;    ///< smallest y
    double right = 0.0;  ///< largest x
    double bottom = 0.0; ///< largest y
    double width = 0.0;  ///< right - left
    double height = 0.0; ///< bottom - top
    double cx = 0.0;     ///< centre x
    double cy = 0.0;     ///< centre y

private:
    void SetCorner(double& side, double x, double& edge, double y)
    {
        side = x;
        edge = y;
        CalcCentre();
    }
};
