#pragma once

#include <cstdio>
#include <string>
#include <string_view>

/** "HEHDT,65.7,T" becomes "$HEHDT,65.7,T*1B". */
inline std::string Line(std::string_view body)
{
    int sum = 0;
    for (const char c : body)
        sum ^= static_cast<unsigned char>(c);
    char tail[8];
    std::snprintf(tail, sizeof tail, "*%02X", static_cast<unsigned>(sum));
    std::string line(1, '$');
    line.append(body).append(tail);
    return line;
}
