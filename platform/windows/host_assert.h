#pragma once

/// Prints the sentence with its place, a file without its folder, on standard error and aborts.
[[noreturn]] void FailHostAssert(const char* file, int line, const char* condition, const char* sentence);

/// Stops the process when a promise of our own code is broken (a bad index, an unregistered name).
/// It is on in every build: going on would write a wrong drawing. Sentences are ASCII.
#define HOST_ASSERT(condition, sentence)                                                                     \
    ((condition) ? static_cast<void>(0) : FailHostAssert(__FILE_NAME__, __LINE__, #condition, sentence))
