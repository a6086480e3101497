#pragma once

#include <VantCore.h>

#include <afxdlgs.h>
#include <atlimage.h>

#include <gtest/gtest.h>

/** @param imported  the constant as a client's reference finds it: in the DLL, for an exported class
 *  @param value     the constant as the header has it */
template <class T>
void CheckReference(const T& imported, T value)
{
    const T* volatile address = &imported; // volatile, or the compiler would put the value in its place
    EXPECT_EQ(*address, value);
}

inline void CheckReference(const LPCWSTR& imported, LPCWSTR value)
{
    const LPCWSTR* volatile address = &imported;
    EXPECT_STREQ(*address, value); // each module has the text for itself
}
