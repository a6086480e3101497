#pragma once

#include "core/CV3.h"
#include "core/Geometry.h"
#include "geo/CRoute.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

/** Appends nodes, of scale 1, and works the route out. */
inline void Fill(CRoute& route, const std::vector<CV3>& places)
{
    for (const CV3& place : places) {
        auto* const node = new CRtV3(place.x, place.y, place.z);
        node->scale = 1;
        route.AddTail(node);
    }
    route.Recalc();
}

inline std::vector<CV3> Places(const CRoute& route)
{
    std::vector<CV3> places;
    for (CVantPtr* pos = route.GetHeadPos(); pos;)
        places.push_back(route.GetNext(pos)->Pos());
    return places;
}

inline std::wstring Name(const CRoute& route)
{
    return route.name.GetString();
}

MATCHER_P(NearTo, wanted, "")
{
    constexpr double rounding = 1e-5; // headings are in single precision
    return (CV3(arg) - CV3(wanted)).Length() < rounding;
}
