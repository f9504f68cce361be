#pragma once

#include <gtest/gtest.h>

#include <barrier>
#include <thread>
#include <vector>

namespace threads {

constexpr int count = 4;
constexpr int rounds = 25;

/// Does the work again and again in several threads that start together. It gets the number of its thread.
template <typename Work>
void atOnce(const Work &work)
{
    std::barrier start(count);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < count; ++thread) {
        threads.emplace_back([&work, &start, thread] {
            start.arrive_and_wait();
            for (int round = 0; round < rounds; ++round) {
                work(thread);
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
}

/// Requires that `operation` gives in several threads at once what it gives in one.
template <typename Operation>
void expectSameAtOnce(const Operation &operation)
{
    const auto expected = operation();
    atOnce([&](int) { EXPECT_TRUE(operation() == expected); });
}

} // namespace threads
