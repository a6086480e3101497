#pragma once

#include "display/GLTest.h"

#include "display/CModel.h"
#include "display/detail/ModelData.h"

#include <array>
#include <functional>
#include <string>

/** A view whose scene is the test's, of a cube around the origin, from one of its sides. */
class ViewWnd : public CDsp
{
public:
    struct Side {
        const char* name;
        CV3 front; // towards the eye
        CV3 up;
    };
    /** What an eye sees from each side. */
    static const std::array<Side, 6> sides;

    std::function<void()> scene = [] {};
    int renders = 0;
    double range = 2; ///< half of what is seen
    CV3 front = {0, 0, 1};
    CV3 up = {0, 1, 0};

    /** Sets up a lamp at the eye and no other light, so that a surface that faces it has its diffuse colour.
     */
    void Render() override;
    /** A window without a frame, not shown. */
    void Open(int size = 64, CPoint at = CPoint(0, 0));
    void Capture(CImage& image, int size);
    /** Draws a model into a picture. */
    void Capture(CImage& image, int size, CModel& model);
    /** Runs the test's code where lists and textures are. */
    void InContext(const std::function<void()>& code);
};

/** Files of models, and views of them. */
class ViewTest : public GLTest
{
protected:
    /** Writes a file into TempDir(). @return its path */
    static CString WriteFile(const std::wstring& name, const std::string& bytes);
    static CString WriteModel(const std::wstring& name, const vant::detail::ModelData& model);
    /** Writes an image of two colours, 0xRRGGBB: lower and upper half. @return its path */
    static CString WriteImage(const std::wstring& name, COLORREF lower, COLORREF upper);
};
