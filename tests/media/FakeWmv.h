#pragma once

#include "media/detail/WmvCalls.h"

#include <string>
#include <vector>

/** Stands in for Windows Media: records what is asked of it, refuses one step, and counts its objects. */
struct FakeWmv {
    struct Sample {
        DWORD input;
        unsigned long long time; // units of 100 ns
        std::vector<unsigned char> pixels;
    };

    // What it is like
    std::string refuse;           ///< the step that fails
    std::vector<bool> inputs;     ///< whether each is the video
    std::vector<GUID> subtypes;   ///< that the video input takes
    unsigned long long clock = 0; ///< units of 100 ns

    // What was asked
    std::vector<std::string> steps;
    std::wstring profile;
    std::wstring file;
    DWORD formatInput = 0;
    WM_MEDIA_TYPE type{};
    BITMAPINFOHEADER format{};
    std::vector<Sample> samples;
    int objects = 0; ///< that are alive

    HRESULT Step(const char* name);
    /** Puts it in the place of the system's. */
    static FakeWmv& Install();
};
