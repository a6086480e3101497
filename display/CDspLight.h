#pragma once

#include "core/VantApi.h"

#include <afxwin.h>

/** One of OpenGL's lights: a colour and how much of it is ambient, diffuse and specular light. Off at first.
 *
 *  Copying copies every field. SetupLight() belongs to the UI thread and needs a current context. */
class VANT_API CDspLight
{
public:
    /** The default light, calculated. */
    CDspLight();
    virtual ~CDspLight();
    CDspLight(const CDspLight&) = default;
    CDspLight& operator=(const CDspLight&) = default;

    CString name;                    ///< "Default"
    int on = 0;                      ///< non-zero: lit
    unsigned light = 0x4000;         ///< OpenGL's number of the light: GL_LIGHT0 ...
    COLORREF colour = 0xFFFFFF;      ///< as it was given; the lighting uses #red, #green and #blue
    double red = 1;                  ///< 0..1
    double green = 1;                ///< 0..1
    double blue = 1;                 ///< 0..1
    double ambientInt = 0.4;         ///< share of the colour in the light that comes from everywhere
    double diffuseInt = 1;           ///< share in the light that shades
    double specularInt = 0;          ///< share in the highlights
    float ambient[4] = {};           ///< red, green, blue, alpha; made by CalculateValues()
    float diffuse[4] = {0, 0, 0, 1}; ///< made by CalculateValues(), which leaves the alpha
    float specular[4] = {};          ///< made by CalculateValues()
    double extra[4] = {1, 1, 1, 1};  ///< for the application; kept and copied, not sent to OpenGL
    /** Homogeneous position in the coordinates that are current at SetupLight(). With a last number of 0, as
     * at first, the light comes from that direction, infinitely far away. */
    float position[4] = {500, 500, -500, 0};
    float direction[3] = {0, 0, 1}; ///< for the application; kept and copied, not sent to OpenGL

    /** Takes red, green and blue from a colour and calculates. @param c  0x00BBGGRR */
    void ConfigureColour(COLORREF c);

    /** Makes #ambient, #diffuse and #specular: colour times intensity, each 0..1, alpha 0 of the first and
     * the last. To be called after a change of the colour or of an intensity. */
    void CalculateValues();

    /** Switches the light; SetupLight() carries it out. */
    void LightSwitch(int isOn) { on = isOn; }

    /** Tells OpenGL: disables a light that is off, and nothing else; otherwise enables it and sends colours
     * and position. Deliberately sends one parameter more, which OpenGL rejects with GL_INVALID_ENUM. */
    void SetupLight();
};
