// CRoute: routes made of a route.
#include "geo/CRoute.h"

#include "core/ML.h"
#include "core/detail/NumberText.h"
#include "geo/detail/Joint.h"
#include "geo/detail/RouteIndex.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

using namespace vant::detail;

namespace
{

template <class... Numbers>
bool AreFinite(Numbers... numbers)
{
    return (std::isfinite(numbers) && ...);
}

} // namespace

int CRoute::SplineRt(CRoute& out, const CSpline& spline, int closed) const
{
    if (&out == this) // the nodes go while they are read
        return CRoute(*this).SplineRt(out, spline, closed);
    out.RemoveAll();
    out.name = name + L"_spline";
    std::vector<const CRtV3*> nodes;
    for (CVantPtr* pos = GetHeadPos(); pos;) {
        if (const CRtV3* const node = GetNext(pos))
            nodes.push_back(node);
    }
    const auto count = static_cast<std::ptrdiff_t>(nodes.size());
    if (count < 2)
        return 0;
    // Beyond its ends a closed route goes on, and the end of an open one stands for what is not there.
    const auto at = [&](std::ptrdiff_t i) -> const CRtV3& {
        const std::ptrdiff_t on = closed ? (i + count) % count : std::clamp<std::ptrdiff_t>(i, 0, count - 1);
        return *nodes[static_cast<std::size_t>(on)];
    };
    int made = 0;
    for (std::ptrdiff_t segment = 0; segment < count + (closed ? 1 : 0); ++segment) {
        for (int row = 0; row < spline.GetCount(); ++row, ++made) {
            const double* const weights = spline.GetRow(row);
            auto node = std::make_unique<CRtV3>();
            for (std::ptrdiff_t i = 0; i < 4; ++i) {
                const CRtV3& from = at(segment - 1 + i);
                node->x += weights[i] * from.x;
                node->y += weights[i] * from.y;
                node->z += weights[i] * from.z;
            }
            out.AddTail(node.release());
        }
    }
    return made;
}

int CRoute::Begin(CRoute& out, LPCWSTR format, double number) const
{
    std::wstring text(name.GetString());
    AppendFormatted<wchar_t>(text, format, number);
    out.RemoveAll();
    out.name = text.c_str();
    return Index() != nullptr;
}

void CRoute::AddMoved(const CRtV3& node, double heading, double distance, double angle)
{
    auto moved = std::make_unique<CRtV3>(node);
    moved->x += std::cos(heading - angle) * distance;
    moved->y += std::sin(heading - angle) * distance;
    AddTail(moved.release());
}

int CRoute::OffsetReSF(CRoute& out, double from, double to, double step, double offset, double angle) const
{
    if (&out == this)
        return CRoute(*this).OffsetReSF(out, from, to, step, offset, angle);
    if (!Begin(out, L"_%+lg", offset) || !AreFinite(from, to, step, offset, angle))
        return 0;
    int made = 0;
    const auto add = [&](double q) {
        CRtV3 place;
        Q2Entry(q, place);
        out.AddMoved(place, place.heading, place.scale * offset, angle);
        ++made;
    };
    if (!(step > 0) || (to - from) / step >= int{maxSamples}) {
        if (from < to)
            add(from);
    } else {
        // Each from its number: sums of steps would drift, and end in one too many just before `to`.
        for (double q = from; q < to; q = from + made * step)
            add(q);
    }
    add(to);
    return made;
}

void CRoute::AddBeside(const CRtV3& node, double before, double after, double distance, double angle)
{
    // Only what an offset has across the line moves its parallel; along the line it lies in itself.
    const double across = distance * std::sin(angle);
    PlanPoint places[2];
    const int count = JointPlaces(RightOf(before), RightOf(after), places);
    for (int i = 0; i < count; ++i) {
        auto moved = std::make_unique<CRtV3>(node);
        moved->x += places[i].x * across;
        moved->y += places[i].y * across;
        AddTail(moved.release());
    }
}

int CRoute::OffsetRtCP(CRoute& out, double from, double to, double offset, double angle) const
{
    if (&out == this)
        return CRoute(*this).OffsetRtCP(out, from, to, offset, angle);
    if (!Begin(out, L"_%+lg", offset) || !AreFinite(from, to, offset, angle))
        return 0;
    const DistanceIndex& stops = Index()->byQ;
    std::size_t next = 1; // node after the place
    const auto addEnd = [&](double q, double heading) {
        CRtV3 place;
        Q2Entry(q, place);
        out.AddMoved(place, heading, place.scale * offset, angle);
    };
    if (from < to) {
        next = SegmentAt(from) + 1;
        addEnd(from, stops.Node(next - 1).heading);
    }
    for (; next < stops.Count() && stops.At(next) < to; ++next) {
        const CRtV3& node = stops.Node(next);
        if (from < to)
            out.AddBeside(node, stops.Node(next - 1).heading, node.heading, node.scale * offset, angle);
    }
    addEnd(to, stops.Node(next - 1).heading); // of the segment that leads there
    return out.GetCount();
}

int CRoute::XLine(CRoute& out, double q, double from, double to, double angle) const
{
    if (&out == this)
        return CRoute(*this).XLine(out, q, from, to, angle);
    if (!Begin(out, L"_X@%lg", q) || !AreFinite(q, from, to, angle))
        return 0;
    CRtV3 place;
    Q2Entry(q, place);
    const double heading = Index()->byQ.Node(SegmentAt(q)).heading;
    out.AddMoved(place, heading, from, angle);
    out.AddMoved(place, heading, to, angle);
    return 2;
}
