#pragma once

#include <string>
#include <vector>

/// Starts a program (UTF-8 path) in a session of its own, with no stream and no file of this process, in the
/// folder given (empty: the current one). It is nobody's child here: it leaves no dead process to wait for,
/// and outlives this one. Returns 0 once the program itself runs, else the errno that kept it from it.
int StartDetached(const std::string& program, const std::vector<std::string>& arguments,
                  const std::string& folder);
