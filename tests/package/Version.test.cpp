#include <VantCore.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

/** What the version resource of a loaded module says. */
class Version
{
public:
    explicit Version(LPCWSTR module)
    {
        wchar_t path[MAX_PATH] = {};
        ::GetModuleFileNameW(::GetModuleHandleW(module), path, MAX_PATH);
        m_block.resize(::GetFileVersionInfoSizeW(path, nullptr));
        if (!m_block.empty() &&
            !::GetFileVersionInfoW(path, 0, static_cast<DWORD>(m_block.size()), m_block.data()))
            m_block.clear();
    }

    const VS_FIXEDFILEINFO* Fixed() const { return static_cast<const VS_FIXEDFILEINFO*>(Query(L"\\")); }

    std::wstring Text(const std::wstring& name) const
    {
        const void* const text = Query(L"\\StringFileInfo\\040904b0\\" + name);
        return text ? static_cast<const wchar_t*>(text) : L"";
    }

private:
    const void* Query(const std::wstring& name) const
    {
        void* value = nullptr;
        UINT size = 0;
        const bool isThere =
            !m_block.empty() && ::VerQueryValueW(m_block.data(), name.c_str(), &value, &size);
        return isThere && size > 0 ? value : nullptr;
    }

    std::vector<BYTE> m_block;
};

std::string Manifest(HMODULE module)
{
    const HRSRC found = ::FindResourceW(module, ISOLATIONAWARE_MANIFEST_RESOURCE_ID, RT_MANIFEST);
    if (!found)
        return {};
    return {static_cast<const char*>(::LockResource(::LoadResource(module, found))),
            ::SizeofResource(module, found)};
}

class VersionTest : public testing::TestWithParam<const wchar_t*>
{
};

} // namespace

TEST_P(VersionTest, PropertiesOfTheFileAgreeWithTheLibrary)
{
    const std::wstring name = GetParam();
    const Version version(name.c_str());
    ASSERT_NE(version.Fixed(), nullptr);
    const int major = HIWORD(version.Fixed()->dwFileVersionMS);
    const int minor = LOWORD(version.Fixed()->dwFileVersionMS);
    const std::wstring shown = Vant::swVer.GetString();
    EXPECT_EQ(shown.substr(0, 4),
              std::to_wstring(major) + (minor < 10 ? L".0" : L".") + std::to_wstring(minor));
    EXPECT_EQ(version.Text(L"ProductVersion"), shown);
    EXPECT_EQ(version.Text(L"FileVersion").substr(0, 4),
              std::to_wstring(major) + L"." + std::to_wstring(minor) + L".");
    EXPECT_EQ((version.Fixed()->dwFileFlags & VS_FF_PRERELEASE) != 0, shown.find(L'-') != std::wstring::npos);
    EXPECT_EQ(version.Fixed()->dwFileType, static_cast<DWORD>(VFT_DLL));
    EXPECT_EQ(version.Text(L"OriginalFilename"), name);
    EXPECT_FALSE(version.Text(L"FileDescription").empty());

    const std::string manifest = Manifest(::GetModuleHandleW(name.c_str()));
    const std::wstring fileVersion = version.Text(L"FileVersion");
    EXPECT_NE(manifest.find("version=\"" + std::string(fileVersion.begin(), fileVersion.end()) + "\""),
              std::string::npos)
        << manifest;
}

INSTANTIATE_TEST_SUITE_P(Dlls, VersionTest, testing::Values(L"VantCore.dll", L"VantAfx.dll"),
                         [](const auto& dll) {
                             const std::wstring name = dll.param;
                             return std::string(name.begin(), name.end() - 4);
                         });
