#pragma once

#include "demo/detail/Playback.h"
#include "demo/detail/Tape.h"

#include <cstddef>

namespace demo
{

/** Hands the sentences that have been played to the library's console of the communications traffic. */
class SentenceFeed
{
public:
    static constexpr int damagedLevel = 9000; ///< of sentences that were rejected; the others have level 0

    /** The sentences since the last call, in their order. After a rewind it begins anew. */
    void Feed(const Tape& tape, const Playback& playback);

private:
    std::size_t m_next = 0;
};

} // namespace demo
