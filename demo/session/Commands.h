#pragma once

#include "demo/session/Session.h"

#include <optional>

namespace demo
{

/** What a key or a button of the demonstration does. */
enum class Command {
    Pause,
    Faster,
    Slower,
    Restart,
    HeadingUp,
    DepthSpan,
    Units,
    Chart,
    Orbit,
    Colours,
    Survey,
    Video,
    Picture
};

/** The command of a typed character, upper or lower case. */
std::optional<Command> CommandOf(wchar_t character) noexcept;

/** Carries a command out and tells the platform windows (sessionInfo). */
void Carry(Command command, Session& session);

/** Saves a picture of the main window under the output directory, and says so in the run's log.
 *  @return whether it could be saved */
bool SavePicture(Session& session, const CString& name);

} // namespace demo
