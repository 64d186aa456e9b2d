// SPDX-License-Identifier: GPL-3.0-or-later
// Stateless numeric helpers of the engine: polynomials by Horner's rule, three-point
// interpolation (Meeus eq. 3.3), the extreme of a smooth function (eq. 3.4) and inverse
// trigonometric functions built on the arctangent.
#pragma once

#include <array>
#include <cmath>

inline double Poly2(const std::array<double, 3>& c, double T)
{
    return c[0] + T * (c[1] + T * c[2]);
}

inline double Poly4(const std::array<double, 5>& c, double T)
{
    return c[0] + T * (c[1] + T * (c[2] + T * (c[3] + T * c[4])));
}

// Meeus eq. 3.3; n in intervals from the middle value.
inline double Interpolate3(double y1, double y2, double y3, double n)
{
    const double a = y2 - y1;
    const double b = y3 - y2;
    const double c = b - a;
    return y2 + n / 2.0 * (a + b + n * c);
}

// The abscissa of the extreme of f near x: the vertex of the parabola through f(x - h), f(x),
// f(x + h) (Meeus eq. 3.4), found again about each new vertex with each of the ever closer steps h.
template <typename Function, std::size_t N>
double ParabolicExtremum(Function f, double x, const std::array<double, N>& steps)
{
    for (double h : steps) {
        const double y1 = f(x - h), y2 = f(x), y3 = f(x + h);
        const double a = y2 - y1, b = y3 - y2, c = b - a;
        if (c == 0.0)
            break; // a straight line: no vertex to move to
        x -= h * (a + b) / (2.0 * c);
    }
    return x;
}

inline double ArcSin(double x)
{
    if (x == 1.0)
        return std::atan(1.0) * 2.0;
    if (x == -1.0)
        return -std::atan(1.0) * 2.0;
    return std::atan(x / std::sqrt(1.0 - x * x));
}

inline double ArcCos(double x)
{
    if (x == 1.0)
        return 0.0;
    if (x == -1.0)
        return std::atan(1.0) * 4.0;
    return std::atan(1.0) * 2.0 - std::atan(x / std::sqrt(1.0 - x * x));
}

// Note the order: x (the cosine side) first. The result lies in (-pi, pi].
inline double ArcTan2(double x, double y)
{
    const double pi = 4.0 * std::atan(1.0);
    if (std::fabs(x) < 0.00005) {
        if (y == 0.0)
            return 0.0;
        return y > 0.0 ? pi / 2.0 : -pi / 2.0;
    }
    if (x > 0.0)
        return std::atan(y / x);
    return y >= 0.0 ? std::atan(y / x) + pi : std::atan(y / x) - pi;
}

// Cosine and sine of integer combinations k1 x1 + ... + kN xN of a few angles, |ki| <= K, from
// the powers of each angle's unit phasor: one sincos per angle instead of one per term of a
// periodic series (the sums agree with direct evaluation to about 1e-15).
template <std::size_t N, int K> class MultipleAngles {
public:
    struct Phasor {
        double Cos = 1.0, Sin = 0.0;
        Phasor operator*(const Phasor& o) const
        {
            return {Cos * o.Cos - Sin * o.Sin, Sin * o.Cos + Cos * o.Sin};
        }
    };

    explicit MultipleAngles(const std::array<double, N>& angles)
    {
        for (std::size_t i = 0; i < N; ++i) {
            auto& p = Powers[i];
            const Phasor unit{std::cos(angles[i]), std::sin(angles[i])};
            p[K] = Phasor{};
            for (int k = 1; k <= K; ++k) {
                p[std::size_t(K + k)] = p[std::size_t(K + k - 1)] * unit;
                p[std::size_t(K - k)] = {p[std::size_t(K + k)].Cos, -p[std::size_t(K + k)].Sin};
            }
        }
    }

    Phasor Of(const std::array<int, N>& multiples) const
    {
        Phasor r = Powers[0][std::size_t(K + multiples[0])];
        for (std::size_t i = 1; i < N; ++i)
            r = r * Powers[i][std::size_t(K + multiples[i])];
        return r;
    }

private:
    std::array<std::array<Phasor, 2 * K + 1>, N> Powers{};
};
