// CDsp: graticule, and what is drawn over the scene.
#include "display/CDsp.h"

#include "display/detail/GLState.h"
#include "display/detail/Graticule.h"
#include "display/detail/ScreenText.h"
#include "display/detail/ViewCameraOf.h"
#include "display/detail/ViewState.h"
#include "platform/Vant.h"
#include "values/EUnits.h"

#include <algorithm>
#include <cmath>

using namespace vant::detail;

namespace
{

constexpr double cellUnits = 90; ///< least distance between two lines of the graticule
constexpr double labelSize = 13;
constexpr double edgeGap = 6; ///< between texts and the edges
constexpr double gridStrength = 0.42;

/** Place of the instruments: units from the corners. */
constexpr double arrowRadius = 19;
constexpr double cornerGap = 16;

constexpr double metresPerKm = 1000;

void Colour(COLORREF colour, double opacity = 1)
{
    glColor4ub(GetRValue(colour), GetGValue(colour), GetBValue(colour),
               static_cast<GLubyte>(std::lround(opacity * 255)));
}

/** Of texts that are read only when they are looked for. */
COLORREF Between(COLORREF a, COLORREF b)
{
    const auto mix = [](int from, int to) { return (from * 2 + to * 3) / 5; };
    return RGB(mix(GetRValue(a), GetRValue(b)), mix(GetGValue(a), GetGValue(b)),
               mix(GetBValue(a), GetBValue(b)));
}

std::wstring_view View(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

void Quad(double left, double bottom, double right, double top)
{
    glBegin(GL_QUADS);
    glVertex2d(left, bottom);
    glVertex2d(right, bottom);
    glVertex2d(right, top);
    glVertex2d(left, top);
    glEnd();
}

} // namespace

double CDsp::OverlayScale() const
{
    return static_cast<double>(Dpi().Dpi()) / CDpi::base * (txtScale > 0 ? txtScale : 1);
}

CV3 CDsp::OverlaySize() const
{
    const ViewGeometry geometry = Geometry();
    return {geometry.Width() / OverlayScale(), geometry.Height() / OverlayScale(), 0};
}

double CDsp::GridSpacing() const
{
    return Vant::NextMkr(PxSize() * cellUnits * OverlayScale());
}

/** Coordinates for DrawOverlay(). */
void CDsp::BeginOverlay()
{
    const CV3 size = OverlaySize();
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, size.x, 0, size.y, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glDisable(GL_LIGHTING);
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_CULL_FACE);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    glShadeModel(GL_SMOOTH);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
}

void CDsp::DrawOverlay()
{
    DrawLabels();
    TakenPlaces taken;
    if (northArrow)
        DrawNorthArrow(taken);
    if (scaleBar)
        DrawScaleBar(taken);
    if (graticule && m_cam.kind == CDspCam::plan)
        DrawGridTexts(taken);
}

double CDsp::OverlayTxtWidth(const CString& text, double size) const
{
    const auto font = SharesNow() ? ScreenText::Of(TextPx(size)) : nullptr;
    return font ? font->Width(View(text)) / OverlayScale() : 0;
}

int CDsp::TextPx(double size) const
{
    return static_cast<int>(std::lround(size * OverlayScale()));
}

void CDsp::OverlayTxt(double atX, double atY, const CString& text, COLORREF colour, double size, int align)
{
    const auto font = SharesNow() ? ScreenText::Of(TextPx(size)) : nullptr;
    if (!font || !std::isfinite(atX) || !std::isfinite(atY))
        return;
    const double scale = OverlayScale();
    const double widths = align & alignRight ? 1 : align & alignCentre ? 0.5 : 0;
    const double heights = align & alignTop ? 1 : align & alignMiddle ? 0.5 : 0;
    const double left = std::round(atX * scale - widths * font->Width(View(text)));
    const double base = std::round(atY * scale - heights * font->Capital());
    // Far outside there is nothing to be seen, and no pixel has a number.
    constexpr double outside = 32'767;
    if (std::abs(left) > outside || std::abs(base) > outside)
        return;
    Colour(colour);
    glPushMatrix();
    glScaled(1 / scale, 1 / scale, 1);
    font->Draw(static_cast<int>(left), static_cast<int>(base), View(text));
    glPopMatrix();
}

void CDsp::DrawLabels()
{
    const double scale = OverlayScale();
    const double height = Geometry().Height();
    for (const PendingLabel& label : m_state->labels) {
        double right = 0;
        double down = 0;
        if (label.pt.Finite() && Geometry().ToPx(ToPoint(label.pt), right, down))
            OverlayTxt(right / scale + label.dx, (height - down) / scale + label.dy, label.text, label.colour,
                       labelSize, label.align);
    }
    m_state->labels.clear();
}

