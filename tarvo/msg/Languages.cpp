#include "tarvo/msg/Languages.h"

namespace languages
{
namespace
{
constexpr Row rows[count] = {
    {L"English", L"_us", 0},   {L"Korean", L"_kr", 949}, {L"Japanese", L"_jp", 932},
    {L"Chinese", L"_ch", 936}, {L"Russia", L"_rus", 0},  {L"Global", L"_gb", 0},
};
} // namespace

const Row& of(int language) { return rows[language >= 0 && language < count ? language : english]; }
} // namespace languages
