// Feeds bytes to the reader of models as the library does, makes what was read ready for drawing, and checks
// what must hold whatever the bytes are: what tests/display/ModelCheck.h lists, the bounds of memory, and the
// time that an input takes.

#include "display/detail/Read3ds.h"
#include "tests/display/ModelCheck.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

namespace
{

void Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

/** Measures the processor time of each input, and tells the longest at the end. */
class Slowest
{
public:
    ~Slowest() { std::fprintf(stderr, "slowest input: %.1f ms\n", m_longest); }

    void Note(std::clock_t begin)
    {
        constexpr double limit = 100; // ms, with the sanitizers at work
        const double taken = 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
        m_longest = std::max(m_longest, taken);
        Require(taken < limit, "less than 100 ms for an input");
    }

private:
    double m_longest = 0;
};

Slowest slowest;

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
