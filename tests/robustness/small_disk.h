#pragma once

#include "tests/temp_folder.h"

/// A file system of a few megabytes in a folder of its own, where this user may mount one; none for 0.
class CSmallDisk {
public:
    explicit CSmallDisk(std::size_t nMegabytes);
    CSmallDisk(const CSmallDisk&) = delete;
    CSmallDisk& operator=(const CSmallDisk&) = delete;
    ~CSmallDisk();

    [[nodiscard]] bool IsMounted() const { return m_bMounted; }
    [[nodiscard]] std::string Path(const std::string& strName = {}) const { return m_folder.Path(strName); }
    /// Takes all the room there is but for nFree bytes.
    void Fill(std::size_t nFree = 0) const;
    void Empty() const;

private:
    CTempFolder m_folder;
    bool m_bMounted;
};
