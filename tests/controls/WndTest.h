#pragma once

#include "controls/WndTools.h"
#include "platform/PlatformTest.h"

/** The platform started, and the mouse, the screen and the focus for the test alone, with no key down. What a
 * test changes of the platform is as before when it ends; tool tips do not come unless it hooks them in. */
class WndTest : public PlatformTest
{
protected:
    WndTest();
    ~WndTest() override;

private:
    const ScreenLock m_screen;
    const HeldKeys m_noKeys{{}};
};
