#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "resources/Ids.h"
#include "resources/Library.h"

namespace
{

template <typename T>
T At(std::span<const std::byte> bytes, std::size_t offset)
{
    T value{};
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}

constexpr std::size_t headerSize = 44;
constexpr int rate = 44100;

struct Expected {
    int id;
    double seconds;
};

} // namespace

TEST(Sounds, AreShortPcmThatStartsAndEndsInSilence)
{
    for (const auto& [id, seconds] :
         {Expected{VANT_IDW_CONFIRM, 0.42}, Expected{VANT_IDW_ALARM, 1.32}, Expected{VANT_IDW_CLICK, 0.06},
          Expected{VANT_IDW_NOTICE, 0.85}, Expected{VANT_IDW_REFUSE, 0.44}}) {
        SCOPED_TRACE(id);
        const auto wave = ResourceBytes(id, L"WAVE");
        ASSERT_GT(wave.size(), headerSize);
        EXPECT_EQ(std::memcmp(wave.data(), "RIFF", 4), 0);
        EXPECT_EQ(std::memcmp(wave.data() + 8, "WAVEfmt ", 8), 0);
        const auto size = At<std::uint32_t>(wave, 40);
        ASSERT_EQ(size + headerSize, wave.size());
        EXPECT_EQ(At<std::uint32_t>(wave, 4) + 8, wave.size());
        EXPECT_EQ(At<std::uint16_t>(wave, 20), 1) << "not PCM";
        EXPECT_EQ(At<std::uint16_t>(wave, 22), 1) << "not mono";
        EXPECT_EQ(At<std::uint32_t>(wave, 24), std::uint32_t{rate});
        EXPECT_EQ(At<std::uint16_t>(wave, 34), 16);
        EXPECT_NEAR(size / 2.0 / rate, seconds, 0.001);

        std::vector<std::int16_t> samples(size / 2);
        std::memcpy(samples.data(), wave.data() + headerSize, size);
        int loudest = 0, step = 0;
        for (std::size_t i = 0; i < samples.size(); ++i) {
            loudest = std::max(loudest, std::abs(int{samples[i]}));
            if (i > 0)
                step = std::max(step, std::abs(samples[i] - samples[i - 1]));
        }
        EXPECT_LT(std::abs(int{samples.front()}), 8) << "starts with a click";
        EXPECT_LT(std::abs(int{samples.back()}), 8) << "ends with a click";
        EXPECT_GT(loudest, 10000);
        EXPECT_LT(loudest, 30000) << "close to clipping";
        EXPECT_LT(step, loudest) << "jumps within the sound";
    }
}
