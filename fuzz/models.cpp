// Feeds bytes to the reader of models as the library does, makes what was read ready for drawing, and checks
// what must hold whatever the bytes are: what tests/display/ModelCheck.h lists, the bounds of memory, and the
// time that an input takes.

#include "display/detail/Read3ds.h"
#include "fuzz/Checks.h"
#include "tests/display/ModelCheck.h"

#include <cstdint>
#include <string>

namespace
{

Slowest slowest(100);

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vant::detail;
    const std::clock_t begin = std::clock();
    ModelData model;
    model.meshes.emplace_back(); // what was there before must not matter
    const ModelResult result = Read3ds(std::as_bytes(std::span(data, size)), model);
    Require(result == ModelResult::Read || (model.meshes.empty() && model.materials.empty()),
            "an empty model where there is none");
    Require(support::MemoryOf(model) <= support::MostMemory(size), "memory in proportion to the file");
    const std::string fault = support::FaultOf(model);
    Require(fault.empty(), fault.c_str());
    slowest.Note(begin);
    return 0;
}
