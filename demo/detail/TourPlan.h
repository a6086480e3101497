#pragma once

#include <cstddef>
#include <span>

namespace demo
{

/** A part of the tour: when it begins, and what is said of it meanwhile. */
struct Chapter {
    double begin; ///< seconds from the start of the tour
    const wchar_t* caption;
};

/** The parts of the tour, in their order. The first begins at 0. */
std::span<const Chapter> TourChapters() noexcept;

/** Length of the tour, seconds, however slow the machine is. */
inline constexpr double tourLength = 60.0;

/** Which part is on at a time; the first before the tour, the last after it. */
std::size_t ChapterAt(double t) noexcept;

/** When a part ends, seconds. */
double ChapterEnd(std::size_t chapter) noexcept;

} // namespace demo
