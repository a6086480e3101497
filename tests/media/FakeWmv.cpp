#include "media/FakeWmv.h"

#include "media/detail/WmvWriter.h"

#include <cstring>

using namespace vant::detail;

namespace
{

FakeWmv fake;

constexpr GUID audio{0x73647561, 0x0000, 0x0010, {0x80, 0x00, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};

/** Reference counting of an interface; the last reference ends the object. */
template <class Interface>
class Object : public Interface
{
public:
    Object() { ++fake.objects; }
    virtual ~Object() { --fake.objects; }
    ULONG WINAPI AddRef() override { return ++m_references; }
    ULONG WINAPI Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }
    HRESULT WINAPI QueryInterface(REFIID, void** object) override
    {
        *object = nullptr;
        return E_NOINTERFACE;
    }

private:
    ULONG m_references = 1;
};

class Buffer : public Object<INSSBuffer>
{
public:
    explicit Buffer(DWORD size)
        : m_bytes(size)
    {
    }
    std::vector<unsigned char> Contents() const { return {m_bytes.begin(), m_bytes.begin() + m_length}; }

    HRESULT WINAPI SetLength(DWORD length) override
    {
        m_length = length;
        return length <= m_bytes.size() ? S_OK : E_INVALIDARG;
    }
    HRESULT WINAPI GetBuffer(BYTE** bytes) override
    {
        *bytes = m_bytes.data();
        return S_OK;
    }
    HRESULT WINAPI GetLength(DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetMaxLength(DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetBufferAndLength(BYTE**, DWORD*) override { return E_NOTIMPL; }

private:
    std::vector<unsigned char> m_bytes;
    DWORD m_length = 0;
};

class Input : public Object<IWMInputMediaProps>
{
public:
    explicit Input(const GUID& major, const GUID& subtype = {})
    {
        m_type.majortype = major;
        m_type.subtype = subtype;
    }
    const WM_MEDIA_TYPE& Type() const { return m_type; }
    const WmvVideoFormat& Format() const { return m_format; }

    HRESULT WINAPI GetType(GUID* type) override
    {
        *type = m_type.majortype;
        return fake.Step("GetType");
    }
    HRESULT WINAPI GetMediaType(WM_MEDIA_TYPE* type, DWORD* size) override
    {
        constexpr DWORD needed = sizeof m_type + sizeof m_format;
        if (type && *size >= needed) {
            *type = m_type;
            type->cbFormat = sizeof m_format;
            type->pbFormat = reinterpret_cast<BYTE*>(type + 1);
            std::memcpy(type->pbFormat, &m_format, sizeof m_format);
        }
        *size = needed;
        return S_OK;
    }
    HRESULT WINAPI SetMediaType(WM_MEDIA_TYPE* type) override
    {
        m_type = *type;
        std::memcpy(&m_format, type->pbFormat, sizeof m_format);
        return fake.Step("SetMediaType");
    }
    HRESULT WINAPI GetConnectionName(WCHAR*, WORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetGroupName(WCHAR*, WORD*) override { return E_NOTIMPL; }

private:
    WM_MEDIA_TYPE m_type{};
    WmvVideoFormat m_format{};
};

class Manager : public Object<IWMProfileManager2>
{
public:
    HRESULT WINAPI QueryInterface(REFIID id, void** object) override
    {
        *object = nullptr;
        const HRESULT result = fake.Step("QueryInterface");
        if (FAILED(result) || !::IsEqualGUID(id, __uuidof(IWMProfileManager2)))
            return E_NOINTERFACE;
        AddRef();
        *object = static_cast<IWMProfileManager2*>(this);
        return S_OK;
    }
    HRESULT WINAPI SetSystemProfileVersion(WMT_VERSION version) override
    {
        return version == WMT_VER_9_0 ? fake.Step("SetSystemProfileVersion") : E_INVALIDARG;
    }
    HRESULT WINAPI LoadProfileByData(const WCHAR* text, IWMProfile** profile) override
    {
        fake.profile = text;
        const HRESULT result = fake.Step("LoadProfileByData");
        // Nothing is asked of a profile but to go.
        *profile = SUCCEEDED(result) ? reinterpret_cast<IWMProfile*>(new Object<IUnknown>) : nullptr;
        return result;
    }
    HRESULT WINAPI GetSystemProfileVersion(WMT_VERSION*) override { return E_NOTIMPL; }
    HRESULT WINAPI CreateEmptyProfile(WMT_VERSION, IWMProfile**) override { return E_NOTIMPL; }
    HRESULT WINAPI LoadProfileByID(REFGUID, IWMProfile**) override { return E_NOTIMPL; }
    HRESULT WINAPI SaveProfile(IWMProfile*, WCHAR*, DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI GetSystemProfileCount(DWORD*) override { return E_NOTIMPL; }
    HRESULT WINAPI LoadSystemProfile(DWORD, IWMProfile**) override { return E_NOTIMPL; }
};

class Writer : public Object<IWMWriter>
{
public:
    HRESULT WINAPI SetProfileByID(REFGUID) override { return E_NOTIMPL; }
    HRESULT WINAPI SetProfile(IWMProfile* profile) override
    {
        return profile ? fake.Step("SetProfile") : E_INVALIDARG;
    }
    HRESULT WINAPI SetOutputFilename(const WCHAR* name) override
    {
        fake.file = name;
        return fake.Step("SetOutputFilename");
    }
    HRESULT WINAPI GetInputCount(DWORD* count) override
    {
        *count = static_cast<DWORD>(fake.inputs.size());
        return fake.Step("GetInputCount");
    }
    HRESULT WINAPI GetInputProps(DWORD number, IWMInputMediaProps** input) override
    {
        const HRESULT result = fake.Step("GetInputProps");
        *input = SUCCEEDED(result) ? new Input(fake.inputs[number] ? wmvVideo : audio) : nullptr;
        return result;
    }
    HRESULT WINAPI SetInputProps(DWORD number, IWMInputMediaProps* props) override
    {
        const auto* input = static_cast<Input*>(props);
        fake.formatInput = number;
        fake.type = input->Type();
        fake.format = input->Format().bitmap;
        return fake.Step("SetInputProps");
    }
    HRESULT WINAPI GetInputFormatCount(DWORD number, DWORD* count) override
    {
        *count = fake.inputs[number] ? static_cast<DWORD>(fake.subtypes.size()) : 0;
        return S_OK;
    }
    HRESULT WINAPI GetInputFormat(DWORD, DWORD number, IWMInputMediaProps** input) override
    {
        *input = new Input(wmvVideo, fake.subtypes[number]);
        return S_OK;
    }
    HRESULT WINAPI BeginWriting() override { return fake.Step("BeginWriting"); }
    HRESULT WINAPI EndWriting() override { return fake.Step("EndWriting"); }
    HRESULT WINAPI AllocateSample(DWORD size, INSSBuffer** sample) override
    {
        const HRESULT result = fake.Step("AllocateSample");
        *sample = SUCCEEDED(result) ? new Buffer(size) : nullptr;
        return result;
    }
    HRESULT WINAPI WriteSample(DWORD number, QWORD time, DWORD, INSSBuffer* sample) override
    {
        const HRESULT result = fake.Step("WriteSample");
        if (SUCCEEDED(result))
            fake.samples.push_back({number, time, static_cast<Buffer*>(sample)->Contents()});
        return result;
    }
    HRESULT WINAPI Flush() override { return E_NOTIMPL; }
};

} // namespace

HRESULT FakeWmv::Step(const char* name)
{
    steps.emplace_back(name);
    return refuse == name ? E_NOTIMPL : S_OK;
}

FakeWmv& FakeWmv::Install()
{
    fake = {};
    fake.inputs = {false, true};
    fake.subtypes = {wmvRgb24, wmvRgb32};
    Wmv().createProfileManager = [](IWMProfileManager** manager) {
        const HRESULT result = fake.Step("WMCreateProfileManager");
        *manager = SUCCEEDED(result) ? new Manager : nullptr;
        return result;
    };
    Wmv().createWriter = [](IWMWriter** writer) {
        const HRESULT result = fake.Step("WMCreateWriter");
        *writer = SUCCEEDED(result) ? new Writer : nullptr;
        return result;
    };
    Wmv().now = [] { return fake.clock; };
    return fake;
}
