#include "media/CEAvi.h"

#include "media/detail/AviFile.h"
#include "media/detail/CmpOptions.h"
#include "platform/Vant.h"

using vant::detail::Avi;
using vant::detail::AviFile;
using vant::detail::CmpOptions;
using vant::detail::DibFrame;

namespace
{

constexpr int alarmLevel = 1;

/** The alarms' ids, one for each message. */
enum AviAlarm : unsigned long {
    cannotOpen = 1201,
    notOpen,
    invalidHandle,
    notDib,
    cannotCreateStream,
    cannotAdd,
    otherSize,
    noXvid,
    noCompression,
    cannotSetCompression,
    choiceRefused,
    choiceTooLate,
    noFreeName
};

int Fail(AviAlarm id, LPCWSTR text)
{
    Vant::Alarm(id, alarmLevel, text);
    return 0;
}

/** Raises an alarm whose text ends with the meaning of a result. */
int Fail(AviAlarm id, LPCWSTR format, HRESULT result)
{
    Vant::Alarm(id, alarmLevel, format, static_cast<LPCWSTR>(CEAvi::ErrStr(static_cast<int>(result))));
    return 0;
}

int RefuseSize(const DibFrame& frame, const DIBSECTION& video)
{
    Vant::Alarm(otherSize, alarmLevel,
                L"Cannot add bitmap - %d x %d pixels of %d bits do not fit a video of %d x %d of %d bits",
                static_cast<int>(frame.Width()), static_cast<int>(frame.Height()), frame.Bits(),
                static_cast<int>(video.dsBm.bmWidth), static_cast<int>(video.dsBm.bmHeight),
                static_cast<int>(video.dsBmih.biBitCount));
    return 0;
}

bool FitsStream(const DibFrame& frame, const DIBSECTION& video)
{
    return frame.Width() == video.dsBm.bmWidth && frame.Height() == video.dsBm.bmHeight &&
           frame.Bits() == video.dsBmih.biBitCount;
}

/** "name-2.avi" for "name.avi" and 2. */
CString NumberedPath(const CString& path, int number)
{
    const int dot = path.ReverseFind(L'.');
    const int slash = path.ReverseFind(L'\\');
    const int end = dot > slash ? dot : path.GetLength();
    CString numbered;
    numbered.Format(L"%s-%d%s", static_cast<LPCWSTR>(path.Left(end)), number,
                    static_cast<LPCWSTR>(path.Mid(end)));
    return numbered;
}

bool Exists(const CString& path)
{
    return ::GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}

} // namespace

CEAvi::CEAvi()
{
    Avi().initLibrary();
}

CEAvi::~CEAvi()
{
    Close();
    Avi().exitLibrary();
}

int CEAvi::Open(CString path)
{
    Close();
    m_path = path;
    m_number = 1;
    m_noXvid = false;
    return OpenFile(path);
}

int CEAvi::OpenFile(const CString& path)
{
    std::unique_ptr<AviFile> file;
    const HRESULT result = AviFile::Create(path, file);
    if (!file) {
        Vant::Alarm(cannotOpen, alarmLevel, L"Cannot open avi file %s - %s", static_cast<LPCWSTR>(path),
                    static_cast<LPCWSTR>(ErrStr(static_cast<int>(result))));
        return 0;
    }
    m_file = std::move(file);
    m_frames = 0;
    return 1;
}

int CEAvi::AddDib(HBITMAP bitmap)
{
    if (!m_file)
        return Fail(notOpen, L"Cannot add bitmap - avi not open");
    if (!bitmap)
        return Fail(invalidHandle, L"Cannot add bitmap - invalid handle");
    const std::optional<DibFrame> frame = DibFrame::Of(bitmap);
    if (!frame)
        return Fail(notDib, L"Cannot add bitmap - not a valid DIB");
    if (!BeginFrames(*frame))
        return 0;
    if (!m_file->HasRoom(frame->Bytes()) && !ContinueInNext(*frame))
        return 0;

    const HRESULT result = m_file->Write(m_frames, *frame, m_headerFrames);
    if (FAILED(result))
        return Fail(cannotAdd, L"Cannot add bitmap to stream - %s", result);
    ++m_frames;
    return 1;
}

/** Makes the stream for frames like this one, or compares it with the stream that is there. */
int CEAvi::BeginStream(const DibFrame& frame)
{
    if (m_file->Stream())
        return FitsStream(frame, m_file->Section()) ? 1 : RefuseSize(frame, m_file->Section());
    const HRESULT result = m_file->CreateStream(frame);
    return SUCCEEDED(result) ? 1 : Fail(cannotCreateStream, L"Cannot create avi stream - %s", result);
}

/** Prepares the stream and its compression, once for a file. */
int CEAvi::BeginFrames(const DibFrame& frame)
{
    if (!BeginStream(frame))
        return 0;
    return m_file->IsReady() || Compress(frame.section);
}

