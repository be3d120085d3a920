// Helpers shared by the tests: capture of standard error, running a body in a fresh
// thread or a child process, and an allocation-failure sweep.
#ifndef BRENN_TESTS_SUPPORT_H
#define BRENN_TESTS_SUPPORT_H

#include <functional>
#include <string>

namespace brenn::test {

// Runs body with file descriptor 2 sent to a temporary file; returns what was written.
std::string CaptureStderr(const std::function<void()>& body);

// Runs body on a new thread and waits for it.
void RunInThread(const std::function<void()>& body);

// Forks; the child runs body and exits 0. Returns the child's wait status.
int RunInChild(const std::function<void()>& body);

// Calls attempt with the n-th allocation made to fail, for n = 1, 2, ... until an
// attempt makes fewer than n allocations. Every attempt must leave the count of live
// blocks as it found it (attempt frees what a successful call made); attempts that
// met the failure must report failure, and the last one success.
void SweepAllocationFailures(const std::function<bool()>& attempt, int limit = 10000);

} // namespace brenn::test

#endif
