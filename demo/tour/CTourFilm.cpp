#include "demo/tour/CTourFilm.h"

#include "demo/draw/CPainter.h"
#include "demo/views/PlainVideo.h"
#include "platform/Vant.h"

#include <algorithm>
#include <cmath>

namespace demo
{
namespace
{

/** The arrow of the mouse, its tip at the origin, in pixels of the film. */
constexpr Point arrow[] = {{0, 0}, {0, 19}, {4.6, 14.8}, {7.9, 22}, {11.2, 20.5}, {8.1, 13.5}, {14, 13.2}};

/** A little larger about its middle: what shows behind the arrow is its edge. */
Path ArrowPath(double grown)
{
    constexpr Point middle{5, 11};
    std::vector<Point> points;
    for (const Point& p : arrow)
        points.push_back({p.x + (p.x - middle.x) * grown, p.y + (p.y - middle.y) * grown});
    Path path;
    path.AddPolygon(points);
    return path;
}

} // namespace

bool CTourFilm::Open(const CString& path, const Box& shape)
{
    constexpr int bitsPerPixel = 24;
    constexpr int even = 2; // compressed films have even sides
    m_colours = ColourSet::FromScheme();
    m_fonts.Make(1.0, CDpi());
    m_pictureHeight = width * shape.Height() / std::max(shape.Width(), 1) / even * even;
    const int height = m_pictureHeight + captionHeight;
    return m_pictureHeight > 0 && m_buffer.Resize(width, height) &&
           m_image.Create(width, height, bitsPerPixel) && m_avi.Open(path);
}

bool CTourFilm::Add(const TourFrame& frame, int times)
{
    Paint(frame);
    ::GdiFlush();
    const HDC to = m_image.GetDC();
    BOOL added = ::BitBlt(to, 0, 0, width, m_pictureHeight + captionHeight, m_buffer.Dc(), 0, 0, SRCCOPY);
    m_image.ReleaseDC();
    for (int i = 0; added && i < times; ++i)
        added = m_avi.AddDib(m_image);
    TellOfPlainVideo();
    return added != FALSE;
}

void CTourFilm::Paint(const TourFrame& frame)
{
    const HDC screen = ::GetDC(nullptr);
    CDC& dc = m_buffer.Dc();
    dc.SetStretchBltMode(HALFTONE);
    dc.SetBrushOrg(0, 0);
    ::StretchBlt(dc, 0, 0, width, m_pictureHeight, screen, frame.shot.left, frame.shot.top,
                 frame.shot.Width(), frame.shot.Height(), SRCCOPY);
    ::ReleaseDC(nullptr, screen);
    PaintHand(frame);
    PaintCaption(frame);
}

void CTourFilm::PaintHand(const TourFrame& frame)
{
    constexpr double ripple = 0.45; // seconds that a click is seen
    constexpr double largest = 26.0;
    constexpr double edge = 0.22;
    const double scale = static_cast<double>(width) / frame.shot.Width();
    const Point at{(frame.hand.x - frame.shot.left) * scale, (frame.hand.y - frame.shot.top) * scale};

    ::GdiFlush();
    Canvas canvas = m_buffer.Surface();
    canvas.SetClip({0, 0, width, m_pictureHeight});
    if (frame.sincePress >= 0.0 && frame.sincePress < ripple) {
        const double part = frame.sincePress / ripple;
        const double radius = 6.0 + (largest - 6.0) * part;
        Path ring;
        ring.AddRing(at, radius - 3.0, radius);
        canvas.Fill(ring, InkOf(m_colours.text, 0.9 * (1.0 - part)));
    }
    for (const auto& [grown, colour] : {std::pair{edge, RGB(0, 0, 0)}, std::pair{0.0, RGB(255, 255, 255)}}) {
        Path path = ArrowPath(grown);
        path.Place(0.0, at);
        canvas.Fill(path, InkOf(colour));
    }
}

void CTourFilm::PaintCaption(const TourFrame& frame)
{
    constexpr int line = 3; // the tour's progress, at the lower edge
    constexpr int mark = 5;
    CPainter painter(m_buffer.Dc(), m_buffer.Surface(), m_fonts, m_colours, 1.0, CDpi());
    const Box band{0, m_pictureHeight, width, m_pictureHeight + captionHeight};
    painter.Skin(band, Vant::grad2, vant::skins::grad2::heading);
    painter.Solid({0, band.top, mark, band.bottom}, m_colours.accent);
    painter.Text(22, band.CentreY() + 7, Align::Left, m_fonts.title, m_colours.text, frame.caption);
    painter.Text(width - 18, band.CentreY() + 5, Align::Right, m_fonts.line, m_colours.label, L"VantCore");
    painter.Solid({0, band.bottom - line, width, band.bottom}, m_colours.deep);
    painter.Solid({0, band.bottom - line, static_cast<int>(std::lround(width * frame.played)), band.bottom},
                  m_colours.accent);
}

} // namespace demo