void CDsp::DrawPlanGrid()
{
    // In pixels, and straight ones through the middle of a pixel, where a thin line is sharp.
    const ViewGeometry& geometry = *m_state->scene;
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glLoadIdentity();
    glOrtho(0, geometry.Width(), geometry.Height(), 0, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glLoadIdentity();
    const bool isStraight = m_cam.align == 0;
    (isStraight ? glDisable : glEnable)(GL_LINE_SMOOTH);
    const auto middle = [isStraight](double px) { return isStraight ? std::floor(px) + 0.5 : px; };
    Colour(Vant::med, gridStrength);
    glBegin(GL_LINES);
    for (const GridLine& line : PlanGrid(geometry, GridSpacing())) {
        glVertex2d(middle(line.x0), middle(line.y0));
        glVertex2d(middle(line.x1), middle(line.y1));
    }
    glEnd();
    glPopMatrix();
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);
}

void CDsp::DrawGroundGrid()
{
    const GroundLines ground = GroundGrid(*m_state->scene, GridSpacing());
    glEnable(GL_LINE_SMOOTH);
    PushOrg(FromPoint(ground.centre));
    glBegin(GL_LINES);
    for (const GroundLine& line : ground.lines) {
        Colour(Vant::med, gridStrength * line.strengthFrom);
        glVertex3d(line.from.x, line.from.y, line.from.z);
        Colour(Vant::med, gridStrength * line.strengthTo);
        glVertex3d(line.to.x, line.to.y, line.to.z);
    }
    glEnd();
    PopOrg();
}

void CDsp::DrawGraticule()
{
    const GLStateKept state;
    glDisable(GL_LIGHTING);
    glDisable(GL_TEXTURE_2D);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    // What rises above the ground hides the lines there; on a chart they lie over everything, but for labels.
    (m_cam.kind == CDspCam::plan ? glDisable : glEnable)(GL_DEPTH_TEST);
    glDepthMask(GL_FALSE);
    // Whole pixels: half a pixel more would be a blurred one.
    glLineWidth(static_cast<float>(std::max(1.0, std::floor(OverlayScale()))));
    if (m_cam.kind == CDspCam::plan)
        DrawPlanGrid();
    else
        DrawGroundGrid();
}

void CDsp::DrawGridTexts(TakenPlaces& taken)
{
    const ViewGeometry geometry = Geometry();
    const double scale = OverlayScale();
    const double spacing = GridSpacing();
    double shown = spacing;
    EUnits::N2D(0, shown);
    const std::vector<GridLine> lines = PlanGrid(geometry, spacing);
    std::vector<CString> texts;
    double widest = 0;
    for (const GridLine& line : lines) {
        texts.emplace_back(GridText(line.steps, shown, line.isEasting).c_str());
        widest = std::max(widest, OverlayTxtWidth(texts.back(), labelSize) * scale);
    }
    // Which lines have a text must not depend on where the view is, or texts would come and go while it is
    // moved.
    const double every = std::max(1.0, std::ceil((widest + edgeGap * 2 * scale) / (spacing / PxSize())));
    const auto font = ScreenText::Of(TextPx(labelSize));
    const double capital = font ? font->Capital() : 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (std::fmod(lines[i].steps, every) != 0)
            continue;
        const double width = OverlayTxtWidth(texts[i], labelSize) * scale;
        for (const TextPlace& place : PlacesAtEdges(lines[i], geometry, width, capital, edgeGap * scale)) {
            const bool isInside = place.left >= 0 && place.top >= 0 && place.right <= geometry.Width() &&
                                  place.bottom <= geometry.Height();
            if (!isInside || !taken.Take(place, edgeGap * scale))
                continue;
            DrawPlate(place);
            OverlayTxt(place.left / scale, (geometry.Height() - place.bottom) / scale, texts[i],
                       Between(backCol, Vant::light), labelSize);
            break;
        }
    }
}

/** Darkens what is behind a text. */
void CDsp::DrawPlate(const TextPlace& place)
{
    constexpr double around = 3;
    constexpr double opacity = 0.7;
    const double scale = OverlayScale();
    const double height = Geometry().Height();
    Colour(backCol, opacity);
    Quad(place.left / scale - around, (height - place.bottom) / scale - around, place.right / scale + around,
         (height - place.top) / scale + around);
}

