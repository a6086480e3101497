#pragma once

#include "display/detail/GLState.h"
#include "display/detail/Point3.h"

#include <vector>

class CDsp;
class CDspMtrl;
class CV3;

namespace vant::detail
{

/** Drawing of points and lines in the current colour, without light. Coordinates are handed to OpenGL as they
 * count from the middle of the view, exactly however far away from zero that is. OpenGL's settings are put
 * back at the end. */
class GeoDrawing
{
public:
    explicit GeoDrawing(CDsp& dsp);
    ~GeoDrawing();
    GeoDrawing(const GeoDrawing&) = delete;
    GeoDrawing& operator=(const GeoDrawing&) = delete;

    /** Sets a material's colour, and lines of two units of 1/96 inch with smooth edges. */
    void UsePen(const CDspMtrl& mtrl);
    /** Lets light fall on what is drawn, if it did before. */
    void KeepLight();

    /** Adds a point to a line. One that cannot be told from the point before it in this view is left out, and
     * so is what is not finite. */
    void To(const CV3& pt);
    /** Draws the line, of two points or more, and begins a new one. @param mode  GL_LINE_STRIP, GL_LINE_LOOP
     */
    void DrawLine(unsigned mode);
    /** Draws a band along the line, and begins a new one. @param width  metres */
    void DrawRibbon(double width);

    /** Draws a diamond that faces the eye. @param size  from corner to corner, units of 1/96 inch */
    void Diamond(const CV3& at, double size);

private:
    void EndLine();
    static void DrawPoints(unsigned mode, const std::vector<Point3>& points);

    const GLStateKept m_state;
    CDsp& m_dsp;
    const Point3 m_org;
    const double m_unit; // metres, at the middle of the view
    double m_least2;     // square of the distance of points that can be told from one another
    bool m_wasLit;
    std::vector<Point3> m_line;
    Point3 m_last; // of the line's points, whether it was left out or not
};

} // namespace vant::detail
