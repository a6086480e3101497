// The entry point of a program that has none of its own, only a global application object. It is linked into
// the program itself, and only if the program defines neither main nor WinMain.
#include "vafx/CWinApp.h"

namespace
{

/** The command line behind the program's name, which may be quoted. */
LPWSTR Arguments()
{
    LPWSTR text = ::GetCommandLineW();
    bool quoted = false;
    for (; *text != 0 && (quoted || (*text != L' ' && *text != L'\t')); ++text) {
        if (*text == L'"')
            quoted = !quoted;
    }
    while (*text == L' ' || *text == L'\t')
        ++text;
    return text;
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR, int showCommand)
{
    return ::AfxWinMain(instance, previous, Arguments(), showCommand);
}
