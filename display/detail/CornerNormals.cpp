#include "display/detail/CornerNormals.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <span>

namespace vant::detail
{

namespace
{

Point3 Cross(const Point3& a, const Point3& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/** What a face brings to the normals: nothing at all when it has no area. */
struct FaceShape {
    Point3 direction; // of length 1, or 0
    /** The angle at each corner, in radians, is what the face weighs there: how a surface is cut into faces
     * then changes nothing. */
    std::array<double, 3> angles{};

    bool IsEmpty() const { return angles[0] == 0; }
};

FaceShape ShapeOf(const MeshData& mesh, const MeshFace& face)
{
    const Point3 ab = mesh.vertices[face.b] - mesh.vertices[face.a];
    const Point3 bc = mesh.vertices[face.c] - mesh.vertices[face.b];
    const Point3 ca = mesh.vertices[face.a] - mesh.vertices[face.c];
    const Point3 normal = Cross(ab, bc);
    const double length = std::sqrt(Dot(normal, normal));
    constexpr double leastSine = 1e-12; // below this the direction is nothing but rounding
    if (!(length > leastSine * std::sqrt(Dot(ab, ab) * Dot(bc, bc))))
        return {};
    const double atA = std::atan2(length, -Dot(ca, ab));
    const double atB = std::atan2(length, -Dot(ab, bc));
    return {normal * (1 / length), {atA, atB, std::max(0.0, std::numbers::pi - atA - atB)}};
}

Normal ToNormal(const Point3& direction)
{
    return {static_cast<float>(direction.x), static_cast<float>(direction.y),
            static_cast<float>(direction.z)};
}

std::array<std::uint16_t, 3> Corners(const MeshFace& face)
{
    return {face.a, face.b, face.c};
}

/** For each vertex the number of its place; vertices at the same place have the same one. */
std::vector<std::uint32_t> PlacesOf(const std::vector<Point3>& vertices)
{
    std::vector<std::uint32_t> order(vertices.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
        const Point3& p = vertices[a];
        const Point3& q = vertices[b];
        if (p.x != q.x)
            return p.x < q.x;
        return p.y != q.y ? p.y < q.y : p.z < q.z;
    });
    std::vector<std::uint32_t> places(vertices.size());
    std::uint32_t place = 0;
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (vertices[order[i]] != vertices[order[i - 1]])
            ++place;
        places[order[i]] = place;
    }
    return places;
}

/** The corners of all faces, ordered by the place where they are. */
struct CornersByPlace {
    std::vector<std::uint32_t> corners; // 3 * face, and 0, 1 or 2
    std::vector<std::uint32_t> ends;    // of each place's corners; they begin where the last place's end
};

CornersByPlace SortCorners(const MeshData& mesh)
{
    const std::vector<std::uint32_t> places = PlacesOf(mesh.vertices);
    CornersByPlace sorted;
    sorted.ends.resize(places.size() + 1);
    for (const MeshFace& face : mesh.faces) {
        for (const std::uint16_t vertex : Corners(face))
            ++sorted.ends[places[vertex] + 1];
    }
    std::partial_sum(sorted.ends.begin(), sorted.ends.end(), sorted.ends.begin());
    sorted.corners.resize(3 * mesh.faces.size());
    // Each place's begin moves on to its end while its corners are put in.
    std::uint32_t corner = 0;
    for (const MeshFace& face : mesh.faces) {
        for (const std::uint16_t vertex : Corners(face))
            sorted.corners[sorted.ends[places[vertex]]++] = corner++;
    }
    sorted.ends.pop_back();
    return sorted;
}

/** Faces at a place that are smooth with the same others. */
struct Bundle {
    Point3 sum; // of the faces' directions by their weights
    double weight = 0;
    Point3 direction;       // of sum
    std::uint32_t groups{}; // smoothing groups that all of them are in

    void Add(const FaceShape& shape, double faceWeight)
    {
        sum = sum + shape.direction * faceWeight;
        weight += faceWeight;
    }

    /** The sum's direction; `otherwise` when what was added cancels out. */
    Point3 Direction(const Point3& otherwise) const
    {
        constexpr double leastPart = 1e-6;
        const double length = std::sqrt(Dot(sum, sum));
        return length > leastPart * weight ? sum * (1 / length) : otherwise;
    }
};

/** Which of the cells that the directions are divided into a direction falls into: each side of a cube has
 *  8 x 8 of them. */
constexpr std::size_t cellsAcross = 8;
constexpr std::size_t cellCount = 6 * cellsAcross * cellsAcross;

std::size_t CellOf(const Point3& direction)
{
    const std::array<double, 3> parts = {direction.x, direction.y, direction.z};
    std::size_t axis = 0;
    for (std::size_t i = 1; i < parts.size(); ++i)
        axis = std::fabs(parts[i]) > std::fabs(parts[axis]) ? i : axis;
    const double depth = std::fabs(parts[axis]);
    const auto across = [&](double part) {
        const double cell = (part / depth + 1) / 2 * static_cast<double>(cellsAcross);
        return std::min(static_cast<std::size_t>(cell), cellsAcross - 1);
    };
    const std::size_t side = 2 * axis + (parts[axis] < 0 ? 1 : 0);
    return (side * cellsAcross + across(parts[(axis + 1) % 3])) * cellsAcross + across(parts[(axis + 2) % 3]);
}

/** Works out the normals place by place. */
class Smoother
{
public:
    Smoother(const MeshData& mesh, double creaseAngle)
        : m_mesh(mesh)
        , m_leastCosine(std::cos(std::clamp(creaseAngle, 0.0, std::numbers::pi)) - cosineTolerance)
        , m_normals(3 * mesh.faces.size())
    {
        m_shapes.reserve(mesh.faces.size());
        for (const MeshFace& face : mesh.faces)
            m_shapes.push_back(ShapeOf(mesh, face));
    }

