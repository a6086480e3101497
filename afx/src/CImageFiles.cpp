// CImage: loading and saving.
#include "vafx/CImage.h"

#include "detail/Indexed.h"

#include <gdiplus.h>

#include <cstddef>
#include <cwchar>
#include <memory>
#include <vector>

namespace
{

/** GDI+ for as long as the object lives. Starts nest: a program that uses GDI+ itself is not disturbed. */
class GdiPlus
{
public:
    GdiPlus() noexcept
    {
        const Gdiplus::GdiplusStartupInput input;
        m_status = Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
    }
    ~GdiPlus()
    {
        if (m_status == Gdiplus::Ok)
            Gdiplus::GdiplusShutdown(m_token);
    }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;

    bool Works() const noexcept { return m_status == Gdiplus::Ok; }

private:
    ULONG_PTR m_token = 0;
    Gdiplus::Status m_status;
};

struct Release {
    void operator()(IUnknown* object) const noexcept { object->Release(); }
};
using StreamPtr = std::unique_ptr<IStream, Release>;

struct CloseFile {
    using pointer = HANDLE;
    void operator()(HANDLE file) const noexcept
    {
        if (file != INVALID_HANDLE_VALUE)
            ::CloseHandle(file);
    }
};
using FilePtr = std::unique_ptr<HANDLE, CloseFile>;

HRESULT LastError() noexcept
{
    const DWORD error = ::GetLastError();
    return error != ERROR_SUCCESS ? HRESULT_FROM_WIN32(error) : E_FAIL;
}

HRESULT ResultOf(Gdiplus::Status status) noexcept
{
    switch (status) {
    case Gdiplus::Ok:
        return S_OK;
    case Gdiplus::OutOfMemory:
        return E_OUTOFMEMORY;
    case Gdiplus::InvalidParameter:
        return E_INVALIDARG;
    case Gdiplus::NotImplemented:
        return E_NOTIMPL;
    case Gdiplus::AccessDenied:
        return HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED);
    case Gdiplus::Win32Error:
        return LastError();
    default:
        return E_FAIL;
    }
}

/** Whether a list like "*.TIF;*.TIFF" has an extension (with its dot), in whatever case. */
bool HasExtension(const wchar_t* list, const wchar_t* extension)
{
    const std::size_t length = std::wcslen(extension);
    for (const wchar_t* item = list; item != nullptr && *item != 0;) {
        const wchar_t* end = std::wcschr(item, L';');
        const std::size_t size = end != nullptr ? static_cast<std::size_t>(end - item) : std::wcslen(item);
        // An item begins with an asterisk.
        if (size == length + 1 && ::CompareStringOrdinal(item + 1, static_cast<int>(length), extension,
                                                         static_cast<int>(length), TRUE) == CSTR_EQUAL)
            return true;
        item = end != nullptr ? end + 1 : nullptr;
    }
    return false;
}

struct Encoder {
    CLSID id;
    GUID format;
};

/** The encoder for a format, or for an extension when there is no format. */
bool FindEncoder(const GUID& format, const wchar_t* extension, Encoder& encoder)
{
    UINT count = 0;
    UINT bytes = 0;
    if (Gdiplus::GetImageEncodersSize(&count, &bytes) != Gdiplus::Ok || bytes == 0)
        return false;
    std::vector<std::byte> memory(bytes);
    auto* encoders = reinterpret_cast<Gdiplus::ImageCodecInfo*>(memory.data());
    if (Gdiplus::GetImageEncoders(count, bytes, encoders) != Gdiplus::Ok)
        return false;
    const bool byFormat = format != GUID_NULL;
    for (UINT i = 0; i < count; ++i) {
        const auto& candidate = encoders[i];
        if (byFormat ? candidate.FormatID == format : HasExtension(candidate.FilenameExtension, extension)) {
            encoder = {candidate.Clsid, candidate.FormatID};
            return true;
        }
    }
    return false;
}

const wchar_t* ExtensionOf(const wchar_t* path)
{
    const wchar_t* dot = nullptr;
    for (; *path != 0; ++path) {
        if (*path == L'.')
            dot = path;
        else if (*path == L'\\' || *path == L'/' || *path == L':')
            dot = nullptr;
    }
    return dot != nullptr ? dot : L"";
}

/** 16 bits hold green in five of them, or in six. */
bool HasSixBitsOfGreen(const CImage& image) noexcept
{
    constexpr DWORD sixBits = 0x07E0;
    DIBSECTION section{};
    return ::GetObjectW(image, sizeof section, &section) == sizeof section &&
           section.dsBitfields[1] == sixBits;
}

Gdiplus::PixelFormat FormatOf(const CImage& image, bool alpha) noexcept
{
    switch (image.GetBPP()) {
    case 1:
        return PixelFormat1bppIndexed;
    case 4:
        return PixelFormat4bppIndexed;
    case 8:
        return PixelFormat8bppIndexed;
    case 16:
        return HasSixBitsOfGreen(image) ? PixelFormat16bppRGB565 : PixelFormat16bppRGB555;
    case 24:
        return PixelFormat24bppRGB;
    default:
        return alpha ? PixelFormat32bppPARGB : PixelFormat32bppRGB;
    }
}

