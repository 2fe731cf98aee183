#pragma once

#include <cstdint>

/// A reference to an object as it stands in a drawing file: its kind and, by it, how the number is meant.
struct CDwgHandle {
    // The kinds whose number is the handle itself; those above give it relative to the object they stand in.
    static constexpr std::uint8_t s_nOwn = 0, s_nSoftOwner = 2, s_nHardOwner = 3, s_nSoftPointer = 4,
                                  s_nHardPointer = 5;

    std::uint8_t m_nCode = 0;
    std::uint64_t m_nValue = 0;

    bool operator==(const CDwgHandle&) const = default;

    /// The handle of what is referred to from the object nOwn; 0 for none and for a kind that is none.
    std::uint64_t Target(std::uint64_t nOwn) const;
};

inline constexpr CDwgHandle SoftOwner(std::uint64_t nHandle) {
    return {CDwgHandle::s_nSoftOwner, nHandle};
}
inline constexpr CDwgHandle HardOwner(std::uint64_t nHandle) {
    return {CDwgHandle::s_nHardOwner, nHandle};
}
inline constexpr CDwgHandle SoftPointer(std::uint64_t nHandle) {
    return {CDwgHandle::s_nSoftPointer, nHandle};
}
inline constexpr CDwgHandle HardPointer(std::uint64_t nHandle) {
    return {CDwgHandle::s_nHardPointer, nHandle};
}