    std::vector<Normal> Smooth()
    {
        const CornersByPlace sorted = SortCorners(m_mesh);
        const std::span<const std::uint32_t> corners = sorted.corners;
        std::size_t begin = 0;
        for (const std::uint32_t end : sorted.ends) {
            SmoothPlace(corners.subspan(begin, end - begin));
            begin = end;
        }
        return std::move(m_normals);
    }

private:
    using CornerList = std::span<const std::uint32_t>;

    static constexpr double cosineTolerance = 1e-9;
    static constexpr std::size_t mostSingleFaces = 32;
    static constexpr std::size_t mostGroupSets = 64;

    const FaceShape& ShapeAt(std::uint32_t corner) const { return m_shapes[corner / 3]; }
    double WeightAt(std::uint32_t corner) const { return ShapeAt(corner).angles[corner % 3]; }
    std::uint32_t GroupsAt(std::uint32_t corner) const { return m_mesh.smoothing[corner / 3]; }

    void SmoothPlace(CornerList corners)
    {
        m_bundles.clear();
        if (!m_mesh.smoothing.empty())
            BundleByGroups(corners);
        else if (corners.size() <= mostSingleFaces)
            BundleSingly(corners);
        else
            BundleByDirection(corners);
        for (Bundle& bundle : m_bundles)
            bundle.direction = bundle.Direction({});

        for (const std::uint32_t corner : corners) {
            const Point3& own = ShapeAt(corner).direction;
            Bundle smooth;
            for (const Bundle& bundle : m_bundles) {
                if (IsSmooth(corner, bundle)) {
                    smooth.sum = smooth.sum + bundle.sum;
                    smooth.weight += bundle.weight;
                }
            }
            const Point3 direction = smooth.Direction(own);
            if (Dot(direction, direction) != 0)
                m_normals[corner] = ToNormal(direction);
        }
    }

    bool IsSmooth(std::uint32_t corner, const Bundle& bundle) const
    {
        if (!m_mesh.smoothing.empty())
            return (GroupsAt(corner) & bundle.groups) != 0;
        return Dot(ShapeAt(corner).direction, bundle.direction) > m_leastCosine;
    }

    void BundleByGroups(CornerList corners)
    {
        for (const std::uint32_t corner : corners) {
            const std::uint32_t groups = GroupsAt(corner);
            if (groups == 0)
                continue;
            auto bundle = std::find_if(m_bundles.begin(), m_bundles.end(),
                                       [groups](const Bundle& each) { return each.groups == groups; });
            if (bundle == m_bundles.end()) {
                if (m_bundles.size() == mostGroupSets) {
                    BundleAllGroups(corners);
                    return;
                }
                bundle = m_bundles.insert(bundle, Bundle{});
                bundle->groups = groups;
            }
            bundle->Add(ShapeAt(corner), WeightAt(corner));
        }
    }

    void BundleAllGroups(CornerList corners)
    {
        Bundle all;
        all.groups = ~std::uint32_t{0};
        for (const std::uint32_t corner : corners) {
            if (GroupsAt(corner) != 0)
                all.Add(ShapeAt(corner), WeightAt(corner));
        }
        m_bundles.assign(1, all);
    }

    void BundleSingly(CornerList corners)
    {
        for (const std::uint32_t corner : corners) {
            if (!ShapeAt(corner).IsEmpty())
                m_bundles.emplace_back().Add(ShapeAt(corner), WeightAt(corner));
        }
    }

    void BundleByDirection(CornerList corners)
    {
        m_bundles.resize(cellCount);
        for (const std::uint32_t corner : corners) {
            if (!ShapeAt(corner).IsEmpty())
                m_bundles[CellOf(ShapeAt(corner).direction)].Add(ShapeAt(corner), WeightAt(corner));
        }
        std::erase_if(m_bundles, [](const Bundle& bundle) { return bundle.weight == 0; });
    }

    const MeshData& m_mesh;
    const double m_leastCosine;
    std::vector<FaceShape> m_shapes;
    std::vector<Bundle> m_bundles; // at the present place
    std::vector<Normal> m_normals;
};

} // namespace

std::vector<Normal> CornerNormals(const MeshData& mesh, double creaseAngle)
{
    return Smoother(mesh, creaseAngle).Smooth();
}

} // namespace vant::detail
