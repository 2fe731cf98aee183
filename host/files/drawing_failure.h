#pragma once

#include "platform/acad/error_status.h"

#include <stdexcept>
#include <string>

/// Why a drawing cannot be read from a file or written to one, for the user; UTF-8, without the file's name.
class CDrawingFailure : public std::runtime_error {
public:
    CDrawingFailure(Acad::ErrorStatus status, const std::string& strWhat)
        : std::runtime_error(strWhat)
        , m_status(status) {}
    /// eFileNotFound; eFileAccessErr for a file that cannot be read or written; eFilerError for what it
    /// holds, or cannot hold; eWasOpenForWrite.
    Acad::ErrorStatus Status() const { return m_status; }

private:
    Acad::ErrorStatus m_status;
};
