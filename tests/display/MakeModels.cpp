// Writes models as files.
//
//   make_models seeds FOLDER     what the fuzzer starts from; the committed ones are in fuzz/corpus/models
//   make_models NAME FILE        boat, cube, sphere, or sea: a million faces in 16 meshes

#include "tests/display/Models.h"

#include <fstream>
#include <functional>
#include <iostream>
#include <map>

namespace
{

bool Write(const std::string& path, const std::string& bytes)
{
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file)
        std::cerr << "make_models: cannot write " << path << "\n";
    return static_cast<bool>(file);
}

bool WriteSeeds(const std::string& folder)
{
    bool written = true;
    for (const support::ModelFile& file : support::SeedFiles())
        written = Write(folder + "/" + file.name, file.bytes) && written;
    return written;
}

} // namespace

int main(int count, char** arguments)
{
    const std::map<std::string, std::function<vant::detail::ModelData()>> models = {
        {"boat", [] { return support::Boat(40); }},
        {"cube", [] { return support::Cube(); }},
        {"sphere", [] { return support::Sphere(24, 48); }},
        {"sea", [] { return support::Sea(16, 178); }},
    };
    const std::string name = count == 3 ? arguments[1] : "";
    if (name == "seeds")
        return WriteSeeds(arguments[2]) ? 0 : 1;
    const auto model = models.find(name);
    if (model == models.end()) {
        std::cerr << "usage: make_models seeds FOLDER | boat FILE | cube FILE | sphere FILE | sea FILE\n";
        return 2;
    }
    return Write(arguments[2], support::Write3ds(model->second())) ? 0 : 1;
}
