#pragma once

#include "core/VantApi.h"

#include <afx.h>

#include <cstddef>
#include <string>
#include <string_view>

/** @file
 *  Appending to text files, for those who want to know what became of it. */

namespace vant::detail
{

/** A text in the system's 8-bit code page. */
VANT_API std::string CodePageBytes(const CString& text);

/** What became of an append. */
struct Appended {
    std::size_t written = 0; ///< bytes that reached the file
    bool isWhole = false;    ///< all of them did
    bool isTold = false;     ///< an alarm told that they did not
};

/** Appends to a file, and makes it and its directory where they are missing.
 *  @param text  the bytes' text as alarm 6010 tells it; null for no alarm. There is none either while this
 * thread raises one: its own line may fail for the same reason. */
VANT_API Appended Append(const CString& file, std::string_view bytes, const CString* text);

} // namespace vant::detail
