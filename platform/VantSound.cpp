#include "platform/Vant.h"
#include "platform/detail/SystemCalls.h"
#include "resources/Ids.h"

#include <iterator>

void Vant::Snd(int sound)
{
    constexpr unsigned int silent = 0x20;
    constexpr unsigned int alarmSoundOnly = 0x08;
    constexpr int alarmSound = 3;
    constexpr int resources[] = {VANT_IDW_CLICK, VANT_IDW_CONFIRM, VANT_IDW_NOTICE, VANT_IDW_ALARM,
                                 VANT_IDW_REFUSE};

    if (options & silent)
        return;
    if ((options & alarmSoundOnly) && sound != alarmSound)
        return;
    if (sound < 0 || sound >= static_cast<int>(std::size(resources)))
        return;
    vant::detail::Calls().playSound(resources[sound]);
}
