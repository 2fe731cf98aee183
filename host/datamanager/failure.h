#pragma once

#include <stdexcept>
#include <string>

/// What the program ends with.
enum class ExitStatus {
    Done = 0,
    Refused = 1, ///< what was asked for cannot be done with these data
    Usage = 2,
    NoAccess = 4, ///< a file or database cannot be read or written
};

/// Ends a call of the program. what() is the line for standard error, UTF-8.
class CFailure : public std::runtime_error {
public:
    CFailure(ExitStatus status, const std::string& strWhat)
        : std::runtime_error(strWhat)
        , m_status(status) {}

    [[nodiscard]] ExitStatus Status() const { return m_status; }

private:
    ExitStatus m_status;
};
