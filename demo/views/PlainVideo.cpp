#include "demo/views/PlainVideo.h"

#include "platform/Vant.h"
#include "windows/CCslAlm.h"

namespace demo
{

void TellOfPlainVideo()
{
    constexpr unsigned long noXvid = 1208;
    if (!Vant::alarm.FindEntry(noXvid))
        return;
    Vant::alarm.ClearEntry(noXvid);
    Vant::Console(0, L"no Xvid codec: whole frames are recorded");
}

} // namespace demo
