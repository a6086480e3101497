#include "Compare.h"

#include "core/CMat.h"
#include "core/CV3.h"

#include <catch2/catch.hpp>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#include <eigen3/Eigen/Geometry>
#include <glm/glm.hpp>
#pragma GCC diagnostic pop

#include <random>
#include <vector>

namespace
{

constexpr std::size_t vectors = 100'000;
constexpr CompareOptions atOrBelow{.target = 1.0};

using EigenAffine = Eigen::Transform<double, 3, Eigen::AffineCompact>;

/** What every side reads and writes: the same memory, because where an array lies in it changes the times by
 * more than the arithmetic does. All vectors are three doubles. */
struct Arrays {
    Arrays()
    {
        std::mt19937 random(1);
        std::uniform_real_distribution<double> coordinate(-100.0, 100.0);
        for (std::vector<double>* array : {&a, &b}) {
            for (double& value : *array) {
                value = coordinate(random);
            }
        }
    }

    template <class V>
    static V* As(std::vector<double>& array)
    {
        static_assert(sizeof(V) <= 3 * sizeof(double) && alignof(V) == alignof(double));
        return reinterpret_cast<V*>(array.data());
    }

    static constexpr std::size_t size = 3 * vectors;
    std::vector<double> a = std::vector<double>(size);
    std::vector<double> b = std::vector<double>(size);
    std::vector<double> out = std::vector<double>(size);
};

Arrays arrays;

/** A round that makes one array out of two. */
template <class V, class Result, class Each>
Round OverPairs(Each each)
{
    return [each](Stopwatch& watch) {
        watch.Measure([&each, a = Arrays::As<const V>(arrays.a), b = Arrays::As<const V>(arrays.b),
                       out = Arrays::As<Result>(arrays.out)] {
            for (std::size_t i = 0; i < vectors; ++i) {
                out[i] = each(a[i], b[i]);
            }
            Keep(out);
        });
    };
}

/** A round that takes every vector through one transform. */
template <class V, class Matrix, class Each>
Round Through(const Matrix& matrix, Each each)
{
    return [matrix, each](Stopwatch& watch) {
        Keep(matrix);
        watch.Measure([&matrix, &each, a = Arrays::As<const V>(arrays.a), out = Arrays::As<V>(arrays.out)] {
            for (std::size_t i = 0; i < vectors; ++i) {
                out[i] = each(matrix, a[i]);
            }
            Keep(out);
        });
    };
}

constexpr double turn = 0.3;
constexpr double origin[3] = {10.0, 20.0, 30.0};

CMat OurMatrix()
{
    CMat matrix;
    matrix.Translate(origin[0], origin[1], origin[2]);
    matrix.RotateZ(turn);
    matrix.RotateX(turn);
    return matrix;
}

glm::dmat4 GlmMatrix()
{
    const CMat ours = OurMatrix();
    glm::dmat4 matrix(1.0);
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 4; ++c) {
            matrix[c][r] = ours.m[r][c];
        }
    }
    return matrix;
}

EigenAffine EigenMatrix()
{
    const CMat ours = OurMatrix();
    EigenAffine matrix;
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 4; ++c) {
            matrix(r, c) = ours.m[r][c];
        }
    }
    return matrix;
}

/** A round of products in a row, as scene graphs make them. */
template <class Matrix, class Multiply>
Round Products(Matrix step, Multiply multiply)
{
    return [step, multiply](Stopwatch& watch) {
        Matrix product = step;
        watch.Measure([&] {
            for (std::size_t i = 0; i < vectors; ++i) {
                multiply(product, step);
            }
            Keep(product);
        });
    };
}

} // namespace

