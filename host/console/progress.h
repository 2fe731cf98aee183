#pragma once

#include <functional>
#include <string>

/// Shows how far long work is; false when the user gives it up. The name of the work is UTF-8.
using CProgressSink = std::function<bool(const std::string& strWork, std::size_t nDone, std::size_t nAll)>;

/// Makes `sink` the one that shows progress; an empty one takes it away.
void SetProgressSink(CProgressSink sink);

/// Tells the registered one; true without one. Long work tells it 0 as it begins and, if something that
/// cannot be given up follows it, nAll as it ends.
bool ShowProgress(const std::string& strWork, std::size_t nDone, std::size_t nAll);
