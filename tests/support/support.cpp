// Shared test helpers: stderr capture, fresh threads and child processes, and the
// allocation-failure sweep over the service library's fault control.
#include "tests/support/support.h"

#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/serv.h"

namespace brenn::test {

std::string CaptureStderr(const std::function<void()>& body) {
    fflush(stderr);
    char path[] = "/tmp/brenn-stderr-XXXXXX";
    int fd = mkstemp(path);
    if (fd < 0) return {};
    unlink(path);
    int saved = dup(2);
    dup2(fd, 2);
    body();
    fflush(stderr);
    dup2(saved, 2);
    close(saved);
    std::string text;
    lseek(fd, 0, SEEK_SET);
    char buffer[4096];
    ssize_t n;
    while ((n = read(fd, buffer, sizeof buffer)) > 0) text.append(buffer, static_cast<size_t>(n));
    close(fd);
    return text;
}

void RunInThread(const std::function<void()>& body) {
    std::thread t(body);
    t.join();
}

int RunInChild(const std::function<void()>& body) {
    fflush(nullptr);
    pid_t pid = fork();
    if (pid == 0) {
        body();
        _exit(0);
    }
    int status = 0;
    waitpid(pid, &status, 0);
    return status;
}

void SweepAllocationFailures(const std::function<bool()>& attempt, int limit) {
    for (int n = 1; n <= limit; ++n) {
        int64_t before = brenn_serv_live_allocations();
        brenn_serv_fail_allocation(n);
        bool ok = attempt();
        bool reached = brenn_serv_fail_allocation(0) == 0;
        EXPECT_EQ(brenn_serv_live_allocations(), before) << "leak with allocation " << n << " failing";
        if (!reached) {
            EXPECT_TRUE(ok) << "failed although no allocation failed (n = " << n << ")";
            return;
        }
        EXPECT_FALSE(ok) << "succeeded although allocation " << n << " failed";
    }
    ADD_FAILURE() << "allocation sweep did not finish within " << limit << " steps";
}

} // namespace brenn::test
