#include "display/CDspLight.h"

#include "display/GLTest.h"

#include <limits>

namespace
{

using testing::ElementsAre;
using testing::FloatEq;

TEST(CDspLightTest, IsAWhiteLightThatIsOff)
{
    const CDspLight light;
    EXPECT_EQ(light.name, L"Default");
    EXPECT_EQ(light.on, 0);
    EXPECT_EQ(light.light, static_cast<unsigned>(GL_LIGHT0));
    EXPECT_EQ(light.colour, 0xFFFFFFu);
    EXPECT_THAT(light.ambient, ElementsAre(FloatEq(0.4F), FloatEq(0.4F), FloatEq(0.4F), 0));
    EXPECT_THAT(light.diffuse, ElementsAre(1, 1, 1, testing::_));
    EXPECT_THAT(light.specular, ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(light.extra, ElementsAre(1, 1, 1, 1));
    EXPECT_THAT(light.position, ElementsAre(500, 500, -500, 0));
    EXPECT_THAT(light.direction, ElementsAre(0, 0, 1));
}

TEST(CDspLightTest, CalculatesFromColourAndIntensities)
{
    CDspLight light;
    light.ConfigureColour(0x0000FF);
    EXPECT_THAT(light.ambient, ElementsAre(FloatEq(0.4F), 0, 0, 0));
    EXPECT_THAT(light.diffuse, ElementsAre(1, 0, 0, testing::_));
    EXPECT_THAT(light.specular, ElementsAre(0, 0, 0, 0));
    light.ConfigureColour(RGB(51, 102, 204));
    EXPECT_THAT(light.diffuse, ElementsAre(FloatEq(0.2F), FloatEq(0.4F), FloatEq(0.8F), testing::_));

    light.ambientInt = 3;
    light.diffuseInt = -1;
    light.specularInt = std::numeric_limits<double>::quiet_NaN();
    light.CalculateValues();
    EXPECT_THAT(light.ambient, ElementsAre(FloatEq(0.6F), 1, 1, 0));
    EXPECT_THAT(light.diffuse, ElementsAre(0, 0, 0, testing::_));
    EXPECT_THAT(light.specular, ElementsAre(0, 0, 0, 0));

    light.LightSwitch(1);
    light.extra[3] = 7;
    light.direction[1] = 5;
    const CDspLight copy = light;
    CDspLight assigned;
    assigned = light;
    EXPECT_EQ(copy.on, 1);
    EXPECT_EQ(copy.extra[3], 7);
    EXPECT_EQ(copy.direction[1], 5);
    EXPECT_THAT(assigned.ambient, testing::ElementsAreArray(light.ambient));
}

class LightsOfOpenGL : public GLTest
{
};

TEST_F(LightsOfOpenGL, AreSetUpAsTheyAreSwitched)
{
    SceneWnd wnd;
    wnd.CreatePopup();
    wnd.InContext([] {
        CDspLight light;
        light.light = GL_LIGHT2;
        light.ConfigureColour(RGB(255, 0, 0));
        glEnable(GL_LIGHT2);
        light.SetupLight();
        EXPECT_FALSE(glIsEnabled(GL_LIGHT2));
        float values[4]{};
        glGetLightfv(GL_LIGHT2, GL_POSITION, values);
        EXPECT_THAT(values, ElementsAre(0, 0, 1, 0)) << "a light that is off sends nothing";
        EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));

        light.LightSwitch(1);
        light.SetupLight();
        EXPECT_TRUE(glIsEnabled(GL_LIGHT2));
        EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_INVALID_ENUM)) << "the parameter that no light has";
        glGetLightfv(GL_LIGHT2, GL_POSITION, values);
        EXPECT_THAT(values, ElementsAre(500, 500, -500, 0));
        glGetLightfv(GL_LIGHT2, GL_AMBIENT, values);
        EXPECT_THAT(values, ElementsAre(FloatEq(0.4F), 0, 0, 0));
        glGetLightfv(GL_LIGHT2, GL_DIFFUSE, values);
        EXPECT_EQ(values[0], 1);
        EXPECT_EQ(values[1], 0);
    });
}

} // namespace
