#include "tarvo/intl/FontRules.h"

#include <algorithm>
#include <cstdint>
#include <cwchar>
#include <limits>

namespace FontRules
{
int Height(int points, int dotsPerInch)
{
    constexpr int kPointsPerInch = 72;
    const std::int64_t product = std::int64_t{points} * dotsPerInch;
    const std::int64_t half = product < 0 ? -kPointsPerInch / 2 : kPointsPerInch / 2;
    const std::int64_t pixels = (product + half) / kPointsPerInch;
    constexpr std::int64_t kMost = std::numeric_limits<int>::max();
    return pixels > kMost || pixels < -kMost ? 1 : static_cast<int>(-pixels);
}

int ToSize(const CString& setting)
{
    const long long value = std::wcstoll(setting, nullptr, 10);
    constexpr long long kLeast = std::numeric_limits<int>::min();
    constexpr long long kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, kLeast, kMost));
}

int ToTextSize(const CString& setting)
{
    const int size = ToSize(setting);
    return size < 1 ? 9 : size;
}

bool IsPicture(unsigned style) { return (style & 0x0E) == 0x0E; }

int LabelHeight(int height, const CString& text)
{
    const bool severalLines = text.Find(L'\n') >= 0;
    const int threshold = severalLines ? 24 : 12;
    if (text.IsEmpty() || height > threshold)
        return height;
    return threshold + 1 + (severalLines ? 1 : 0);
}
} // namespace FontRules
