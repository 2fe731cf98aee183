#include "host/files/dxf_angles.h"

#include <array>
#include <cmath>
#include <limits>
#include <numbers>

double DxfRadians(double dDegrees) {
    return dDegrees * std::numbers::pi / 180.0;
}

double DxfDegrees(double dRadians) {
    constexpr double dInfinity = std::numeric_limits<double>::infinity();
    const double dDegrees = dRadians * 180.0 / std::numbers::pi;
    for (const double dNear :
         std::array{dDegrees, std::nextafter(dDegrees, dInfinity), std::nextafter(dDegrees, -dInfinity)})
        if (DxfRadians(dNear) == dRadians) return dNear;
    return dDegrees;
}
