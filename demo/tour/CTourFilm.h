#pragma once

#include "demo/draw/CBackBuffer.h"
#include "demo/draw/ColourSet.h"
#include "demo/draw/FontSet.h"
#include "media/CEAvi.h"

#include <afxwin.h>
#include <atlimage.h>

#include <string_view>

namespace demo
{

/** What a frame of the tour's film shows. */
struct TourFrame {
    Box shot;          ///< the part of the screen that fills the picture
    Point hand;        ///< where the mouse is on the screen
    double sincePress; ///< how long ago its button went down, seconds; negative for never
    std::wstring_view caption;
    double played; ///< part of the tour, 0 to 1
};

/** The film of the tour: the screen, with the mouse in it and a caption below. */
class CTourFilm
{
public:
    static constexpr int width = 960; ///< pixels
    static constexpr int captionHeight = 56;
    /** Frames in a second of the tour. The file plays as many times faster as an AVI file of the library has
     *  frames in a second: whoever shows it gives it this rate. */
    static constexpr int rate = 8;

    /** Creates the file. @param shape  of the screen's part that is shown @return whether it could be created
     */
    bool Open(const CString& path, const Box& shape);

    /** Adds a frame. @param times  how often it goes into the film @return whether it did */
    bool Add(const TourFrame& frame, int times);
    void Close() { m_avi.Close(); }

private:
    void Paint(const TourFrame& frame);
    void PaintHand(const TourFrame& frame);
    void PaintCaption(const TourFrame& frame);

    CEAvi m_avi;
    CBackBuffer m_buffer;
    CImage m_image; // what goes into the file: a quarter less than the buffer
    FontSet m_fonts;
    ColourSet m_colours{};
    int m_pictureHeight = 0;
};

} // namespace demo
