#pragma once

#include <sys/types.h>

#include <string>

/// An X server without a screen, with a display of its own; it ends with this, or with the program.
class CVirtualDisplay {
public:
    /// The screen's size as `1280x800`. Throws when the server does not start.
    explicit CVirtualDisplay(const std::string& strPixels);
    CVirtualDisplay(const CVirtualDisplay&) = delete;
    CVirtualDisplay& operator=(const CVirtualDisplay&) = delete;
    ~CVirtualDisplay();

    /// What DISPLAY says of it.
    [[nodiscard]] const std::string& Name() const { return m_strName; }

private:
    pid_t m_nProcess = -1;
    std::string m_strName = ":";
};
