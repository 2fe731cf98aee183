#include "host/console/output_file.h"

#include "host/console/answers.h"
#include "platform/windows/file_bytes.h"

#include <cerrno>
#include <cstring>

void WriteOutputFile(const std::string& path, const std::string& content) {
    if (!WriteFileWhole(path, content))
        throw CRunFailure(EXIT_FILE_FAILED, path + " cannot be written: " + std::strerror(errno));
}
