// Colours: giving values their colours, against a table look-up with the same arithmetic in the caller's own
// loop; loading tables, against reading the bytes of their files and nothing else.
#include "Compare.h"
#include "Library.h"

#include "colour/CColTbl.h"
#include "colour/CPal.h"

#include <catch2/catch.hpp>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace
{

constexpr std::size_t samples = 10'000'000;
constexpr int entries = 256;
constexpr int tables = 200;

/** Depths around a range of 0 to 120, some of them beyond it. */
std::vector<double> Depths()
{
    std::vector<double> values(samples);
    std::mt19937 random(1);
    std::uniform_real_distribution<double> depth(-10, 130);
    std::generate(values.begin(), values.end(), [&] { return depth(random); });
    return values;
}

CRgb Entry(int i)
{
    return {static_cast<unsigned char>(i), static_cast<unsigned char>(255 - i), 7};
}

/** The least that gives every value its colour: no wrapping, and no value that is no number. */
void LookUp(const std::vector<double>& values, double start, double end,
            const std::array<CRgb, entries>& table, std::vector<CRgb>& colours)
{
    const double range = end - start;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double x = (values[i] - start) / range * entries;
        const int index = std::clamp(static_cast<int>(x + 0.5), 0, entries - 1);
        colours[i] = table[static_cast<std::size_t>(index)];
    }
}

class TableFiles
{
public:
    TableFiles()
        : m_dir(std::filesystem::temp_directory_path() /
                ("vant-bench-clt-" + std::to_string(::GetCurrentProcessId())))
    {
        std::filesystem::create_directories(m_dir);
        for (int table = 0; table < tables; ++table) {
            const std::string name = "table" + std::to_string(table);
            std::ofstream file(m_dir / (name + ".clt"));
            file << "COLOURTABLE " << entries << " \"" << name << "\"\n";
            for (int i = 0; i < entries; ++i)
                file << i << " " << 255 - i << " " << (i + table) % 256 << "\n";
        }
    }
    ~TableFiles()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_dir, ignored);
    }
    TableFiles(const TableFiles&) = delete;
    TableFiles& operator=(const TableFiles&) = delete;

    CString Dir() const { return m_dir.c_str(); }

private:
    std::filesystem::path m_dir;
};

/** @return how many files were read */
int ReadAll(const CString& dir)
{
    int count = 0;
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW(dir + L"\\*.clt", &found);
    do {
        const HANDLE file = ::CreateFileW(dir + L"\\" + found.cFileName, GENERIC_READ, FILE_SHARE_READ,
                                          nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
        std::vector<char> bytes(found.nFileSizeLow);
        DWORD read = 0;
        ::ReadFile(file, bytes.data(), found.nFileSizeLow, &read, nullptr);
        ::CloseHandle(file);
        Keep(bytes.data());
        count += read == found.nFileSizeLow && read > 0;
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
    return count;
}

} // namespace

TEST_CASE("colours of values")
{
    const std::vector<double> values = Depths();
    std::array<CRgb, entries> table;
    CPal pal(CPal::unlisted);
    for (int i = 0; i < entries; ++i)
        *pal.master.cols[static_cast<unsigned>(i)] = table[static_cast<std::size_t>(i)] = Entry(i);
    pal.end = 120;
    pal.Scroll(0);
    std::vector<CRgb> ours(samples);
    std::vector<CRgb> peers(samples);

    const Round inlined = [&](Stopwatch& watch) {
        watch.Measure([&] { LookUp(values, pal.start, pal.end, table, peers); });
        Keep(peers.data());
    };
    const Round span = [&](Stopwatch& watch) { watch.Measure([&] { pal.GetCols(values, ours); }); };
    Compare("colours: 10,000,000 values, GetCols (an inlined table look-up)", span, inlined,
            {.target = 1.2, .rounds = 21});
    REQUIRE(ours == peers);

    const Round single = [&](Stopwatch& watch) {
        watch.Measure([&] {
            for (std::size_t i = 0; i < samples; ++i)
                pal.GetCol(values[i], ours[i]);
        });
    };
    Compare("colours: 10,000,000 values, GetCol one by one (an inlined table look-up)", single, inlined,
            {.target = std::nullopt, .rounds = 21});
    REQUIRE(ours == peers);
}

TEST_CASE("colour tables")
{
    const Library library;
    const TableFiles files;
    const Round ours = [&](Stopwatch& watch) {
        CColTbl::s_colTbls.RemoveAll();
        watch.Measure([&] { CColTbl::EnumColTbls(files.Dir()); });
        REQUIRE(CColTbl::s_colTbls.GetCount() == tables);
        REQUIRE(*CColTbl::s_colTbls.GetTail()->cols[9] != CRgb());
    };
    const Round bytesAlone = [&](Stopwatch& watch) {
        int count = 0;
        watch.Measure([&] { count = ReadAll(files.Dir()); });
        REQUIRE(count == tables);
    };
    Compare("colours: loading 200 tables of 256 entries (the bytes alone)", ours, bytesAlone,
            {.target = std::nullopt, .rounds = 41});
    CColTbl::s_colTbls.RemoveAll();
}
