#pragma once

#include <sys/types.h>

#include "platform/windows/descriptor.h"

/// Finds out whether a window can be opened: whether the platform of Qt that the environment asks for
/// (QT_QPA_PLATFORM, DISPLAY, WAYLAND_DISPLAY) starts and finds its display. Qt ends a process where it does
/// not, so another one tries. That one keeps its display as long as the probe lives, since a display without
/// other programs starts anew when its last one leaves. Made before this process has threads.
class CDisplayProbe {
public:
    CDisplayProbe();
    ~CDisplayProbe();
    CDisplayProbe(const CDisplayProbe&) = delete;
    CDisplayProbe& operator=(const CDisplayProbe&) = delete;

    [[nodiscard]] bool Found() const { return m_bFound; }

private:
    pid_t m_nProcess = -1;
    CDescriptor m_line; ///< its end tells the other process to go
    bool m_bFound = false;
};
