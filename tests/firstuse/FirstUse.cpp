#include "firstuse/FirstUse.h"

#include <algorithm>

FirstUse::FirstUse()
    : m_dir(fs::temp_directory_path() / (std::string("firstuse-") + std::to_string(::GetCurrentProcessId())))
{
    fs::create_directories(m_dir);
}

FirstUse::~FirstUse()
{
    std::error_code error;
    fs::remove_all(m_dir, error);
}

void FirstUse::PutSettings(const fs::path& dir, const std::string& more)
{
    fs::create_directories(dir);
    std::ofstream(dir / "VantDemo.xml", std::ios::binary)
        << "<?xml version=\"1.0\" ?>\r\n<Corvane date=\"\">\r\n<Collection name=\"VantDemo\">\r\n"
           "<Object name=\"Display\" type=\"DemoSettings\">\r\n<ChartOpen val=\"0\"/>\r\n"
           "<OrbitOpen val=\"0\"/>\r\n<ColoursOpen val=\"0\"/>\r\n"
        << more << "</Object>\r\n</Collection>\r\n</Corvane>\r\n";
}

std::ptrdiff_t Lines(const std::string& text)
{
    return std::count(text.begin(), text.end(), '\n');
}
