#pragma once

#include <afx.h>

namespace vant::test
{

/** A variable of every type that a value can be bound to, in no order of their codes. */
struct EveryType {
    void* pointer = nullptr;
    CString text;
    char c = 0;
    short s = 0;
    int i = 0;
    unsigned char uc = 0;
    unsigned short us = 0;
    unsigned int ui = 0;
    float f = 0;
    double d = 0;
    unsigned long ul = 0;
    __int64 i64 = 0;
};

} // namespace vant::test
