#include "CLines.h"

#include <GL/gl.h>

void CLines::DrawModel(CDsp& dsp)
{
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glEnable(GL_LINE_SMOOTH);
    glDepthMask(GL_FALSE); // what lies in one plane is covered in the order of drawing
    glLineWidth(2);
    for (CVantPtr* pos = GetHeadPos(); pos;) {
        CRoute* const route = GetNext(pos);
        glColor4d(0.35, 0.65, 0.95, 0.3);
        route->DwSolidRt(dsp, m_width);
        glColor4d(0.55, 0.8, 1, 1);
        route->DwLineRt(dsp);
        route->DwMrkrs(dsp);
    }
}
