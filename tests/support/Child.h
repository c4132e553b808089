#pragma once

#include <sys/wait.h>
#include <unistd.h>

extern "C" void __gcov_dump() __attribute__((weak));

/// Starts a copy of this process that runs \p body and ends with its result (0 to 255).
template <class Body>
pid_t start_child(Body body)
{
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    const int result = body();
    if (__gcov_dump)
        __gcov_dump(); // _exit would lose what the child covered
    ::_exit(result);
}

/// The result of a child that start_child started; -1 when it did not end by itself.
inline int join_child(pid_t child)
{
    int status = 0;
    if (child <= 0 || ::waitpid(child, &status, 0) != child || !WIFEXITED(status))
        return -1;
    return WEXITSTATUS(status);
}

/// Runs \p body in a copy of this process, where it may change the user, limits or the environment.
template <class Body>
int in_child(Body body)
{
    return join_child(start_child(body));
}
