#include "geo/detail/NearestIndex.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace vant::detail
{

namespace
{

constexpr std::size_t runLength = 8; // segments in a box
constexpr std::size_t fanOut = 4;    // boxes in a box
constexpr double infinity = std::numeric_limits<double>::infinity();

bool IsFinite(const PlanPoint& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y);
}

} // namespace

struct NearestIndex::Search {
    PlanPoint to;
    double distance2 = infinity;
    NearestPlace place{};

    void Offer(double candidate2, const NearestPlace& candidate)
    {
        if (candidate2 < distance2 || (candidate2 == distance2 && candidate.segment < place.segment)) {
            distance2 = candidate2;
            place = candidate;
        }
    }
};

NearestIndex::NearestIndex(std::vector<PlanPoint> points)
    : m_points(std::move(points))
{
    const std::size_t runs = (Segments() + runLength - 1) / runLength;
    if (runs == 0)
        return;
    m_levels.emplace_back().reserve(runs);
    for (std::size_t run = 0; run < runs; ++run)
        m_levels.back().push_back(BoxOfRun(run));
    while (m_levels.back().size() > 1) {
        const std::vector<Box>& under = m_levels.back();
        std::vector<Box> boxes;
        boxes.reserve(under.size() / fanOut + 1);
        for (std::size_t i = 0; i < under.size(); ++i) {
            if (i % fanOut == 0) {
                boxes.push_back(under[i]);
                continue;
            }
            Box& box = boxes.back();
            box.left = std::min(box.left, under[i].left);
            box.lower = std::min(box.lower, under[i].lower);
            box.right = std::max(box.right, under[i].right);
            box.upper = std::max(box.upper, under[i].upper);
        }
        m_levels.push_back(std::move(boxes));
    }
}

NearestIndex::Box NearestIndex::BoxOfRun(std::size_t run) const
{
    Box box{infinity, infinity, -infinity, -infinity};
    const std::size_t end = std::min((run + 1) * runLength, Segments());
    for (std::size_t i = run * runLength; i <= end; ++i) {
        const PlanPoint& point = m_points[i];
        if (!IsFinite(point))
            continue;
        box.left = std::min(box.left, point.x);
        box.lower = std::min(box.lower, point.y);
        box.right = std::max(box.right, point.x);
        box.upper = std::max(box.upper, point.y);
    }
    return box;
}

bool NearestIndex::Find(const PlanPoint& to, NearestPlace& place) const
{
    if (m_levels.empty() || !IsFinite(to))
        return false;
    Search search{.to = to};
    SearchBox(m_levels.size() - 1, 0, search);
    if (search.distance2 == infinity)
        return false;
    place = search.place;
    return true;
}

void NearestIndex::SearchBox(std::size_t level, std::size_t box, Search& search) const
{
    if (level == 0)
        return SearchRun(box, search);
    const std::vector<Box>& under = m_levels[level - 1];
    struct Child {
        double distance2;
        std::size_t box;
    };
    std::array<Child, fanOut> children; // NOLINT: filled as far as it is read
    std::size_t count = 0;
    for (std::size_t i = box * fanOut; i < std::min((box + 1) * fanOut, under.size()); ++i) {
        const Child child{Distance2(under[i], search.to), i};
        std::size_t at = count++;
        for (; at > 0 && children[at - 1].distance2 > child.distance2; --at)
            children[at] = children[at - 1];
        children[at] = child;
    }
    for (std::size_t i = 0; i < count && children[i].distance2 <= search.distance2; ++i)
        SearchBox(level - 1, children[i].box, search);
}

void NearestIndex::SearchRun(std::size_t run, Search& search) const
{
    const std::size_t end = std::min((run + 1) * runLength, Segments());
    for (std::size_t i = run * runLength; i < end; ++i) {
        const PlanPoint& a = m_points[i];
        const double dx = m_points[i + 1].x - a.x;
        const double dy = m_points[i + 1].y - a.y;
        const double toX = search.to.x - a.x;
        const double toY = search.to.y - a.y;
        const double length2 = dx * dx + dy * dy;
        // A segment of no length is its first node.
        const double share = length2 > 0 ? std::clamp((toX * dx + toY * dy) / length2, 0.0, 1.0) : 0.0;
        // From an end without rounding, so that the two segments that meet there come out the same.
        const bool isEnd = share == 1;
        const double offX = isEnd ? search.to.x - m_points[i + 1].x : toX - share * dx;
        const double offY = isEnd ? search.to.y - m_points[i + 1].y : toY - share * dy;
        search.Offer(offX * offX + offY * offY, {i, share}); // what is not a number is never nearer
    }
}

double NearestIndex::Distance2(const Box& box, const PlanPoint& to) noexcept
{
    const double dx = std::max({box.left - to.x, 0.0, to.x - box.right});
    const double dy = std::max({box.lower - to.y, 0.0, to.y - box.upper});
    return dx * dx + dy * dy;
}

} // namespace vant::detail