void CDsp::DrawNorthArrow(TakenPlaces& taken)
{
    constexpr double letterSize = 13;
    constexpr double flattest = 0.4; // of the disk that an orbiting eye sees from the side
    constexpr int corners = 64;
    const CV3 size = OverlaySize();
    const double reach = arrowRadius + letterSize;
    const CV3 at(size.x - cornerGap - reach, size.y - cornerGap - reach, 0);
    if (at.x < reach || at.y < reach)
        return;
    const double scale = OverlayScale();
    taken.Take(
        {(at.x - reach) * scale, cornerGap * scale, (at.x + reach) * scale, (cornerGap + 2 * reach) * scale},
        0);

    const double tilt = m_cam.kind == CDspCam::plan ? 1 : std::max(flattest, std::abs(std::sin(m_cam.elev)));
    const double sine = std::sin(m_cam.align);
    const double cosine = std::cos(m_cam.align);
    // East and north of the centre, turned and tilted as the view is.
    const auto place = [&](double east, double north) {
        return CV3(at.x + east * cosine - north * sine, at.y + (east * sine + north * cosine) * tilt, 0);
    };
    const auto vertex = [&](double east, double north) {
        const CV3 pt = place(east, north);
        glVertex2d(pt.x, pt.y);
    };

    Colour(backCol, 0.7);
    glBegin(GL_TRIANGLE_FAN);
    for (int i = 0; i < corners; ++i)
        vertex(std::cos(ML::pi2 * i / corners) * arrowRadius, std::sin(ML::pi2 * i / corners) * arrowRadius);
    glEnd();
    glEnable(GL_LINE_SMOOTH);
    glLineWidth(static_cast<float>(scale));
    Colour(Vant::med);
    glBegin(GL_LINE_LOOP);
    for (int i = 0; i < corners; ++i)
        vertex(std::cos(ML::pi2 * i / corners) * arrowRadius, std::sin(ML::pi2 * i / corners) * arrowRadius);
    glEnd();

    // Two halves of a needle, of which the northern one is bright; their outline smooths the edges.
    constexpr double length = arrowRadius - 4;
    constexpr double waist = 4.5;
    const struct {
        double north;
        COLORREF colour;
    } halves[] = {{-length, Vant::med}, {length, Vant::light}};
    for (const auto& half : halves) {
        Colour(half.colour);
        for (const GLenum shape : {GL_TRIANGLES, GL_LINE_LOOP}) {
            glBegin(shape);
            vertex(-waist, 0);
            vertex(0, half.north);
            vertex(waist, 0);
            glEnd();
        }
    }
    const CV3 letter = place(0, arrowRadius + letterSize * 0.55);
    OverlayTxt(letter.x, letter.y, L"N", Vant::light, letterSize, alignCentre | alignMiddle);
}

void CDsp::DrawScaleBar(TakenPlaces& taken)
{
    constexpr double tick = 5;
    constexpr double textGap = 5;
    const double scale = OverlayScale();
    const CV3 size = OverlaySize();
    const double spacing = GridSpacing();
    // To the pixel, so that its ends are sharp.
    const double length = std::round(spacing / std::max(PxSize(), ML::threshold * spacing)) / scale;
    const double left = cornerGap;
    const double bottom = std::round((cornerGap + labelSize + edgeGap) * scale) / scale;
    const double px = 1 / scale;
    if (left + length > size.x / 2 || bottom + tick + labelSize > size.y / 2)
        return;
    const TextPlace place{left * scale, (size.y - bottom - tick - textGap - labelSize) * scale,
                          (left + length) * scale, (size.y - bottom) * scale};
    taken.Take(place, 0);
    DrawPlate(place);
    Colour(Vant::light);
    Quad(left, bottom, left + length, bottom + px * std::max(1.0, std::floor(scale)));
    const double width = px * std::max(1.0, std::floor(scale));
    for (const double at : {left, left + length - width})
        Quad(at, bottom, at + width, bottom + tick);
    OverlayTxt(left + length / 2, bottom + tick + textGap, ScaleText(spacing), Vant::light, labelSize,
               alignCentre);
}

/** "50 m", "1.5 km", "200 ft". */
CString CDsp::ScaleText(double metres)
{
    double shown = metres;
    EUnits::N2D(0, shown);
    CString unit = EUnits::Get(0);
    if (EUnits::system == 0 && metres >= metresPerKm) {
        shown /= metresPerKm;
        unit = L"km";
    }
    return CString(GridNumber(shown, shown).c_str()) + L" " + unit;
}
