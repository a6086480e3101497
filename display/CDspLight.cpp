#include "display/CDspLight.h"

#include <GL/gl.h>

#include <algorithm>

static_assert(GL_LIGHT0 == 0x4000); // the default in the header, which does without OpenGL's

namespace
{

void Mix(float (&to)[4], const double (&colour)[3], double intensity)
{
    for (int i = 0; i < 3; ++i) {
        const float product = static_cast<float>(colour[i] * intensity);
        to[i] = product > 0 ? std::min(product, 1.0F) : 0.0F;
    }
}

} // namespace

CDspLight::CDspLight()
    : name(L"Default")
{
    CalculateValues();
}

CDspLight::~CDspLight() = default;

void CDspLight::ConfigureColour(COLORREF c)
{
    colour = c;
    red = (c & 255) / 255.0;
    green = ((c >> 8) & 255) / 255.0;
    blue = ((c >> 16) & 255) / 255.0;
    CalculateValues();
}

void CDspLight::CalculateValues()
{
    const double rgb[] = {red, green, blue};
    Mix(ambient, rgb, ambientInt);
    Mix(diffuse, rgb, diffuseInt);
    Mix(specular, rgb, specularInt);
    ambient[3] = 0;
    specular[3] = 0;
}

void CDspLight::SetupLight()
{
    if (!on) {
        glDisable(light);
        return;
    }
    glEnable(light);
    // Deliberate, though it is a parameter of the light model and not of a light.
    glLightf(light, GL_LIGHT_MODEL_LOCAL_VIEWER, 0);
    glLightfv(light, GL_AMBIENT, ambient);
    glLightfv(light, GL_DIFFUSE, diffuse);
    glLightfv(light, GL_SPECULAR, specular);
    glLightfv(light, GL_POSITION, position);
}
