#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include "tests/temp_folder.h"

/// The content of a file that another process is about to make; empty when it is not there after a minute.
inline std::string WaitedFile(const CTempFolder& folder, const std::string& strName) {
    for (int nTry = 0; nTry < 12000 && !std::filesystem::exists(folder.Path(strName)); ++nTry)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return folder.Read(strName);
}
