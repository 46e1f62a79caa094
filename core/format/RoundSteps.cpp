#include "format/RoundSteps.h"

#include <array>
#include <cmath>

namespace vexel::RoundSteps {

namespace {

constexpr std::array<double, 3> mantissas{1, 2, 5};

} // namespace

double roundUp(double value)
{
    if (!(value > 0) || !std::isfinite(value))
        return 1;
    // A power of ten below the value; the first round step at or above it wins.
    const double decade = std::pow(10.0, std::floor(std::log10(value)));
    for (const double mantissa : mantissas)
        if (mantissa * decade >= value * (1 - 1e-12))
            return mantissa * decade;
    return 10 * decade;
}

double gridStep(double top)
{
    if (!(top > 0) || !std::isfinite(top))
        return 1;
    const double decade = std::pow(10.0, std::floor(std::log10(top / 2)));
    for (size_t i = mantissas.size(); i-- > 0;)
        if (mantissas[i] * decade <= top / 2 * (1 + 1e-12))
            return mantissas[i] * decade;
    return decade / 2;
}

} // namespace vexel::RoundSteps
