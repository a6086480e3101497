#pragma once

#include <span>
#include <string>
#include <string_view>

namespace demo
{

/** The command line: what it may say, and the values where it says nothing. */
struct Options {
    static constexpr double maxSeconds = 7.0 * 86400.0;
    static constexpr double minRate = 0.1;
    static constexpr double maxRate = 200.0;

    double seconds = 20.0;     ///< how long the display runs; 0 until it is closed
    double rate = 10.0;        ///< seconds of the log in each second of the display
    std::wstring log;          ///< log to play; empty for the one that comes with the program
    std::wstring out = L"out"; ///< directory for everything that is written
    bool usualOut = true;      ///< it was not asked for: another one will do
    bool script = false;       ///< the program tries its own controls and checks what they do
    bool pbuffers = true;      ///< pictures of the views are drawn apart, where the driver can
    bool tour = false;         ///< the program shows itself for a minute and films that
    bool help = false;
    std::wstring error; ///< empty, or one line that says what is wrong with the command line

    /** Reads the arguments behind the program's name. The first mistake ends the reading. */
    static Options Parse(std::span<const std::wstring_view> arguments);

    /** The text of --help, lines ended by a line feed. */
    static const char* Help() noexcept;
};

} // namespace demo
