#include "demo/detail/Options.h"

#include "demo/detail/Text.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>

namespace demo
{
namespace
{

/** A decimal number that fills the text; a decimal point, whatever the system's language. */
std::optional<double> Number(std::wstring_view text)
{
    std::string narrow;
    for (const wchar_t c : text) {
        if (c < 0x20 || c > 0x7E)
            return std::nullopt;
        narrow.push_back(static_cast<char>(c));
    }
    double value = 0.0;
    const char* const end = narrow.data() + narrow.size();
    const auto [stop, error] = std::from_chars(narrow.data(), end, value, std::chars_format::fixed);
    if (error != std::errc() || stop != end || !(value - value == 0.0))
        return std::nullopt;
    return value;
}

struct NumberOption {
    std::wstring_view name;
    double Options::*member;
    double low;
    double high;
    const wchar_t* range;
};

constexpr NumberOption numberOptions[] = {
    {L"--seconds", &Options::seconds, 0.0, Options::maxSeconds, L"from 0 to 604800"},
    {L"--rate", &Options::rate, Options::minRate, Options::maxRate, L"from 0.1 to 200"},
};

struct TextOption {
    std::wstring_view name;
    std::wstring Options::*member;
};

constexpr TextOption textOptions[] = {
    {L"--log", &Options::log},
    {L"--out", &Options::out},
};

} // namespace

Options Options::Parse(std::span<const std::wstring_view> arguments)
{
    Options result;
    const auto fail = [&result](std::wstring text) {
        result.error = std::move(text);
        return result;
    };

    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::wstring_view name = arguments[i];
        if (name == L"--help" || name == L"-h" || name == L"/?") {
            result.help = true;
            return result;
        }
        if (name == L"--script" || name == L"--tour") {
            (name == L"--script" ? result.script : result.tour) = true;
            if (result.script && result.tour)
                return fail(L"--script and --tour exclude each other");
            continue;
        }
        if (name == L"--no-pbuffers") {
            result.pbuffers = false;
            continue;
        }
        const auto isName = [name](const auto& option) { return option.name == name; };
        const auto* const number = std::ranges::find_if(numberOptions, isName);
        const auto* const text = std::ranges::find_if(textOptions, isName);
        if (number == std::end(numberOptions) && text == std::end(textOptions))
            return fail((name.starts_with(L'-') ? L"unknown option " : L"unexpected argument ") +
                        Quoted(name));
        if (i + 1 == arguments.size() || arguments[i + 1].empty() || arguments[i + 1].starts_with(L"--"))
            return fail(std::wstring(name) + L" needs a value");

        const std::wstring_view value = arguments[++i];
        if (text != std::end(textOptions)) {
            result.*text->member = value;
            result.usualOut = result.usualOut && text->member != &Options::out;
            continue;
        }
        const std::optional<double> parsed = Number(value);
        if (!parsed)
            return fail(std::wstring(name) + L" needs a number, not " + Quoted(value));
        if (*parsed < number->low || *parsed > number->high)
            return fail(std::wstring(name) + L" must be " + number->range);
        result.*number->member = *parsed;
    }
    return result;
}

const char* Options::Help() noexcept
{
    return "VantDemo plays a survey boat's instruments from a recorded NMEA 0183 log.\n"
           "\n"
           "  --seconds N   run for N seconds, then save a picture and end; 0 runs until the\n"
           "                window is closed (default 20)\n"
           "  --rate R      play R seconds of the log in each second (default 10)\n"
           "  --log FILE    the log to play (default: the survey that comes with the program)\n"
           "  --out DIR     where settings, pictures and logs go (default: out, or VantDemo in the\n"
           "                user's local application data where out cannot be written); where this\n"
           "                cannot be written either, the program runs and keeps nothing\n"
           "  --script      try the controls with the mouse and the keys, say what happened, and\n"
           "                end when that is done and the seconds are over\n"
           "  --no-pbuffers take the views' pictures from the screen: for graphics drivers that\n"
           "                offer pixel buffers but cannot draw into them\n"
           "  --tour        show everything for a minute, leave it as a film and six pictures, and\n"
           "                end; the settings stay as they are\n"
           "  --help        show this text\n"
           "\n"
           "Started a second time for the same directory, the program shows the window that is there\n"
           "and ends; with directories of their own, several run side by side.\n"
           "\n"
           "Exit code 0 after a run, 1 when something could not be written, 2 when an argument or\n"
           "the log is no good, 3 when a step of the script or of the tour failed, 4 when the program\n"
           "runs already.\n";
}

} // namespace demo
