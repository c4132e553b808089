#include "platform/locale.h"

namespace platform::locale
{
namespace
{
struct Row
{
    std::string_view language;
    std::string_view territory; ///< the first row of a language is its main territory
    std::uint16_t id;
};

constexpr Row rows[] = {
    {"en", "US", 0x0409}, {"en", "GB", 0x0809}, {"en", "AU", 0x0c09}, {"en", "CA", 0x1009},
    {"en", "NZ", 0x1409}, {"en", "IE", 0x1809}, {"en", "ZA", 0x1c09}, {"en", "JM", 0x2009},
    {"en", "ZW", 0x3009}, {"en", "PH", 0x3409}, {"en", "IN", 0x4009}, {"en", "SG", 0x4809},
    {"ko", "KR", 0x0412}, {"ja", "JP", 0x0411}, {"zh", "CN", 0x0804}, {"zh", "TW", 0x0404},
    {"zh", "HK", 0x0c04}, {"zh", "SG", 0x1004}, {"zh", "MO", 0x1404}, {"ru", "RU", 0x0419},
    {"de", "DE", 0x0407}, {"de", "CH", 0x0807}, {"de", "AT", 0x0c07}, {"de", "LU", 0x1007},
    {"de", "LI", 0x1407}, {"fr", "FR", 0x040c}, {"fr", "BE", 0x080c}, {"fr", "CA", 0x0c0c},
    {"fr", "CH", 0x100c}, {"fr", "LU", 0x140c}, {"es", "ES", 0x0c0a}, {"es", "MX", 0x080a},
    {"es", "GT", 0x100a}, {"es", "CR", 0x140a}, {"es", "PA", 0x180a}, {"es", "DO", 0x1c0a},
    {"es", "VE", 0x200a}, {"es", "CO", 0x240a}, {"es", "PE", 0x280a}, {"es", "AR", 0x2c0a},
    {"es", "EC", 0x300a}, {"es", "CL", 0x340a}, {"es", "UY", 0x380a}, {"es", "PY", 0x3c0a},
    {"es", "BO", 0x400a}, {"es", "US", 0x540a}, {"it", "IT", 0x0410}, {"it", "CH", 0x0810},
    {"pt", "BR", 0x0416}, {"pt", "PT", 0x0816}, {"nl", "NL", 0x0413}, {"nl", "BE", 0x0813},
    {"sv", "SE", 0x041d}, {"sv", "FI", 0x081d}, {"nb", "NO", 0x0414}, {"nn", "NO", 0x0814},
    {"da", "DK", 0x0406}, {"fi", "FI", 0x040b}, {"is", "IS", 0x040f}, {"et", "EE", 0x0425},
    {"lv", "LV", 0x0426}, {"lt", "LT", 0x0427}, {"pl", "PL", 0x0415}, {"cs", "CZ", 0x0405},
    {"sk", "SK", 0x041b}, {"hu", "HU", 0x040e}, {"ro", "RO", 0x0418}, {"bg", "BG", 0x0402},
    {"hr", "HR", 0x041a}, {"sl", "SI", 0x0424}, {"mk", "MK", 0x042f}, {"sq", "AL", 0x041c},
    {"el", "GR", 0x0408}, {"tr", "TR", 0x041f}, {"uk", "UA", 0x0422}, {"be", "BY", 0x0423},
    {"kk", "KZ", 0x043f}, {"hy", "AM", 0x042b}, {"ka", "GE", 0x0437}, {"he", "IL", 0x040d},
    {"ar", "SA", 0x0401}, {"ar", "EG", 0x0c01}, {"ar", "AE", 0x3801}, {"fa", "IR", 0x0429},
    {"hi", "IN", 0x0439}, {"th", "TH", 0x041e}, {"vi", "VN", 0x042a}, {"id", "ID", 0x0421},
    {"ms", "MY", 0x043e}, {"mn", "MN", 0x0450}, {"ca", "ES", 0x0403}, {"eu", "ES", 0x042d},
    {"gl", "ES", 0x0456}, {"ga", "IE", 0x083c}, {"cy", "GB", 0x0452}, {"af", "ZA", 0x0436},
};
} // namespace

std::uint16_t language_by_name(std::string_view name)
{
    name = name.substr(0, name.find_first_of(".@"));
    if (name == "C" || name == "POSIX")
        return 0x0409;
    const std::string_view language = name.substr(0, name.find('_'));
    const std::string_view territory =
        language.size() < name.size() ? name.substr(language.size() + 1) : std::string_view();
    std::uint16_t main = 0;
    for (const Row& row : rows)
    {
        if (row.language != language)
            continue;
        if (row.territory == territory)
            return row.id;
        if (main == 0)
            main = row.id;
    }
    return main;
}
} // namespace platform::locale
