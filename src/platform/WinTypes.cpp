#include "WinTypes.h"

#include <cstdlib>
#include <limits>

namespace condtree {

int MulDiv(int number, int numerator, int denominator)
{
    if (denominator == 0)
        return -1;
    // Magnitudes, so that the rounding is away from zero; 2^31 * 2^31 + 2^30 fits 64 bits.
    const auto magnitude = [](std::int64_t value) {
        return static_cast<std::uint64_t>(value < 0 ? -value : value);
    };
    const std::uint64_t divisor = magnitude(denominator);
    const std::uint64_t quotient =
        (magnitude(number) * magnitude(numerator) + divisor / 2) / divisor;
    const bool negative = (number < 0) != ((numerator < 0) != (denominator < 0));
    const auto limit = static_cast<std::uint64_t>(std::numeric_limits<int>::max());
    if (quotient > limit)
        return -1;
    const int result = static_cast<int>(quotient);
    return negative ? -result : result;
}

void* CoTaskMemAlloc(std::size_t bytes)
{
    return std::malloc(bytes == 0 ? 1 : bytes);
}

void CoTaskMemFree(void* memory)
{
    std::free(memory);
}

} // namespace condtree
