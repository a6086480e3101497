#include <afx.h>
extern "C" __declspec(dllexport) int placeholder()
{
    return 0;
}
