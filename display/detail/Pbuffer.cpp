#include "display/detail/Pbuffer.h"

#include "display/detail/GLCalls.h"
#include "platform/Vant.h"

#include <string_view>

namespace vant::detail
{

namespace
{

// Attributes of the extensions WGL_ARB_pixel_format, WGL_ARB_pbuffer and WGL_ARB_render_texture.
constexpr int supportOpenGL = 0x2010;
constexpr int doubleBuffer = 0x2011;
constexpr int redBits = 0x2015;
constexpr int greenBits = 0x2017;
constexpr int blueBits = 0x2019;
constexpr int alphaBits = 0x201B;
constexpr int depthBits = 0x2022;
constexpr int drawToPbuffer = 0x202D;
constexpr int pbufferWidth = 0x2034;
constexpr int pbufferHeight = 0x2035;
constexpr int bindToTextureRgba = 0x2071;
constexpr int textureFormat = 0x2072;
constexpr int textureTarget = 0x2073;
constexpr int textureRgba = 0x2076;
constexpr int texture2D = 0x207A;

constexpr int formatWanted[] = {supportOpenGL, 1,  drawToPbuffer, 1, redBits,   8,
                                blueBits,      8,  greenBits,     8, alphaBits, 8,
                                depthBits,     16, doubleBuffer,  0, 0};

constexpr int alarmLevel = 1;

bool Fail(LPCWSTR text)
{
    Vant::Alarm(0, alarmLevel, text);
    return false;
}

/** Whether one of the names, parted by blanks, is this one; the names of other extensions begin with it. */
bool HasExtension(std::string_view names, std::string_view name)
{
    for (std::size_t at = names.find(name); at != names.npos; at = names.find(name, at + 1)) {
        const std::size_t end = at + name.size();
        if ((at == 0 || names[at - 1] == ' ') && (end == names.size() || names[end] == ' '))
            return true;
    }
    return false;
}

/** Looks up what has not been found yet. */
template <class Entry>
bool LookUp(Entry& entry, LPCSTR name)
{
    if (!entry)
        entry = reinterpret_cast<Entry>(GL().lookUp(name));
    return entry != nullptr;
}

/** Asks for each attribute alone, so that the alarms tell which one the driver cannot give. */
void Diagnose(HDC dc)
{
    struct Question {
        unsigned long alarm;
        int attribute;
        int value;
    };
    static constexpr Question questions[] = {
        {8801, supportOpenGL, 1}, {8802, drawToPbuffer, 1}, {8803, bindToTextureRgba, 1},
        {8804, redBits, 8},       {8805, blueBits, 8},      {8806, greenBits, 8},
        {8807, alphaBits, 8},     {8808, depthBits, 16},    {8809, doubleBuffer, 0},
    };
    for (const Question& question : questions) {
        const int alone[] = {question.attribute, question.value, 0};
        int format = 0;
        UINT count = 0;
        if (!Pbuffers().choosePixelFormat(dc, alone, nullptr, 1, &format, &count))
            count = 0;
        Vant::Alarm(question.alarm, alarmLevel, L"CGLWnd::InitPB %d", static_cast<int>(count));
    }
}

int Query(PbufferHandle handle, int attribute)
{
    int value = 0;
    return Pbuffers().queryPbuffer(handle, attribute, &value) ? value : 0;
}

} // namespace

PbufferCalls& Pbuffers() noexcept
{
    static constinit PbufferCalls calls{};
    return calls;
}

bool LookUpPbuffers(HDC dc)
{
    PbufferCalls& calls = Pbuffers();
    if (!LookUp(calls.getExtensionsString, "wglGetExtensionsStringARB"))
        return Fail(L"Could not get wgl extensions");
    const char* const text = calls.getExtensionsString(dc);
    const std::string_view extensions = text ? text : "";

    if (!HasExtension(extensions, "WGL_ARB_pbuffer"))
        return Fail(L"PBuffer not supported");
    const bool hasAll = LookUp(calls.createPbuffer, "wglCreatePbufferARB") &&
                        LookUp(calls.getPbufferDC, "wglGetPbufferDCARB") &&
                        LookUp(calls.releasePbufferDC, "wglReleasePbufferDCARB") &&
                        LookUp(calls.destroyPbuffer, "wglDestroyPbufferARB") &&
                        LookUp(calls.queryPbuffer, "wglQueryPbufferARB");
    if (!hasAll)
        return Fail(L"Could not find one or all function pointers for pbuffer");

    if (!HasExtension(extensions, "WGL_ARB_pixel_format"))
        return Fail(L"Could not get wgl pixel format");
    if (!LookUp(calls.choosePixelFormat, "wglChoosePixelFormatARB"))
        return Fail(L"Could not get a valid function for pixel format");
    return true;
}

std::unique_ptr<Pbuffer> Pbuffer::Create(HDC dc, int width, int height)
{
    int format = 0;
    UINT count = 0;
    if (!Pbuffers().choosePixelFormat(dc, formatWanted, nullptr, 1, &format, &count) || !count) {
        Fail(L"Could not get a valid pixel format");
        Diagnose(dc);
        return nullptr;
    }
    constexpr int asTexture[] = {textureFormat, textureRgba, textureTarget, texture2D, 0};
    const PbufferHandle handle = Pbuffers().createPbuffer(dc, format, width, height, asTexture);
    std::unique_ptr<Pbuffer> made(handle ? new Pbuffer(handle) : nullptr);
    if (!made || !made->m_rc) {
        Fail(L"Could not create pbuffer context");
        return nullptr;
    }
    if (Query(handle, pbufferWidth) != width || Query(handle, pbufferHeight) != height) {
        Fail(L"Widths and heights of pbuffer are not matching");
        return nullptr;
    }
    return made;
}

Pbuffer::Pbuffer(PbufferHandle handle)
    : m_handle(handle)
    , m_dc(Pbuffers().getPbufferDC(handle))
    , m_rc(m_dc ? GL().createContext(m_dc) : nullptr)
{
}

Pbuffer::~Pbuffer()
{
    if (m_rc)
        GL().deleteContext(m_rc);
    if (m_dc)
        Pbuffers().releasePbufferDC(m_handle, m_dc);
    Pbuffers().destroyPbuffer(m_handle);
}

} // namespace vant::detail
