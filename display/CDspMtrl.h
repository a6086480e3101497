#pragma once

#include "core/VantApi.h"
#include "display/CRgbf.h"

#include <afx.h>

#include <memory>

class CESetObj;

namespace vant::detail
{
class GLName;
}

/** A surface material, with a texture if it names a file.
 *
 *  Copies share the texture. It is deleted when the last of them has let it go, at the next drawing of any 3D
 * window. Whatever draws or loads belongs to the UI thread and needs a current context. */
class VANT_API CDspMtrl
{
public:
    /** A white material. */
    CDspMtrl();
    /** Ambient, diffuse and specular red, green, blue and alpha, 0..1, and the shininess, 0..128. */
    CDspMtrl(const CString& mtrlName, double ambientR, double ambientG, double ambientB, double ambientA,
             double diffuseR, double diffuseG, double diffuseB, double diffuseA, double specularR,
             double specularG, double specularB, double specularA, double shine);
    virtual ~CDspMtrl();
    CDspMtrl(const CDspMtrl&);
    CDspMtrl& operator=(const CDspMtrl&);

    unsigned texture = 0;   ///< OpenGL's name of the texture; 0: none. Load() makes it.
    CString name;           ///< "Default"
    CRgbf ambient;          ///< reflected of the light that comes from everywhere
    CRgbf diffuse;          ///< reflected of the light that shades; its alpha is the surface's
    CRgbf specular;         ///< reflected in highlights
    float shininess = 128;  ///< exponent of the highlights, 0..128: the greater, the smaller they are
    float transparency = 0; ///< 0 opaque .. 1 invisible; for whoever draws
    int dblSided = 1;       ///< non-zero: to be drawn from both sides; for whoever draws
    CString texName;        ///< file of the texture; empty: none

    /** Exchanges "MatName", "Shininess", "Transparency", "DblSided", "TexName" and the colours "Ambient",
     * "Diffuse" and "Specular", each "red,green,blue" without alpha. A colour is replaced only by three
     * numbers. When another file name is loaded, the texture of the previous one is let go. */
    virtual void Settings(CESetObj& obj);

    /** Makes this the current material of both sides, and binds its texture if it has one. A texture that is
     * named but not there yet is loaded first; a name that failed is not tried again until it changes or
     * Load() is called. Switching texturing on or off is the caller's. */
    void SetMtrl();

    /** Binds the texture; without one, none is bound. */
    void Bind();

    /** Makes a texture, with neither levels of detail nor a border, of an image file (bmp, jpg, png, gif,
     * tif) in place of the one before. #texName stays.
     *  @return 1; 0 if the file is no image, without an alarm, or after alarm 10 if the driver does not take
     * its size: "DspMdl: BMP Texture File: <file> is too large, or texture dimensions are not a Power of 2".
     * Both leave the material as it was. Alarm 20, "Model Load: Cannot load texture for model <file>": OpenGL
     * has no more names; the result is still 1 and the material has no texture. */
    int Load(const CString& file);

private:
    std::shared_ptr<const vant::detail::GLName> m_owned; // what Load() made
    CString m_failed;                                    // name that SetMtrl() does not try again
};
