#pragma once

#include <cstdint>

/// A fixed type of a drawing file's objects.
struct CDwgType {
    std::uint16_t m_nCode;
    bool m_bEntity;
    const wchar_t* m_pDxfName;
    const wchar_t* m_pClassName;
};

/// The type of a code; null for a code that is none.
const CDwgType* FindDwgType(std::uint16_t nCode);