constexpr UINT largestPalette = 256;

struct Palette {
    UINT flags;
    UINT count;
    Gdiplus::ARGB entries[largestPalette];

    Gdiplus::ColorPalette* Get() noexcept { return reinterpret_cast<Gdiplus::ColorPalette*>(this); }
};

/** An image seen by GDI+; the pixels stay the image's. */
std::unique_ptr<Gdiplus::Bitmap> Wrap(const CImage& image, bool alpha)
{
    auto* bits = static_cast<BYTE*>(const_cast<void*>(image.GetBits()));
    auto bitmap = std::make_unique<Gdiplus::Bitmap>(image.GetWidth(), image.GetHeight(), image.GetPitch(),
                                                    FormatOf(image, alpha), bits);
    if (image.IsIndexed()) {
        RGBQUAD colours[largestPalette] = {};
        Palette palette{};
        palette.count = static_cast<UINT>(image.GetMaxColorTableEntries());
        image.GetColorTable(0, palette.count, colours);
        for (UINT i = 0; i < palette.count; ++i)
            palette.entries[i] =
                Gdiplus::Color::MakeARGB(0xff, colours[i].rgbRed, colours[i].rgbGreen, colours[i].rgbBlue);
        bitmap->SetPalette(palette.Get());
    }
    return bitmap;
}

/** What a picture is kept as: indices as they are, opacity if it has any, else plain colours. */
int DepthFor(Gdiplus::Bitmap& picture, bool& alpha)
{
    const Gdiplus::PixelFormat format = picture.GetPixelFormat();
    const UINT bits = Gdiplus::GetPixelFormatSize(format);
    // A transparent colour in the table needs the opacity that a table here cannot hold.
    alpha = Gdiplus::IsAlphaPixelFormat(format) || (picture.GetFlags() & Gdiplus::ImageFlagsHasAlpha) != 0;
    if (alpha)
        return 32;
    return (format & PixelFormatIndexed) != 0 && bits <= 8 ? static_cast<int>(bits) : 24;
}

HRESULT CopyPixels(Gdiplus::Bitmap& picture, CImage& image, bool alpha)
{
    Gdiplus::BitmapData data{};
    data.Width = static_cast<UINT>(image.GetWidth());
    data.Height = static_cast<UINT>(image.GetHeight());
    data.Stride = image.GetPitch();
    data.PixelFormat = FormatOf(image, alpha);
    data.Scan0 = image.GetBits();
    const Gdiplus::Rect whole(0, 0, image.GetWidth(), image.GetHeight());
    const Gdiplus::Status status = picture.LockBits(
        &whole, Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeUserInputBuf, data.PixelFormat, &data);
    if (status != Gdiplus::Ok)
        return ResultOf(status);
    picture.UnlockBits(&data);
    return S_OK;
}

void CopyPalette(Gdiplus::Bitmap& picture, CImage& image)
{
    Palette palette{};
    if (picture.GetPalette(palette.Get(), sizeof palette) != Gdiplus::Ok)
        return;
    RGBQUAD colours[largestPalette] = {};
    const UINT most = static_cast<UINT>(image.GetMaxColorTableEntries());
    const UINT count = palette.count < most ? palette.count : most;
    for (UINT i = 0; i < count; ++i) {
        const Gdiplus::Color colour(palette.entries[i]);
        colours[i] = {colour.GetBlue(), colour.GetGreen(), colour.GetRed(), 0};
    }
    image.SetColorTable(0, count, colours);
}

HRESULT LoadInto(CImage& image, Gdiplus::Bitmap& picture)
{
    // Asking for the status clears it.
    if (const HRESULT opened = ResultOf(picture.GetLastStatus()); FAILED(opened))
        return opened;
    bool alpha = false;
    const int depth = DepthFor(picture, alpha);
    if (!image.Create(static_cast<int>(picture.GetWidth()), static_cast<int>(picture.GetHeight()), depth,
                      alpha ? CImage::createAlphaChannel : 0))
        return E_OUTOFMEMORY;
    const HRESULT copied = CopyPixels(picture, image, alpha);
    if (FAILED(copied))
        image.Destroy();
    else if (image.IsIndexed())
        CopyPalette(picture, image);
    return copied;
}

HRESULT EncodeAs(const CImage& image, bool alpha, const CLSID& encoder, IStream* stream)
{
    const auto picture = Wrap(image, alpha);
    if (const HRESULT wrapped = ResultOf(picture->GetLastStatus()); FAILED(wrapped))
        return wrapped;
    if (!alpha)
        return ResultOf(picture->Save(stream, &encoder, nullptr));
    // Files hold the colours as they are, not multiplied with the opacity.
    const std::unique_ptr<Gdiplus::Bitmap> plain(
        picture->Clone(0, 0, image.GetWidth(), image.GetHeight(), PixelFormat32bppARGB));
    return plain != nullptr ? ResultOf(plain->Save(stream, &encoder, nullptr)) : E_OUTOFMEMORY;
}