/** The user's choice, or the default. */
bool CEAvi::Compress(const DIBSECTION& section)
{
    if (m_choice) {
        AVICOMPRESSOPTIONS options = m_choice->Options();
        HRESULT result = m_file->Compress(options);
        if (SUCCEEDED(result))
            result = m_file->SetFormat(section);
        if (SUCCEEDED(result))
            return true;
        Fail(choiceRefused, L"Cannot use the selected compression - %s", result);
        m_choice.reset();
    }
    return GenDefCmp(section) != 0;
}

int CEAvi::GenDefCmp(const DIBSECTION& section)
{
    if (!m_file)
        return Fail(notOpen, L"Cannot add bitmap - avi not open");
    AVICOMPRESSOPTIONS options{};
    options.fccType = streamtypeVIDEO;
    options.dwQuality = static_cast<DWORD>(ICQUALITY_DEFAULT);
    if (!m_noXvid) {
        options.fccHandler = mmioFOURCC('x', 'v', 'i', 'd');
        const HRESULT result = m_file->Compress(options);
        if (FAILED(result)) {
            Fail(noXvid, L"Cannot generate Xvid compression trying DIB - %s", result);
            m_noXvid = true;
        }
    }
    if (m_noXvid) {
        options.fccHandler = comptypeDIB;
        const HRESULT result = m_file->Compress(options);
        if (FAILED(result))
            return Fail(noCompression, L"Failed to generate compression - %s", result);
    }
    const HRESULT result = m_file->SetFormat(section);
    return SUCCEEDED(result) ? 1 : Fail(cannotSetCompression, L"Failed to set the compression - %s", result);
}

/** Goes on in the next file that does not exist yet. The full one is closed once that is there. */
int CEAvi::ContinueInNext(const DibFrame& frame)
{
    constexpr int lastNumber = 9999;
    int number = m_number + 1;
    while (number <= lastNumber && Exists(NumberedPath(m_path, number)))
        ++number;
    if (number > lastNumber)
        return Fail(noFreeName, L"Cannot add bitmap - no free name for the next avi file");

    const CString full = m_file->Path();
    const CString next = NumberedPath(m_path, number);
    if (!OpenFile(next))
        return 0;
    m_number = number;
    Vant::Console(0, L"Video file %s is full; it continues in %s", static_cast<LPCWSTR>(full),
                  static_cast<LPCWSTR>(next));
    return BeginFrames(frame);
}

int CEAvi::SelectCmp(HBITMAP bitmap)
{
    const std::optional<DibFrame> frame = DibFrame::Of(bitmap);
    if (!frame)
        return Fail(notDib, L"Cannot add bitmap - not a valid DIB");
    if (!m_file)
        return Fail(notOpen, L"Cannot add bitmap - avi not open");
    if (m_file->IsReady())
        return Fail(choiceTooLate, L"Cannot select the compression - the video has begun");
    if (!BeginStream(*frame))
        return 0;

    AVICOMPRESSOPTIONS options{};
    const bool chosen = Avi().chooseOptions(::GetActiveWindow(), m_file->Stream(), &options);
    if (chosen)
        m_choice = std::make_unique<CmpOptions>(options);
    Avi().freeOptions(&options);
    return chosen;
}

void CEAvi::Close()
{
    m_file.reset();
    m_frames = 0;
}

CString CEAvi::ErrStr(int result)
{
    constexpr unsigned aviErrors = 0x80044000;
    switch (static_cast<unsigned>(result)) {
    case 0:
        return L"Success";
    case aviErrors + 101:
        return L"AVIERR_UNSUPPORTED: compression is not supported for this type of data";
    case aviErrors + 102:
        return L"AVIERR_BADFORMAT: corrupt file or unrecognized format";
    case aviErrors + 103:
        return L"AVIERR_MEMORY: insufficient memory";
    case aviErrors + 104:
        return L"AVIERR_INTERNAL: internal error";
    case aviErrors + 105:
        return L"AVIERR_BADFLAGS";
    case aviErrors + 106:
        return L"AVIERR_BADPARAM";
    case aviErrors + 107:
        return L"AVIERR_BADSIZE";
    case aviErrors + 108:
        return L"AVIERR_BADHANDLE";
    case aviErrors + 109:
        return L"AVIERR_FILEREAD: disk error while reading file";
    case aviErrors + 110:
        return L"AVIERR_FILEWRITE: disk error while writing file";
    case aviErrors + 111:
        return L"AVIERR_FILEOPEN: disk error while opening file";
    case aviErrors + 112:
        return L"AVIERR_COMPRESSOR";
    case aviErrors + 113:
        return L"AVIERR_NOCOMPRESSOR: a suitable compressor could not be found";
    case aviErrors + 114:
        return L"AVIERR_READONLY: file is read-only";
    case aviErrors + 115: // no data: deliberately the label of the one before
        return L"AVIERR_READONLY";
    case aviErrors + 116:
        return L"AVIERR_BUFFERTOOSMALL";
    case aviErrors + 117:
        return L"AVIERR_CANTCOMPRESS";
    case aviErrors + 198:
        return L"AVIERR_USERABORT";
    case aviErrors + 199:
        return L"AVIERR_ERROR";
    case static_cast<unsigned>(REGDB_E_CLASSNOTREG):
        return L"REGDB_E_CLASSNOTREG: file type not recognised";
    default:
        return L"unknown avi result code";
    }
}
