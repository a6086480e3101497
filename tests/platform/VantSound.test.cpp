#include "platform/PlatformTest.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using VantSound = PlatformTest;

void PlayAll()
{
    for (int sound = -1; sound <= 5; ++sound)
        Vant::Snd(sound);
}

} // namespace

TEST_F(VantSound, IsSilentWithTheInitialOptions)
{
    EXPECT_EQ(Vant::options, 0x29u);
    PlayAll();
    EXPECT_THAT(sounds, IsEmpty());
}

TEST_F(VantSound, PlaysOneResourcePerNumberAndIgnoresOthers)
{
    Vant::options = 0x01;
    PlayAll();
    EXPECT_THAT(sounds, ElementsAre(3050, 3048, 3051, 3049, 3052));
}

TEST_F(VantSound, LetsOnlySoundThreeThrough)
{
    Vant::options = 0x08;
    PlayAll();
    EXPECT_THAT(sounds, ElementsAre(3049));

    Vant::options = 0x20;
    PlayAll();
    EXPECT_THAT(sounds, ElementsAre(3049));
}