HRESULT Encode(const CImage& image, bool alpha, const Encoder& encoder, IStream* stream)
{
    constexpr int leastPlainDepth = 24;
    if (encoder.format != Gdiplus::ImageFormatGIF || image.GetBPP() < leastPlainDepth)
        return EncodeAs(image, alpha, encoder.id, stream);
    // GDI+ would dither to a fixed table even an image of few colours, and not every version of it can.
    CImage indexed;
    if (!vafx::detail::MakeIndexed(image, indexed))
        return E_OUTOFMEMORY;
    return EncodeAs(indexed, false, encoder.id, stream);
}

/** Writes the whole contents of a memory stream to a file, or leaves none. */
HRESULT WriteFileFrom(IStream* stream, LPCWSTR path)
{
    HGLOBAL memory = nullptr;
    STATSTG stat{};
    HRESULT result = ::GetHGlobalFromStream(stream, &memory);
    if (SUCCEEDED(result))
        result = stream->Stat(&stat, STATFLAG_NONAME);
    if (FAILED(result))
        return result;

    FilePtr file(
        ::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (file.get() == INVALID_HANDLE_VALUE)
        return LastError();
    const bool onDisk = ::GetFileType(file.get()) == FILE_TYPE_DISK;
    const auto* data = static_cast<const BYTE*>(::GlobalLock(memory));
    ULONGLONG left = stat.cbSize.QuadPart;
    constexpr DWORD piece = 1U << 20;
    while (left > 0 && SUCCEEDED(result)) {
        const DWORD wanted = left < piece ? static_cast<DWORD>(left) : piece;
        DWORD written = 0;
        if (!::WriteFile(file.get(), data, wanted, &written, nullptr))
            result = LastError();
        else if (written != wanted)
            result = HRESULT_FROM_WIN32(ERROR_DISK_FULL);
        data += written;
        left -= written;
    }
    ::GlobalUnlock(memory);
    if (!::CloseHandle(file.release()) && SUCCEEDED(result))
        result = LastError();
    if (FAILED(result) && onDisk)
        ::DeleteFileW(path);
    return result;
}

/** No exception leaves: exhausted memory becomes a result. */
template <class F>
HRESULT Guarded(F action) noexcept
{
    try {
        const GdiPlus gdiPlus;
        return gdiPlus.Works() ? action() : E_FAIL;
    } catch (...) {
        return E_OUTOFMEMORY;
    }
}

} // namespace

HRESULT CImage::Load(LPCTSTR pszFileName) noexcept
{
    Destroy();
    // GDI+ does not say why a file cannot be opened.
    const FilePtr file(::CreateFileW(pszFileName, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (file.get() == INVALID_HANDLE_VALUE)
        return LastError();
    return Guarded([&] {
        Gdiplus::Bitmap picture(pszFileName);
        return LoadInto(*this, picture);
    });
}

HRESULT CImage::Load(IStream* pStream) noexcept
{
    Destroy();
    if (pStream == nullptr)
        return E_INVALIDARG;
    return Guarded([&] {
        Gdiplus::Bitmap picture(pStream);
        return LoadInto(*this, picture);
    });
}

void CImage::LoadFromResource(HINSTANCE hInstance, LPCTSTR pszResourceName) noexcept
{
    Attach(static_cast<HBITMAP>(
        ::LoadImageW(hInstance, pszResourceName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}

void CImage::LoadFromResource(HINSTANCE hInstance, UINT nIDResource) noexcept
{
    LoadFromResource(hInstance, MAKEINTRESOURCE(nIDResource));
}

HRESULT CImage::Save(LPCTSTR pszFileName, REFGUID guidFileType) const noexcept
{
    if (m_bits == nullptr || pszFileName == nullptr)
        return E_INVALIDARG;
    return Guarded([&]() -> HRESULT {
        Encoder encoder{};
        if (!FindEncoder(guidFileType, ExtensionOf(pszFileName), encoder))
            return E_FAIL;
        IStream* created = nullptr;
        const HRESULT result = ::CreateStreamOnHGlobal(nullptr, TRUE, &created);
        if (FAILED(result))
            return result;
        const StreamPtr stream(created);
        const HRESULT encoded = Encode(*this, m_alpha, encoder, stream.get());
        return SUCCEEDED(encoded) ? WriteFileFrom(stream.get(), pszFileName) : encoded;
    });
}

HRESULT CImage::Save(IStream* pStream, REFGUID guidFileType) const noexcept
{
    if (m_bits == nullptr || pStream == nullptr)
        return E_INVALIDARG;
    return Guarded([&]() -> HRESULT {
        Encoder encoder{};
        if (!FindEncoder(guidFileType, L"", encoder))
            return E_FAIL;
        return Encode(*this, m_alpha, encoder, pStream);
    });
}
