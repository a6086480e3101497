// Settings that this program did not write, or not to the end.
#include "demo/session/DemoSettings.h"
#include "firstuse/FirstUse.h"

namespace
{

using testing::HasSubstr;

constexpr const char* file = "VantDemo.xml";

std::string NewerSettings()
{
    return "<Format val=\"99\"/>\r\n<DepthSpan val=\"300\"/>\r\n<Units val=\"nautical\"/>\r\n"
           "<Gain val=\"0x1.8p3\"/>\r\n<Halo val=\"3\"/>\r\n<Data>of a newer kind</Data>\r\n";
}

std::string Noise()
{
    std::string bytes;
    unsigned state = 12345;
    for (int i = 0; i < 20000; ++i)
        bytes.push_back(static_cast<char>((state = state * 1664525 + 1013904223) >> 24));
    return bytes;
}

} // namespace

TEST_F(FirstUse, ANewerProgramsSettingsAreUsedAndKept)
{
    PutSettings(m_dir, NewerSettings());
    const std::string newer = Contents(m_dir / file);
    Program program(m_dir, L"--seconds 0.3 --out .");
    EXPECT_EQ(0, program.ExitCode());
    EXPECT_THAT(program.Err(), HasSubstr("are a newer program's"));
    EXPECT_THAT(program.Err(), HasSubstr("VantDemo.newer.xml'"));
    EXPECT_EQ(1, Lines(program.Err())) << program.Err();
    EXPECT_EQ(newer, Contents(m_dir / "VantDemo.newer.xml"));
    const std::string settings = Contents(m_dir / file);
    EXPECT_EQ("300", Item(settings, "DepthSpan"));
    EXPECT_EQ("0", Item(settings, "Units")) << "what cannot be read is as usual";
    EXPECT_EQ("1", Item(settings, "Format"));
}

TEST_F(FirstUse, DamagedSettingsAreCopiedBeforeTheyAreReplaced)
{
    PutSettings(m_dir, "<Format val=\"1\"/>\r\n<DepthSpan val=\"300\"/>\r\n<Units val=\"1\"/>\r\n");
    const std::string whole = Contents(m_dir / file);
    const struct {
        std::string bytes;
        const char* copy; // null: there is nothing to keep
        double depthSpan;
    } cases[] = {
        {whole, nullptr, 300},
        {whole.substr(0, whole.find("<Units")), "VantDemo.damaged.xml", 300},
        {Noise(), "VantDemo.damaged-2.xml", 120},
        {" \r\n", nullptr, 120},
    };
    const CString path((m_dir / file).c_str());
    for (const auto& c : cases) {
        SCOPED_TRACE(c.bytes.size());
        std::ofstream(m_dir / file, std::ios::binary) << c.bytes;
        demo::DemoSettings settings;
        const demo::SettingsFound found = settings.Load(path);
        EXPECT_EQ(c.depthSpan, settings.depthSpan);
        EXPECT_EQ(c.copy == nullptr, found.trouble.empty());
        if (c.copy) {
            EXPECT_EQ((m_dir / c.copy).wstring(), found.kept);
            EXPECT_EQ(c.bytes, Contents(m_dir / c.copy));
        }
        EXPECT_TRUE(settings.Save(path));
        EXPECT_EQ("1", Item(Contents(m_dir / file), "Format"));
    }
}

TEST_F(FirstUse, SettingsThatCannotBeReadAreLeftAlone)
{
    PutSettings(m_dir);
    const fs::path path = m_dir / file;
    const std::string before = Contents(path);
    const HANDLE lock =
        ::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, lock);
    demo::DemoSettings settings;
    const demo::SettingsFound found = settings.Load(path.c_str());
    ::CloseHandle(lock); // now it could be written
    EXPECT_TRUE(found.isThere);
    EXPECT_NE(std::wstring::npos, found.trouble.find(L"left as they are"));
    EXPECT_TRUE(settings.Save(path.c_str())) << "no second message at the end";
    EXPECT_EQ(before, Contents(path));
}
