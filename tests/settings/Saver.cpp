// Saves two trees to a file in turn, until it is killed: settings_saver FILE EVENT. The event is set behind
// the first save.

#include "tests/settings/SaverTrees.h"

#include <cstdlib>
#include <windows.h>

int wmain(int argc, wchar_t** argv)
{
    if (argc != 3)
        return 2;
    const CESet trees[] = {SaverTree(0), SaverTree(1)};
    const HANDLE started = OpenEventW(EVENT_MODIFY_STATE, FALSE, argv[2]);
    for (int i = static_cast<int>(GetCurrentProcessId() / 4);; ++i) {
        if (trees[i & 1].Save(argv[1]) == 0)
            return 1;
        SetEvent(started);
    }
}
