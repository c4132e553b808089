#include "program.h"

#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

const char* const program_suffix = "";

std::filesystem::path tests_folder() { return std::filesystem::read_symlink("/proc/self/exe").parent_path(); }

int start_and_wait(const Start& start)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, start.in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, start.out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addopen(&actions, 2, start.err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addchdir_np(&actions, start.folder.c_str());

    std::vector<std::string> words{start.program.string()};
    words.insert(words.end(), start.arguments.begin(), start.arguments.end());
    std::vector<std::string> variables;
    for (char** variable = environ; *variable != nullptr; ++variable)
    {
        const std::string text = *variable;
        if (!start.environment.contains(text.substr(0, text.find('='))))
            variables.push_back(text);
    }
    for (const auto& [name, value] : start.environment)
        variables.push_back(name + "=" + value);
    const auto pointers = [](std::vector<std::string>& texts) {
        std::vector<char*> out;
        for (std::string& text : texts)
            out.push_back(text.data());
        out.push_back(nullptr);
        return out;
    };

    pid_t child = 0;
    const int error = ::posix_spawn(&child, start.program.c_str(), &actions, nullptr, pointers(words).data(),
                                    pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    if (error != 0 || ::waitpid(child, &status, 0) != child)
        return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}
