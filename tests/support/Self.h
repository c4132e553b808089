#pragma once

/// Runs this test program once more with the one test \p filter and the environment variable
/// TARVO_TEST_CHILD set, for tests of what happens while a program is loaded. The result is its exit
/// code, 0 when the test passed; -1 when it could not be run.
int run_self(const char* filter);

/// True in a program that run_self started.
bool is_run_by_self();
