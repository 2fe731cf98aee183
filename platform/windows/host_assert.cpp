#include "platform/windows/host_assert.h"

#include <cstdio>
#include <cstdlib>

void FailHostAssert(const char* file, int line, const char* condition, const char* sentence) {
    std::fprintf(stderr, "%s:%d: %s (%s)\n", file, line, sentence, condition);
    std::fflush(stderr);
    std::abort();
}
