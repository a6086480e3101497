#include "platform/PlatformTest.h"

TEST(VantBytes, SwapInsideBytesWordsAndDoubleWords)
{
    EXPECT_EQ(Vant::SwapByte(0x12), 0x21);
    EXPECT_EQ(Vant::SwapByte(0xF0), 0x0F);
    EXPECT_EQ(Vant::SwapWord(0x1234), 0x3412);
    EXPECT_EQ(Vant::SwapWord(0xFF00), 0x00FF);
    EXPECT_EQ(Vant::SwapDWord(0xAABBCCDD), 0xDDCCBBAAul);
    EXPECT_EQ(Vant::SwapDWord(0x000000FF), 0xFF000000ul);
    for (unsigned value = 0; value < 0x10000; ++value) {
        ASSERT_EQ(Vant::SwapWord(Vant::SwapWord(static_cast<unsigned short>(value))), value);
        ASSERT_EQ(Vant::SwapByte(Vant::SwapByte(static_cast<unsigned char>(value))), value & 0xFF);
    }
}
