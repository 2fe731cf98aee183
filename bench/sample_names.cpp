#include "bench/sample_names.h"

#include <cstdio>
#include <cstdlib>

void Fail(const char* pszWhat) {
    std::fprintf(stderr, "%s\n", pszWhat);
    std::abort();
}

std::string BoreholeOf(int nSample) {
    return "ZK" + std::to_string(nSample / 10 + 1);
}

std::string SampleOf(int nSample) {
    return std::to_string(nSample / 10 + 1) + "-" + std::to_string(nSample % 10 + 1);
}
