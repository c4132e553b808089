#include "tests/support/Self.h"

#include <string>
#include <string_view>
#include <windows.h>

int run_self(const char* filter)
{
    wchar_t path[MAX_PATH] = L"";
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::string_view tests(filter);
    std::wstring command = std::wstring(L"\"") + path + L"\" --gtest_filter=";
    command += std::wstring(tests.begin(), tests.end()) + L" --gtest_brief=1";
    ::SetEnvironmentVariableW(L"TARVO_TEST_CHILD", L"1");
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    const BOOL started = ::CreateProcessW(path, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                                          &startup, &process);
    ::SetEnvironmentVariableW(L"TARVO_TEST_CHILD", nullptr);
    if (!started)
        return -1;
    DWORD code = static_cast<DWORD>(-1);
    ::WaitForSingleObject(process.hProcess, INFINITE);
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return static_cast<int>(code);
}

bool is_run_by_self() { return ::GetEnvironmentVariableW(L"TARVO_TEST_CHILD", nullptr, 0) > 0; }
