#include "platform/Vant.h"

unsigned char Vant::SwapByte(unsigned char value)
{
    return static_cast<unsigned char>(value << 4 | value >> 4);
}

unsigned short Vant::SwapWord(unsigned short value)
{
    return static_cast<unsigned short>(value << 8 | value >> 8);
}

unsigned long Vant::SwapDWord(unsigned long value)
{
    return value << 24 | (value & 0xFF00) << 8 | (value >> 8 & 0xFF00) | value >> 24;
}
