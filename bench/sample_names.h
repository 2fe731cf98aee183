#pragma once

#include <string>

// What the benchmarks of the record classes read: 1,000 samples of 60 readings each.

constexpr int g_nSamples = 1000;
constexpr int g_nReadings = 60;

/// Ends the program: figures of something that fails are worth nothing.
[[noreturn]] void Fail(const char* pszWhat);

std::string BoreholeOf(int nSample);
std::string SampleOf(int nSample);
