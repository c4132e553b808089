#include "tests/support/TempFolder.h"

#include "platform/file.h"

#include <chrono>
#include <filesystem>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

TempFolder::TempFolder()
{
    auto number = std::chrono::steady_clock::now().time_since_epoch().count();
    for (int attempt = 0; attempt < 1000; ++attempt, ++number)
    {
        const fs::path path = fs::temp_directory_path() / ("tarvo-test-" + std::to_string(number));
        if (fs::create_directory(path))
        {
            m_strPath = path.wstring();
            return;
        }
    }
    throw std::runtime_error("no temporary folder");
}

TempFolder::~TempFolder()
{
    std::error_code ignored;
    fs::remove_all(m_strPath, ignored);
}

std::wstring TempFolder::operator/(const std::wstring& name) const
{
    return m_strPath + platform::file::separator + name;
}

int TempFolder::count() const
{
    return static_cast<int>(std::distance(fs::directory_iterator(m_strPath), fs::directory_iterator()));
}

std::string narrow(const std::wstring& text)
{
    std::string bytes;
    for (const wchar_t c : text)
        bytes += static_cast<char>(c);
    return bytes;
}
