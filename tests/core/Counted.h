#pragma once

/** An element that knows how many of its kind are alive, so that lost and twice-destroyed ones show. */
struct Counted {
    explicit Counted(int v = 0)
        : value(v)
    {
        ++alive;
    }
    Counted(const Counted& other)
        : value(other.value)
    {
        ++alive;
    }
    Counted& operator=(const Counted&) = default;
    ~Counted()
    {
        value = -1;
        --alive;
    }

    int value;
    static inline int alive = 0;
};
