#pragma once

#include <sys/types.h>

#include <functional>

/// Runs work in a process of its own, in a session of its own, that holds none of this one's streams and
/// files, and returns its id as soon as the work calls what it is given, that is when it is ready. A CFailure
/// that it throws before comes out of this call.
pid_t RunInBackground(const std::function<void(const std::function<void()>& fnReady)>& fnWork);
