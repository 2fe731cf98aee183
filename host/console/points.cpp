#include "host/console/points.h"

#include "host/console/numbers.h"

#include <array>

bool ParsePoint(std::string_view text, const AcGePoint3d& last, AcGePoint3d* pPoint) {
    const bool bRelative = text.starts_with('@');
    std::string_view rest = bRelative ? text.substr(1) : text;
    std::array<double, 3> numbers{};
    size_t count = 0;
    while (true) {
        const size_t comma = rest.find(',');
        if (count == numbers.size() || !ParseNumber(rest.substr(0, comma), &numbers[count])) return false;
        ++count;
        if (comma == std::string_view::npos) break;
        rest.remove_prefix(comma + 1);
    }
    if (count < 2) return false;
    const AcGeVector3d offset(numbers[0], numbers[1], numbers[2]);
    *pPoint = (bRelative ? last : AcGePoint3d::kOrigin) + offset;
    return true;
}
