#include "tarvo/msg/Languages.h"

#include <iterator>

namespace languages
{
namespace
{
constexpr Row rows[] = {
    {L"English", L"_us", 0},   {L"Korean", L"_kr", 949}, {L"Japanese", L"_jp", 932},
    {L"Chinese", L"_ch", 936}, {L"Russia", L"_rus", 0},  {L"Global", L"_gb", 0},
};
} // namespace

const Row& of(int language)
{
    const bool known = language >= 0 && language < static_cast<int>(std::size(rows));
    return rows[known ? language : english];
}
} // namespace languages
