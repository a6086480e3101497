#pragma once

#include "demo/Program.h"
#include "platform/PlatformTest.h"

#include <gmock/gmock.h>

/** A directory of the test's own, and the screen to itself. */
class FirstUse : public testing::Test
{
protected:
    FirstUse();
    ~FirstUse() override;

    /** Settings in a directory with the views closed: a run without them ends sooner. @param more  lines in
     * the program's own object */
    static void PutSettings(const fs::path& dir, const std::string& more = "");

    const fs::path m_dir;

private:
    const ScreenLock m_screen;
};

/** Lines of a text. */
std::ptrdiff_t Lines(const std::string& text);
