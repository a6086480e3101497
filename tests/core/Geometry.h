#pragma once

#include "core/CMat.h"

#include <ostream>
#include <random>

/** Without this, a failing test would print a vector as its length. */
inline void PrintTo(const CV3& v, std::ostream* out)
{
    *out << '(' << v.x << ", " << v.y << ", " << v.z << ')';
}

/** Vectors and orthonormal transforms for properties that hold for all of them. Always the same sequence. */
class RandomGeometry
{
public:
    double Number(double from, double to)
    {
        return std::uniform_real_distribution<double>(from, to)(m_engine);
    }
    CV3 Vector(double size = 1000) { return {Number(-size, size), Number(-size, size), Number(-size, size)}; }
    CMat Frame()
    {
        CMat mat;
        for (int i = 0; i < 3; ++i) {
            const CV3 step = Vector();
            mat.Translate(step.x, step.y, step.z);
            mat.RotateX(Number(-ML::pi, ML::pi));
            mat.RotateY(Number(-ML::pi, ML::pi));
            mat.RotateZ(Number(-ML::pi, ML::pi));
        }
        return mat;
    }

private:
    std::mt19937 m_engine{1980};
};
