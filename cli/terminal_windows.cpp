#include "cli/terminal.h"

#include "platform/codepage.h"

#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <memory>
#include <windows.h>

#include <shellapi.h>

namespace cli::terminal
{
namespace codepage = platform::codepage;
namespace
{
struct local_closer
{
    void operator()(wchar_t** memory) const { ::LocalFree(memory); }
};

HANDLE handle_of(std::FILE* stream) { return reinterpret_cast<HANDLE>(::_get_osfhandle(::_fileno(stream))); }

/// Shows UTF-8 on the console while the program runs and gives the console back as it was.
class Utf8Console
{
public:
    Utf8Console() : m_before(::GetConsoleOutputCP())
    {
        if (m_before != 0)
            ::SetConsoleOutputCP(CP_UTF8);
    }
    Utf8Console(const Utf8Console&) = delete;
    Utf8Console& operator=(const Utf8Console&) = delete;
    ~Utf8Console()
    {
        if (m_before != 0)
            ::SetConsoleOutputCP(m_before);
    }

private:
    UINT m_before;
};
} // namespace

// The command line itself: what main receives has gone through the ANSI code page, and the run-time
// may have expanded wildcards in it.
std::optional<std::vector<std::string>> arguments(int, char**)
{
    int count = 0;
    const std::unique_ptr<wchar_t*, local_closer> wide(::CommandLineToArgvW(::GetCommandLineW(), &count));
    std::vector<std::string> words;
    for (int at = 1; at < count; ++at)
    {
        const std::wstring_view word = wide.get()[at];
        const auto utf8 = codepage::encode(codepage::utf8, word);
        if (!utf8 || codepage::decode(codepage::utf8, *utf8) != word)
            return std::nullopt;
        words.push_back(*utf8);
    }
    return words;
}

void prepare_streams()
{
    static const Utf8Console console;
    for (std::FILE* const stream : {stdin, stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
}

bool interactive(std::FILE* stream)
{
    DWORD mode = 0;
    return ::GetConsoleMode(handle_of(stream), &mode) != 0;
}

bool colors(std::FILE* stream)
{
    DWORD mode = 0;
    const HANDLE console = handle_of(stream);
    return ::GetConsoleMode(console, &mode) != 0 &&
           ::SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

bool no_color()
{
    const wchar_t* const value = ::_wgetenv(L"NO_COLOR");
    return value != nullptr && *value != L'\0';
}
} // namespace cli::terminal
