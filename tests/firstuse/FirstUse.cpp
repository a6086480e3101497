#include "firstuse/FirstUse.h"

#include <algorithm>

namespace
{

/** A directory that nobody has. The machines of these tests share a drive and count their processes each for
 * itself, so that a process's number alone would be another one's too. */
fs::path OwnDirectory()
{
    for (int number = 0;; ++number) {
        fs::path dir = fs::temp_directory_path() /
                       ("firstuse-" + std::to_string(::GetCurrentProcessId()) + "-" + std::to_string(number));
        if (fs::create_directory(dir))
            return dir;
    }
}

} // namespace

FirstUse::FirstUse()
    : m_dir(OwnDirectory())
{
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
