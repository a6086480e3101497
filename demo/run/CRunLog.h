#pragma once

#include "demo/detail/Playback.h"

#include <fstream>
#include <string_view>

namespace demo
{

/** The text file that tells what happened during a run, one line each with the time of day. Every line goes
 * to the library's console too. */
class CRunLog
{
public:
    /** Begins the file anew. @return false when it cannot be written */
    bool Open(const wchar_t* path);

    void Line(std::wstring_view text);

    /** A sensor's drop-out or return. */
    void Event(const SensorEvent& event);

    /** An alarm's beginning or end, with what it said. */
    void Alarm(const AlarmEvent& event, std::wstring_view text);

    bool IsGood() const { return m_file.good(); }

private:
    std::ofstream m_file;
};

} // namespace demo
