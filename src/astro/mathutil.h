// Stateless numeric helpers of the engine: polynomials by Horner's rule, three-point
// interpolation (Meeus eq. 3.3) and inverse trigonometric functions built on the arctangent.
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