TEST_CASE("vectors")
{
    const auto ourSum = OverPairs<CV3, CV3>([](const CV3& a, const CV3& b) { return a + b * 0.5; });
    const auto ourCross = OverPairs<CV3, CV3>([](const CV3& a, const CV3& b) { return a % b; });
    const auto ourDot = OverPairs<CV3, double>([](const CV3& a, const CV3& b) { return a | b; });
    const auto ourUnit = OverPairs<CV3, CV3>([](const CV3& a, const CV3& b) {
        CV3 unit = a - b;
        unit.Normalise();
        return unit;
    });

    using Glm = glm::dvec3;
    Compare("vectors: a + b * s (GLM)", ourSum,
            OverPairs<Glm, Glm>([](const Glm& a, const Glm& b) { return a + b * 0.5; }), atOrBelow);
    Compare("vectors: cross product (GLM)", ourCross,
            OverPairs<Glm, Glm>([](const Glm& a, const Glm& b) { return glm::cross(a, b); }), atOrBelow);
    Compare("vectors: dot product (GLM)", ourDot,
            OverPairs<Glm, double>([](const Glm& a, const Glm& b) { return glm::dot(a, b); }), atOrBelow);
    Compare("vectors: unit vector between two points (GLM)", ourUnit,
            OverPairs<Glm, Glm>([](const Glm& a, const Glm& b) {
                // Divided, as ours: glm::normalize multiplies by the reciprocal, which rounds twice.
                return (a - b) / glm::length(a - b);
            }),
            atOrBelow);

    using Eig = Eigen::Vector3d;
    Compare("vectors: a + b * s (Eigen)", ourSum,
            OverPairs<Eig, Eig>([](const Eig& a, const Eig& b) -> Eig { return a + b * 0.5; }), atOrBelow);
    Compare("vectors: cross product (Eigen)", ourCross,
            OverPairs<Eig, Eig>([](const Eig& a, const Eig& b) -> Eig { return a.cross(b); }), atOrBelow);
    Compare("vectors: dot product (Eigen)", ourDot,
            OverPairs<Eig, double>([](const Eig& a, const Eig& b) { return a.dot(b); }), atOrBelow);
    Compare("vectors: unit vector between two points (Eigen)", ourUnit,
            OverPairs<Eig, Eig>([](const Eig& a, const Eig& b) -> Eig { return (a - b).normalized(); }),
            atOrBelow);
}

TEST_CASE("matrices")
{
    using Glm = glm::dvec3;
    using Eig = Eigen::Vector3d;
    const auto ourGlobal =
        Through<CV3>(OurMatrix(), [](const CMat& m, const CV3& v) { return m.LocalToGlobal(v); });
    const auto ourLocal =
        Through<CV3>(OurMatrix(), [](const CMat& m, const CV3& v) { return m.GlobalToLocal(v); });
    const auto ourProduct =
        Products(OurMatrix(), [](CMat& product, const CMat& step) { product.Append(&step); });

    Compare("matrices: local to global (GLM)", ourGlobal,
            Through<Glm>(GlmMatrix(),
                         [](const glm::dmat4& m, const Glm& v) { return Glm(m * glm::dvec4(v, 1.0)); }),
            atOrBelow);
    Compare("matrices: global to local (GLM)", ourLocal,
            Through<Glm>(GlmMatrix(),
                         [](const glm::dmat4& m, const Glm& v) { return (v - Glm(m[3])) * glm::dmat3(m); }),
            atOrBelow);
    Compare("matrices: product (GLM)", ourProduct,
            Products(GlmMatrix(), [](glm::dmat4& product, const glm::dmat4& step) { product *= step; }),
            atOrBelow);

    Compare("matrices: local to global (Eigen)", ourGlobal,
            Through<Eig>(EigenMatrix(), [](const EigenAffine& m, const Eig& v) -> Eig { return m * v; }),
            atOrBelow);
    Compare("matrices: global to local (Eigen)", ourLocal,
            Through<Eig>(EigenMatrix(),
                         [](const EigenAffine& m, const Eig& v) -> Eig {
                             return m.linear().transpose() * (v - m.translation());
                         }),
            atOrBelow);
    Compare("matrices: product (Eigen)", ourProduct,
            Products(EigenMatrix(),
                     [](EigenAffine& product, const EigenAffine& step) { product = product * step; }),
            atOrBelow);
}
