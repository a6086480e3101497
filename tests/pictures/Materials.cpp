// The twenty preset materials on one model, drawn off screen and put together on one sheet. Each is drawn
// three times as large as it is shown, which smooths its edges.
#include "pictures/CKnot.h"
#include "pictures/Scenes.h"

#include <atlimage.h>

#include <GL/gl.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

namespace
{

constexpr int columns = 5;
constexpr int cellWidth = 240;
constexpr int cellHeight = 216;
constexpr int captionHeight = 30;
constexpr int margin = 14;
constexpr int finer = 3; // each way, than what is shown
constexpr int depth = 32;

void SetLight(CDspLight& light, const float (&direction)[3], COLORREF colour, double ambient, double diffuse,
              double specular)
{
    light.on = 1;
    std::copy(std::begin(direction), std::end(direction), light.position);
    light.ambientInt = ambient;
    light.diffuseInt = diffuse;
    light.specularInt = specular;
    light.ConfigureColour(colour);
}

/** A view with the lights of a photographer: one from above, a cool one from the side, one from behind. */
class CStudio : public CDsp
{
public:
    CStudio()
    {
        SetLight(lights[0], {-0.5F, 0.9F, 0.75F}, RGB(255, 250, 240), 0.6, 0.9, 1);
        SetLight(lights[1], {1.0F, -0.1F, 0.45F}, RGB(120, 165, 230), 0, 0.4, 0.5);
        SetLight(lights[2], {0.2F, 0.7F, -0.8F}, RGB(190, 215, 255), 0, 0.6, 0.8);
        graticule = 0;
        northArrow = 0;
        scaleBar = 0;
        CDspCam cam;
        cam.kind = CDspCam::orbit;
        cam.org = {-0.02, -0.04, 0};
        cam.elev = ML::D2R(58);
        cam.align = ML::D2R(8);
        cam.fov = ML::D2R(24);
        cam.zoom = 2.1;
        SetCam(cam);
    }

    void DrawScene() override
    {
        DrawBackdrop();
        // Highlights where the eye stands, not where one infinitely far away would see them.
        glLightModeli(GL_LIGHT_MODEL_LOCAL_VIEWER, GL_TRUE);
        CDsp::DrawScene();
    }

private:
    /** Paper behind the model, lighter in the middle. */
    void DrawBackdrop() const
    {
        constexpr int corners = 96;
        constexpr double radius = 1.5; // of the view's height
        glPushAttrib(GL_ENABLE_BIT | GL_DEPTH_BUFFER_BIT);
        glDisable(GL_DEPTH_TEST);
        glPushMatrix();
        glLoadIdentity();
        glTranslated(0, -Cam().zoom * 0.1, -Cam().Dist());
        glBegin(GL_TRIANGLE_FAN);
        glColor3ub(34, 56, 84);
        glVertex2d(0, 0);
        glColor3ub(GetRValue(backCol), GetGValue(backCol), GetBValue(backCol));
        for (int i = 0; i <= corners; ++i) {
            const double angle = ML::pi2 * i / corners;
            glVertex2d(std::cos(angle) * radius * Cam().zoom / 2, std::sin(angle) * radius * Cam().zoom / 2);
        }
        glEnd();
        glPopMatrix();
        glPopAttrib();
    }
};

/** The mean of the pixels that a shown one stands for. */
std::uint32_t Mean(const CImage& image, int column, int row)
{
    unsigned sums[3] = {};
    for (int dy = 0; dy < finer; ++dy) {
        const auto* pixel =
            static_cast<const unsigned char*>(image.GetPixelAddress(column * finer, row * finer + dy));
        for (int dx = 0; dx < finer; ++dx, pixel += depth / 8) {
            for (int i = 0; i < 3; ++i)
                sums[i] += pixel[i];
        }
    }
    constexpr unsigned count = finer * finer;
    return sums[0] / count | sums[1] / count << 8 | sums[2] / count << 16;
}

void Place(const CImage& picture, CImage& sheet, CPoint at)
{
    for (int row = 0; row < cellHeight; ++row) {
        auto* out = static_cast<std::uint32_t*>(sheet.GetPixelAddress(at.x, at.y + row));
        for (int column = 0; column < cellWidth; ++column)
            *out++ = Mean(picture, column, row);
    }
}

void Caption(CImage& sheet, CRect place, const CString& text)
{
    CDC dc;
    dc.Attach(sheet.GetDC());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(Vant::light);
    CFont* const before = dc.SelectObject(&Vant::normalF);
    dc.DrawText(text, place, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    dc.SelectObject(before);
    dc.Detach();
    sheet.ReleaseDC();
}

} // namespace

bool TakeMaterials(const CString& file)
{
    const int count = static_cast<int>(std::size(CMdl::s_defaultMtrl));
    const int rows = (count + columns - 1) / columns;
    CDspGrp group;
    CStudio studio;
    CKnot knot;
    studio.backCol = RGB(0, 11, 24);
    if (!studio.CreateWnd(L"Materials", WS_POPUP, CRect(0, 0, 100, 100)))
        return false;
    {
        CClientDC dc(&studio);
        if (!studio.InitPB(dc, cellWidth * finer, cellHeight * finer))
            return false;
    }
    CImage picture;
    CImage sheet;
    if (!picture.Create(cellWidth * finer, cellHeight * finer, depth) ||
        !sheet.Create(columns * (cellWidth + margin) + margin,
                      rows * (cellHeight + captionHeight + margin) + margin, depth))
        return false;
    {
        CDC dc;
        dc.Attach(sheet.GetDC());
        dc.FillSolidRect(CRect(0, 0, sheet.GetWidth(), sheet.GetHeight()), Vant::back);
        dc.Detach();
        sheet.ReleaseDC();
    }
    for (int i = 0; i < count; ++i) {
        const CPoint at(margin + i % columns * (cellWidth + margin),
                        margin + i / columns * (cellHeight + captionHeight + margin));
        knot.mtrl = CMdl::s_defaultMtrl[i];
        knot.ModelChanged(0);
        if (!studio.CapPB(picture))
            return false;
        ::GdiFlush();
        Place(picture, sheet, at);
        Caption(sheet, CRect(CPoint(at.x, at.y + cellHeight), CSize(cellWidth, captionHeight)),
                knot.mtrl.name);
    }
    return SUCCEEDED(sheet.Save(file));
}
