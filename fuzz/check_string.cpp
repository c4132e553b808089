#include "fuzz/require.h"
#include "tarvo/restools/CheckString.h"
#include "tarvo/text/TextDecode.h"

#include <string>

// A text agrees with itself; whether two agree does not depend on which is first; both checks together find
// what each of them finds. The input is two texts with a line feed between them.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    std::u16string text(size, u'\0');
    text.resize(DecodeLenientUtf8({reinterpret_cast<const char*>(data), size}, text.data()));
    const std::size_t middle = text.find(u'\n');
    const std::u16string one = text.substr(0, middle);
    const std::u16string two =
        middle == std::u16string_view::npos ? std::u16string() : text.substr(middle + 1);
    for (int number = 0; number <= 4; ++number)
    {
        const auto mode = static_cast<StringCheck>(number);
        Require(CheckString(one, one, mode).empty(), "a text agrees with itself");
        Require(CheckString(one, two, mode).empty() == CheckString(two, one, mode).empty(),
                "order does not matter");
    }
    const std::u16string percent = CheckString(one, two, StringCheck::Percent);
    const std::u16string backslash = CheckString(one, two, StringCheck::Backslash);
    const std::u16string between = percent.empty() || backslash.empty() ? u"" : u", ";
    Require(CheckString(one, two, StringCheck::Both) == percent + between + backslash, "both is the two");
    Require(CheckString(one, two, StringCheck::FullString).empty() == (one == two), "full is equality");
    return 0;
}
