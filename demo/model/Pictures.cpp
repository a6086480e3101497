// The textures, painted with the demonstration's own canvas.
#include "demo/detail/Canvas.h"
#include "demo/model/SurveyBoat.h"

#include "tests/display/ChunkBytes.h"

namespace demo::model
{
namespace
{

using support::Bytes;

constexpr Ink navy{23, 51, 99};
constexpr Ink lightNavy{38, 78, 140};
constexpr Ink white{238, 242, 246};
constexpr Ink deckGrey{150, 158, 166};
constexpr Ink seam{112, 120, 130};
constexpr Ink safety{240, 190, 40};

/** A picture in memory. */
class Picture
{
public:
    Picture(int width, int height)
        : m_width(width)
        , m_height(height)
        , m_pixels(static_cast<std::size_t>(width * height))
        , m_canvas(m_pixels.data(), width, height)
    {
    }

    void Fill(double left, double top, double right, double bottom, const Ink& ink)
    {
        const Point corners[] = {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
        Path path;
        path.AddPolygon(corners);
        m_canvas.Fill(path, ink);
    }
    void Fill(const Path& path, const Ink& ink) { m_canvas.Fill(path, ink); }

    /** As the file of a bitmap: 24 bits, the lowest row first, blue first. Its rows need no padding. */
    std::string File() const
    {
        constexpr std::uint32_t headers = 14 + 40;
        constexpr std::uint16_t planes = 1;
        constexpr std::uint16_t bits = 24;
        constexpr std::int32_t perMetre = 3780; // 96 dots per inch
        std::string pixels;
        for (int row = m_height - 1; row >= 0; --row) {
            for (int column = 0; column < m_width; ++column) {
                const std::uint32_t pixel = m_pixels[static_cast<std::size_t>(row * m_width + column)];
                for (const int shift : {0, 8, 16})
                    pixels += static_cast<char>(pixel >> shift & 0xFF);
            }
        }
        const auto size = static_cast<std::uint32_t>(pixels.size());
        return "BM" + Bytes(headers + size, std::uint32_t{0}, headers) +
               Bytes(std::uint32_t{40}, m_width, m_height, planes, bits, std::uint32_t{0}, size, perMetre,
                     perMetre, std::uint32_t{0}, std::uint32_t{0}) +
               pixels;
    }

private:
    int m_width;
    int m_height;
    std::vector<std::uint32_t> m_pixels;
    Canvas m_canvas;
};

/** The strokes of a letter in a field of 4 by 6, from its upper left corner. */
std::vector<std::vector<Point>> Strokes(char letter)
{
    switch (letter) {
    case 'L':
        return {{{0, 0}, {0, 6}, {4, 6}}};
    case 'O':
        return {{{1, 0}, {3, 0}, {4, 1}, {4, 5}, {3, 6}, {1, 6}, {0, 5}, {0, 1}, {1, 0}}};
    case 'D':
        return {{{0, 0}, {2.8, 0}, {4, 1.2}, {4, 4.8}, {2.8, 6}, {0, 6}, {0, 0}}};
    case 'E':
        return {{{4, 0}, {0, 0}, {0, 6}, {4, 6}}, {{0, 3}, {3.2, 3}}};
    case 'S':
        return {{{4, 0.8},
                 {3.2, 0},
                 {0.8, 0},
                 {0, 0.8},
                 {0, 2.2},
                 {0.8, 3},
                 {3.2, 3},
                 {4, 3.8},
                 {4, 5.2},
                 {3.2, 6},
                 {0.8, 6},
                 {0, 5.2}}};
    case 'T':
        return {{{0, 0}, {4, 0}}, {{2, 0}, {2, 6}}};
    case 'A':
        return {{{0, 6}, {2, 0}, {4, 6}}, {{0.7, 4}, {3.3, 4}}};
    case 'R':
        return {{{0, 6}, {0, 0}, {3.2, 0}, {4, 0.8}, {4, 2.4}, {3.2, 3.2}, {0, 3.2}}, {{2, 3.2}, {4, 6}}};
    default:
        return {};
    }
}

/** Paints a text. @param x,y  its upper left corner  @param unitX,unitY  pixels of a letter's unit */
void Write(Picture& picture, double x, double y, double unitX, double unitY, std::string_view text)
{
    constexpr double pitch = 6.2; // from letter to letter
    Path path;
    for (const char letter : text) {
        for (std::vector<Point> stroke : Strokes(letter)) {
            for (Point& point : stroke)
                point = {x + point.x * unitX, y + point.y * unitY};
            path.AddPolyline(stroke, 1.1 * unitX);
        }
        x += pitch * unitX;
    }
    picture.Fill(path, white);
}

} // namespace

std::string HullPicture()
{
    constexpr double pixelsPerMetreAlong = 512 / 14.0;
    constexpr double pixelsPerMetreUp = 64 / 1.4;
    constexpr double letterUnit = 0.095; // metres
    Picture picture(512, 64);
    picture.Fill(0, 0, 512, 64, navy);
    picture.Fill(0, 0, 512, 7, white);
    picture.Fill(0, 10, 512, 12, lightNavy);
    picture.Fill(0, 56, 512, 58, lightNavy);
    Write(picture, 268, 21, letterUnit * pixelsPerMetreAlong, letterUnit * pixelsPerMetreUp, "LODESTAR");
    return picture.File();
}

std::string DeckPicture()
{
    Picture picture(128, 256);
    picture.Fill(0, 0, 128, 256, deckGrey);
    for (int x = 0; x < 128; x += 8) // seams of the covering
        picture.Fill(x, 0, x + 0.8, 256, seam);
    for (int y = 0; y < 256; y += 32)
        picture.Fill(0, y, 128, y + 0.8, seam);
    for (const double x : {4.0, 120.0}) // the walkways' edges
        picture.Fill(x, 0, x + 3, 256, white);
    for (int x = 16; x < 112; x += 12) { // the edge of the working deck
        const Point bar[] = {{x + 6.0, 236}, {x + 12.0, 236}, {x + 6.0, 246}, {x + 0.0, 246}};
        Path path;
        path.AddPolygon(bar);
        picture.Fill(path, safety);
    }
    Path ring; // where nobody stands while the frame is moved
    ring.AddRing({64, 210}, 13, 16);
    picture.Fill(ring, safety);
    return picture.File();
}

} // namespace demo::model
