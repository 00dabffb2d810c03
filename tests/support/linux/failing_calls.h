#pragma once

/// Calls of the system that fail at a test's wish: of those of the library failing_calls.cpp, which is loaded before
/// the system's own (LD_PRELOAD). Only what concerns ordinary files fails.
struct FailingCalls {
    /// "write", "fsync", "fdatasync", "close" (of a file open for writing), "rename"; "nameless" for opening a file
    /// that has no name yet; none when it is null.
    const char *call = nullptr;
    /// The error number that they give.
    int error = 0;
    /// So many go well before the first one fails.
    int after = 0;
    /// So many fail.
    int times = 1 << 30;
    /// How many have failed.
    int failed = 0;
};

/// Under this name the library has what its calls obey: a function without arguments that returns a pointer to it.
inline constexpr const char *failing_calls_name = "zimbora_failing_calls";
extern "C" {
using FailingCallsGetter = FailingCalls *(*)();
}
