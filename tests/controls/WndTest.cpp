#include "controls/WndTest.h"

#include "platform/CBaseApp.h"

namespace
{

// The application object whose thread passes messages through PreTranslateMessage.
CBaseApp theApp;

} // namespace
