// Writes the boat that the demonstration shows: make_boat FOLDER. What it writes is committed in demo/data.

#include "demo/model/SurveyBoat.h"

#include "tests/display/Models.h"

#include <fstream>
#include <iostream>

namespace
{

bool Write(const std::string& path, const std::string& bytes)
{
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file)
        std::cerr << "make_boat: cannot write " << path << "\n";
    return static_cast<bool>(file);
}

} // namespace

int main(int count, char** arguments)
{
    using namespace demo::model;
    if (count != 2) {
        std::cerr << "usage: make_boat FOLDER\n";
        return 2;
    }
    const std::string folder = std::string(arguments[1]) + "/";
    const bool written = Write(folder + "boat.3ds", support::Write3ds(SurveyBoat())) &&
                         Write(folder + hullPictureName, HullPicture()) &&
                         Write(folder + deckPictureName, DeckPicture());
    return written ? 0 : 1;
}
