#include "media/detail/AviCalls.h"

#include "media/detail/DirectFile.h"
#include "platform/Vant.h"

namespace vant::detail
{

namespace
{

constexpr HRESULT noLibrary = __HRESULT_FROM_WIN32(ERROR_MOD_NOT_FOUND);
constexpr long long bytes2GiB = 0x80000000;

HMODULE Library()
{
    static const HMODULE library = [] {
        const HMODULE loaded = ::LoadLibraryExW(L"avifil32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        if (!loaded)
            Vant::Console(1, L"No AVI files can be written: avifil32.dll cannot be loaded");
        return loaded;
    }();
    return library;
}

/** An exported function; null if it is missing. Only its type is taken from the headers: a reference to the
 * function itself would need the import library, as long as no optimisation removes it. */
template <class Function>
Function* Find(LPCSTR name)
{
    const FARPROC found = Library() ? ::GetProcAddress(Library(), name) : nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(found));
}

/** Calls a function of the library that answers a result. */
template <class Function, class... Arguments>
HRESULT Call(Function* function, Arguments... arguments)
{
    return function ? function(arguments...) : noLibrary;
}

void InitLibrary()
{
    static const auto init = Find<decltype(::AVIFileInit)>("AVIFileInit");
    if (init)
        init();
}

void ExitLibrary()
{
    static const auto exit = Find<decltype(::AVIFileExit)>("AVIFileExit");
    if (exit)
        exit();
}

HRESULT OpenPlain(IAVIFile** file, LPCWSTR path, UINT mode)
{
    static const auto open = Find<decltype(::AVIFileOpenW)>("AVIFileOpenW");
    return Call(open, file, path, mode, nullptr);
}

ULONG ReleaseFile(IAVIFile* file)
{
    static const auto release = Find<decltype(::AVIFileRelease)>("AVIFileRelease");
    return release ? release(file) : 0;
}

HRESULT OpenFile(IAVIFile** file, LPCWSTR path, UINT mode)
{
    *file = Avi().wholeFrames ? OpenDirect(&OpenPlain, &ReleaseFile, path, mode) : nullptr;
    return *file ? AVIERR_OK : OpenPlain(file, path, mode); // which says what is wrong, too
}

HRESULT CreateStream(IAVIFile* file, IAVIStream** stream, AVISTREAMINFOW* info)
{
    static const auto create = Find<decltype(::AVIFileCreateStreamW)>("AVIFileCreateStreamW");
    return Call(create, file, stream, info);
}

HRESULT CompressStream(IAVIStream** compressed, IAVIStream* raw, AVICOMPRESSOPTIONS* options)
{
    static const auto compress = Find<decltype(::AVIMakeCompressedStream)>("AVIMakeCompressedStream");
    return Call(compress, compressed, raw, options, nullptr);
}

HRESULT SetFormat(IAVIStream* stream, void* format, LONG size)
{
    static const auto set = Find<decltype(::AVIStreamSetFormat)>("AVIStreamSetFormat");
    return Call(set, stream, 0, format, size);
}

HRESULT WriteSample(IAVIStream* stream, LONG index, void* sample, LONG size, DWORD flags, LONG* written)
{
    static const auto write = Find<decltype(::AVIStreamWrite)>("AVIStreamWrite");
    return Call(write, stream, index, 1, sample, size, flags, nullptr, written);
}

HRESULT StreamInfo(IAVIStream* stream, AVISTREAMINFOW* info)
{
    static const auto ask = Find<decltype(::AVIStreamInfoW)>("AVIStreamInfoW");
    return Call(ask, stream, info, static_cast<LONG>(sizeof *info));
}

HRESULT ReadFormat(IAVIStream* stream, void* format, LONG* size)
{
    static const auto read = Find<decltype(::AVIStreamReadFormat)>("AVIStreamReadFormat");
    return Call(read, stream, 0, format, size);
}

ULONG ReleaseStream(IAVIStream* stream)
{
    static const auto release = Find<decltype(::AVIStreamRelease)>("AVIStreamRelease");
    return release ? release(stream) : 0;
}

bool ChooseOptions(HWND owner, IAVIStream* stream, AVICOMPRESSOPTIONS* options)
{
    static const auto choose = Find<decltype(::AVISaveOptions)>("AVISaveOptions");
    return choose && choose(owner, ICMF_CHOOSE_KEYFRAME | ICMF_CHOOSE_DATARATE, 1, &stream, &options);
}

void FreeOptions(AVICOMPRESSOPTIONS* options)
{
    static const auto free = Find<decltype(::AVISaveOptionsFree)>("AVISaveOptionsFree");
    if (free)
        free(1, &options);
}

constinit AviCalls inUse{&InitLibrary,    &ExitLibrary,   &OpenFile,    &ReleaseFile, &CreateStream,
                         &CompressStream, &SetFormat,     &WriteSample, &StreamInfo,  &ReadFormat,
                         &ReleaseStream,  &ChooseOptions, &FreeOptions, true,         bytes2GiB - 1};

} // namespace

AviCalls& Avi() noexcept
{
    return inUse;
}

} // namespace vant::detail
