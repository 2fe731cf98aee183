#pragma once

#include "tests/temp_folder.h"

/// A folder for the files of a target's inputs: in memory where the system has a place for that, since
/// thousands are written and synchronized.
inline const CTempFolder& InputFolder() {
    if (std::filesystem::is_directory("/dev/shm")) setenv("TMPDIR", "/dev/shm", 0);
    static const CTempFolder folder;
    return folder;
}
