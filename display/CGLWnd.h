#pragma once

#include "controls/CVantWnd.h"

#include <functional>
#include <memory>

class CImage;

namespace vant::detail
{
class GlyphLists;
class Pbuffer;
} // namespace vant::detail

/** A platform window that shows a scene drawn with OpenGL, and can draw the same scene into a picture of any
 * size.
 *
 *  A derived class draws in Render(). Lists and textures are common to all 3D windows (CDsp::s_sharedRC). The
 * contexts exist while the window does; a pixel buffer from InitPB() until the window is destroyed.
 *
 *  Lengths are pixels, not units of 1/96 inch: insets, viewport and pictures. Windows belong to the UI
 * thread; each operation makes the context it needs current, and none at its end, so that any number of
 * windows take turns.
 *
 *  Failures are alarms with id 0; the window stays usable without what failed: text, or pictures. */
class VANT_API CGLWnd : public CVantWnd
{
    DECLARE_DYNCREATE(CGLWnd)

public:
    /** How XyText() puts a text to its point: one of the first three plus one of the last three. */
    enum TextAlign {
        alignLeft = 0x00,     ///< the text begins at the point
        alignCentre = 0x01,   ///< half of it lies before the point
        alignRight = 0x02,    ///< it ends at the point
        alignBaseline = 0x00, ///< it stands on the point
        alignMiddle = 0x10,   ///< a third of its size lies below the point: the middle of capitals
        alignTop = 0x20       ///< two thirds lie below: the top of capitals
    };

    CGLWnd();
    ~CGLWnd() override;

    /** @name Insets: margins of the client area that the viewport leaves free, pixels */
    ///@{
    int insetLeft = 0;   ///< at the left edge
    int insetTop = 0;    ///< at the upper edge
    int insetRight = 0;  ///< at the right edge
    int insetBottom = 0; ///< at the lower edge
    /** @} */

    double txtScale = 1; ///< multiplies the sizes of XyText()

    /** @name Operations that a derived window may replace */
    ///@{
    /** Shows the scene: makes the context current on `dc`, sets the viewport, calls Render() and swaps the
     * buffers. Nothing happens while the window is hidden; a window without a context says in its place that
     * the computer offers no OpenGL.
     * @param dc  of this window, without a mapping */
    void Draw(CDC* dc) override;
    /** Draws the scene. The context is current and the viewport is ViewRc(). Nothing here. */
    virtual void Render();
    /** @} */

    /** Nothing here. */
    void RenderPB() {}
    /** Nothing here. */
    void CapScrn(CImage&) {}

    /** Makes a context for a window's device context, which gets the pixel format of 3D windows, and the
     * lists of text and circle. The context shares its lists with CDsp::s_sharedRC, and then the glyphs are
     * those of every other window that shares. It stays current and belongs to the caller; the lists belong
     * to this object. Alarms: "Error in sharing display lists code = <cause>", "Error in generating drawn
     * font code = <cause>".
     *  @return null if the driver refuses */
    HGLRC CreateRC(HDC hdc);

    /** Makes a pixel buffer for CapPB(), in place of the one before, which stays if this fails.
     *  @param hdc  of this window  @param width,height  pixels
     *  @return 1; 0 before the window is created, or after an alarm that says what the driver cannot do. One
     * that shares no lists raises "(PB) Error in sharing display lists code = <cause>" and is kept. */
    int InitPB(HDC hdc, int width, int height);

    /** Draws the scene into the pixel buffer, and from there into an image, upright whichever way its rows
     * lie. The fourth byte of each pixel is the scene's alpha.
     *  @param image  32 bits per pixel, exactly PbWidth() x PbHeight()
     *  @return 1; 0 without a pixel buffer or for another kind of image, which is left as it is */
    int CapPB(CImage& image);

    /** Whether the window can draw its scene. False on a computer whose driver made no context when the
     * window was created; an alarm has told so then. */
    bool CanDraw() const noexcept { return m_rc != nullptr; }

    /** Width of the pixel buffer, pixels; 0 without one. */
    int PbWidth() const noexcept { return m_pbWidth; }
    /** Height of the pixel buffer, pixels; 0 without one. */
    int PbHeight() const noexcept { return m_pbHeight; }

    /** The viewport while Render() runs, pixels from the lower left corner: deliberately its `top` is the
     * lower edge, as it is handed to OpenGL. */
    const CRect& ViewRc() const noexcept { return m_viewRc; }

    /** @name Drawing aids for annotations, in the current context of a 3D window (otherwise they do nothing)
     *  Text is drawn in the current colour with the glyphs of the platform's display font (Vant::scrnF),
     * which covers the characters up to U+00FE; any other shows as a question mark. List base and the matrix
     * of the current mode are left as they were. @{ */
    /** Draws a text in the plane z = 0.
     *  @param angle  degrees, anticlockwise  @param size  height of an em in the coordinates that are
     * current, before #txtScale; capitals are two thirds of it  @param flags  sum of TextAlign */
    static void XyText(double x, double y, double angle, double size, int flags, const CString& text);
    /** Draws a text with a bitmap font of 256 lists from `list` on (wglUseFontBitmaps): its size is in
     * pixels. A text whose beginning is outside the view is not seen at all: OpenGL's rule for bitmaps. */
    static void XyBmpText(unsigned list, double x, double y, const CString& text);
    /** Draws a circle of diameter 1 around a point and a text of size 20 that begins in its centre. `r` is
     * deliberately the third coordinate of the point and not a radius: scale before. */
    static void XyCircle(double x, double y, double r, const CString& text);
    /** @} */

protected:
    /** Runs code with the window's context current. @return false, and it is not run, without a context */
    bool WithContext(const std::function<void()>& code);
    /** Whether the context that Render() or WithContext() made current shares its lists and textures. */
    bool SharesNow() const noexcept { return m_sharesNow; }

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    static CGLWnd* OfCurrentContext();
    void MakeCircle();
    void ReleaseContexts();
    void DrawExcuse(CDC& dc) const;
    void RenderTo(const CRect& view, bool shares);

    static CLstPtr<CGLWnd*> s_glWnds;

    HGLRC m_rc = nullptr;
    bool m_shares = false;    // the context, its lists with CDsp::s_sharedRC
    bool m_pbShares = false;  // and that of the pixel buffer
    bool m_sharesNow = false; // and the current one
    CRect m_viewRc;
    int m_pbWidth = 0;
    int m_pbHeight = 0;
    std::unique_ptr<vant::detail::Pbuffer> m_pb;
    std::shared_ptr<const vant::detail::GlyphLists> m_glyphs; // common to windows that share
    unsigned m_circle = 0;
};
