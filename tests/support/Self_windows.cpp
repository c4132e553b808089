#include "tests/support/Self.h"

#include <string>
#include <windows.h>

int run_self(const char* filter)
{
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    std::string command = std::string("\"") + path + "\" --gtest_filter=" + filter + " --gtest_brief=1";
    ::SetEnvironmentVariableA("TARVO_TEST_CHILD", "1");
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    const BOOL started = ::CreateProcessA(path, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                                          &startup, &process);
    ::SetEnvironmentVariableA("TARVO_TEST_CHILD", nullptr);
    if (!started)
        return -1;
    DWORD code = static_cast<DWORD>(-1);
    ::WaitForSingleObject(process.hProcess, INFINITE);
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return static_cast<int>(code);
}

bool is_run_by_self() { return ::GetEnvironmentVariableA("TARVO_TEST_CHILD", nullptr, 0) > 0; }
