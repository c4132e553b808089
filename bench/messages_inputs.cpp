#include "bench/messages_inputs.h"

#include "bench/support/data.h"
#include "tarvo/msg/MSGFunction.h"

#include <sstream>

namespace bench
{
std::string module_name(int number) { return (number < 10 ? "Module0" : "Module") + std::to_string(number); }

const std::vector<std::string>& message_keys()
{
    static const auto keys = [] {
        std::vector<std::string> read;
        std::istringstream lines(data_bytes("messages.keys"));
        for (std::string line; std::getline(lines, line);)
            read.push_back(line);
        return read;
    }();
    return keys;
}

const std::vector<std::wstring>& wide_message_keys()
{
    static const auto keys = [] {
        std::vector<std::wstring> wide;
        for (const std::string& key : message_keys())
            wide.emplace_back(key.begin(), key.end());
        return wide;
    }();
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
