#include <afx.h>

#include <atomic>

namespace
{

constinit std::atomic<HINSTANCE> g_resources{nullptr};

} // namespace

HINSTANCE AfxGetInstanceHandle()
{
    return ::GetModuleHandleW(nullptr);
}

HINSTANCE AfxGetResourceHandle()
{
    const HINSTANCE set = g_resources.load();
    return set != nullptr ? set : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE hInstResource)
{
    g_resources.store(hInstResource);
}

HINSTANCE AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType)
{
    const HINSTANCE first = AfxGetResourceHandle();
    for (const HINSTANCE module : {first, AfxGetInstanceHandle()}) {
        if (::FindResourceW(module, lpszName, lpszType) != nullptr)
            return module;
    }
    return first;
}
