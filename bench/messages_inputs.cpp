#include "bench/messages_inputs.h"

#include "bench/support/data.h"
#include "tarvo/msg/MSGFunction.h"

#include <sstream>

namespace bench
{
namespace
{
template <class Char>
Texts<Char> read_keys()
{
    Texts<Char> keys;
    std::istringstream lines(data_bytes("messages.keys"));
    for (std::string line; std::getline(lines, line);)
        keys.add(line);
    return keys;
}
} // namespace

std::string module_name(int number) { return (number < 10 ? "Module0" : "Module") + std::to_string(number); }

const Texts<char>& message_keys()
{
    static const auto keys = read_keys<char>();
    return keys;
}

const Texts<wchar_t>& wide_message_keys()
{
    static const auto keys = read_keys<wchar_t>();
    return keys;
}

void load_catalogue(const char* ending)
{
    CMSGFunction::Reset();
    for (int number = 0; number < modules; ++number)
    {
        const std::string path = data_path(("messages/" + module_name(number) + ending).c_str());
        CMSGFunction::AddFile(std::wstring(path.begin(), path.end()).c_str(), L"");
    }
    CMSGFunction::LoadFile();
}
} // namespace bench
