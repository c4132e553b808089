#include "program.h"

#include "platform/codepage.h"

#include <memory>
#include <windows.h>

const char* const program_suffix = ".exe";

namespace
{
struct handle_closer
{
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { ::CloseHandle(handle); }
};
using unique_handle = std::unique_ptr<HANDLE, handle_closer>;

std::wstring wide(const std::string& text)
{
    return platform::codepage::decode(platform::codepage::utf8, text).value_or(L"");
}

/// One argument as CommandLineToArgvW takes it apart again.
std::wstring quoted(const std::wstring& word)
{
    std::wstring text = L"\"";
    std::size_t slashes = 0;
    for (const wchar_t c : word)
    {
        slashes = c == L'\\' ? slashes + 1 : 0;
        if (c == L'"')
        {
            // The backslashes before a quote count double, and one more makes the quote a letter.
            text.append(text.size() - text.find_last_not_of(L'\\') - 1, L'\\');
            text += L'\\';
        }
        text += c;
    }
    return text.append(slashes, L'\\') + L"\"";
}

unique_handle open_stream(const std::filesystem::path& path, DWORD access, DWORD disposition)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    const HANDLE handle = ::CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                                        disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return unique_handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}
} // namespace

std::filesystem::path tests_folder()
{
    wchar_t name[4096];
    ::GetModuleFileNameW(nullptr, name, 4096);
    return std::filesystem::path(name).parent_path();
}

int start_and_wait(const Start& start)
{
    const unique_handle in = open_stream(start.in, GENERIC_READ, OPEN_EXISTING);
    const unique_handle out = open_stream(start.out, GENERIC_WRITE, CREATE_ALWAYS);
    const unique_handle err = open_stream(start.err, GENERIC_WRITE, CREATE_ALWAYS);
    STARTUPINFOW info = {};
    info.cb = sizeof info;
    info.dwFlags = STARTF_USESTDHANDLES;
    info.hStdInput = in.get();
    info.hStdOutput = out.get();
    info.hStdError = err.get();
    std::wstring line = quoted(start.program.wstring());
    for (const std::string& argument : start.arguments)
        line += L" " + quoted(wide(argument));
    for (const auto& [name, value] : start.environment)
        ::SetEnvironmentVariableW(wide(name).c_str(), wide(value).c_str());
    PROCESS_INFORMATION process = {};
    const BOOL started = ::CreateProcessW(start.program.c_str(), line.data(), nullptr, nullptr, TRUE, 0,
                                          nullptr, start.folder.c_str(), &info, &process);
    for (const auto& [name, value] : start.environment)
        ::SetEnvironmentVariableW(wide(name).c_str(), nullptr);
    if (!started)
        return -1;
    const unique_handle child(process.hProcess);
    const unique_handle thread(process.hThread);
    DWORD status = 0;
    ::WaitForSingleObject(child.get(), INFINITE);
    ::GetExitCodeProcess(child.get(), &status);
    return static_cast<int>(status);
}
