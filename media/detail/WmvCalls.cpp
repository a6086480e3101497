#include "media/detail/WmvCalls.h"

#include <chrono>

namespace vant::detail
{

namespace
{

/** A function of the Windows Media library; null if it or the library is missing. */
template <class Function>
Function* Find(LPCSTR name)
{
    static const HMODULE library = ::LoadLibraryExW(L"wmvcore.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    const FARPROC found = library ? ::GetProcAddress(library, name) : nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

constexpr HRESULT noLibrary = __HRESULT_FROM_WIN32(ERROR_MOD_NOT_FOUND);

HRESULT CreateProfileManager(IWMProfileManager** manager)
{
    static const auto create = Find<HRESULT WINAPI(IWMProfileManager**)>("WMCreateProfileManager");
    return create ? create(manager) : noLibrary;
}

HRESULT CreateWriter(IWMWriter** writer)
{
    static const auto create = Find<HRESULT WINAPI(IUnknown*, IWMWriter**)>("WMCreateWriter");
    return create ? create(nullptr, writer) : noLibrary;
}

unsigned long long Now()
{
    using Unit = std::chrono::duration<unsigned long long, std::ratio<1, 10'000'000>>;
    return std::chrono::duration_cast<Unit>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

constinit WmvCalls inUse{&CreateProfileManager, &CreateWriter, &Now};

} // namespace

WmvCalls& Wmv() noexcept
{
    return inUse;
}

} // namespace vant::detail
