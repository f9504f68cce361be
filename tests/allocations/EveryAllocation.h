#pragma once

#include <tests/allocations/FailingAllocator.h>
#include <tests/support/ChildProcess.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <new>
#include <optional>

#include <fcntl.h>
#include <unistd.h>

/// \file
/// Operations whose first allocation fails, then whose second one fails, and so on until they need no more.

namespace allocations {

/// What is put up with, beside doing the work and leaving the object as it was.
enum class Allowed {
    Nothing,

    /// Qt ends the program itself: a `QHash` that grows does it in a function that must not throw, and a list that is
    /// made of braces or leaves what it shares does not look whether it got memory.
    EndByQt,
};

/// How an operation ended.
enum class Outcome {
    Succeeded,     ///< with what it gives when no allocation fails
    SucceededLate, ///< the same, although one failed
    Threw,         ///< `std::bad_alloc`, and the object is as it was before
    WrongResult,
    ChangedObject,
    OtherException,
    Leaked,
    Crashed,
};

inline const char *description(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Succeeded:
    case Outcome::SucceededLate:
        return "succeeded";
    case Outcome::Threw:
        return "threw std::bad_alloc";
    case Outcome::WrongResult:
        return "went on and gave a wrong result";
    case Outcome::ChangedObject:
        return "threw std::bad_alloc and left an object that is neither as before nor done, or cannot be tried again";
    case Outcome::OtherException:
        return "threw another exception";
    case Outcome::Leaked:
        return "leaked";
    case Outcome::Crashed:
        break;
    }
    return "crashed";
}

/// Carries the operation out in this process, with the allocation of this number failing.
template <typename Make, typename Act, typename State>
Outcome outcomeOf(const Make &make, const Act &act, const State &expected, std::size_t number, Failure failure)
{
    const std::ptrdiff_t blocksBefore = liveBlocks();
    Outcome outcome = Outcome::Succeeded;
    {
        State state = make();
        bool hasThrown = false;
        bool isOther = false;
        failAt(number, failure);
        try {
            act(state);
        } catch (const std::bad_alloc &) {
            hasThrown = true;
        } catch (...) {
            isOther = true;
        }
        const bool hasFailed = endFailures();
        if (isOther) {
            outcome = Outcome::OtherException;
        } else if (hasThrown) {
            const bool isAsBefore = state == make() || state == expected;
            act(state);
            outcome = isAsBefore && state == expected ? Outcome::Threw : Outcome::ChangedObject;
        } else if (!(state == expected)) {
            outcome = Outcome::WrongResult;
        } else if (hasFailed) {
            outcome = Outcome::SucceededLate;
        }
    }
    return liveBlocks() > blocksBefore ? Outcome::Leaked : outcome;
}

/// The same in a process of its own.
template <typename Make, typename Act, typename State>
Outcome outcomeInChild(const Make &make, const Act &act, const State &expected, std::size_t number, Failure failure)
{
    const pid_t child = fork();
    if (child == 0) {
        dup2(open("/dev/null", O_WRONLY), STDERR_FILENO); // to which a crash writes
        _exit(static_cast<int>(outcomeOf(make, act, expected, number, failure)));
    }
    const int status = support::waitForChild(child);
    return WIFEXITED(status) ? static_cast<Outcome>(WEXITSTATUS(status)) : Outcome::Crashed;
}

inline bool isAllowed(Outcome outcome, Allowed allowed)
{
    switch (outcome) {
    case Outcome::Threw:
    case Outcome::SucceededLate:
        return true;
    case Outcome::Crashed:
        return allowed != Allowed::Nothing;
    default:
        return false;
    }
}

/// Requires that `act` on what `make` gives either does its work or throws `std::bad_alloc`, leaves the object as it
/// was or with its work done, does its work when it is tried again, and keeps no memory, whichever allocation fails.
template <typename Make, typename Act>
void failEveryAllocation(const Make &make, const Act &act, Allowed allowed = Allowed::Nothing)
{
    auto expected = make();
    for (int round = 0; round < 3; ++round) { // what is kept for later is made here
        auto state = make();
        act(state);
        expected = std::move(state);
    }
    int failures = 0;
    for (const Failure failure : {Failure::Once, Failure::ForGood}) {
        for (std::size_t number = 1;; ++number) {
            const Outcome outcome = outcomeInChild(make, act, expected, number, failure);
            if (outcome == Outcome::Succeeded) {
                break;
            }
            ++failures;
            ASSERT_TRUE(isAllowed(outcome, allowed))
                << "allocation " << number << (failure == Failure::Once ? "" : " and all later ones") << ": it "
                << description(outcome);
        }
    }
    std::printf("%d failed allocations\n", failures);
}

/// The same for a function of no object, by its result.
template <typename Function>
void failEveryAllocationOf(const Function &function, Allowed allowed = Allowed::Nothing)
{
    using Result = decltype(function());
    failEveryAllocation([] { return std::optional<Result>(); },
                        [&function](std::optional<Result> &result) { result = function(); }, allowed);
}

} // namespace allocations
