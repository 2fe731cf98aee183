#pragma once

#include <unistd.h>

#include <utility>

/// Owns a file descriptor.
class CDescriptor {
public:
    CDescriptor() = default;
    explicit CDescriptor(int descriptor)
        : m_nDescriptor(descriptor) {}
    CDescriptor(CDescriptor&& other) noexcept
        : m_nDescriptor(std::exchange(other.m_nDescriptor, -1)) {}
    CDescriptor& operator=(CDescriptor&& other) noexcept {
        std::swap(m_nDescriptor, other.m_nDescriptor);
        return *this;
    }
    ~CDescriptor() {
        if (m_nDescriptor >= 0) close(m_nDescriptor);
    }

    explicit operator bool() const { return m_nDescriptor >= 0; }
    int Get() const { return m_nDescriptor; }
    /// False when what was written last could not be stored.
    bool Close() { return close(std::exchange(m_nDescriptor, -1)) == 0; }

private:
    int m_nDescriptor = -1;
};
