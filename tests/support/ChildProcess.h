#pragma once

#include <gtest/gtest.h>

#include <cstdio>

#include <grp.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

/// \file
/// Parts of a test that run in a process of their own, to be killed or to lose rights. They use the assertions of the
/// test.

namespace support {

/// Lets permissions bind this process: root gives up its rights for good.
inline void becomeNobody()
{
    constexpr unsigned nobody = 65534;
    if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(nobody) != 0 || setuid(nobody) != 0)) {
        _exit(127);
    }
}

/// Starts a process that runs `work` and then ends, with 0 when no assertion failed in it.
template <typename Work>
pid_t startChild(const Work &work)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        work();
        std::fflush(nullptr);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    EXPECT_NE(child, -1);
    return child;
}

/// Waits for the end of a process. How it ended, as `waitpid` says it: 0 when all went well.
inline int waitForChild(pid_t child)
{
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
}

template <typename Work>
void runInChild(const Work &work)
{
    EXPECT_EQ(waitForChild(startChild(work)), 0);
}

/// Runs `work` as a user whom permissions bind: the one who runs the tests, or nobody when that is root.
template <typename Work>
void runAsNobody(const Work &work)
{
    runInChild([&work] {
        becomeNobody();
        work();
    });
}

} // namespace support
