#pragma once

#include <string>

/// The folder (UTF-8) for this user's sockets: $XDG_RUNTIME_DIR, else one of mode 0700 below the temporary
/// folder, made if need be. Empty when that one is not this user's own. A folder in XDG_RUNTIME_DIR that is
/// not there or belongs to another user counts as none.
std::string RuntimeDir();

/// Sets XDG_RUNTIME_DIR to the second of the two when it is unset; to be called first thing in a program,
/// before it has threads.
void EnsureRuntimeDir();
