#pragma once
// How one input becomes another. The same generator state gives the same input everywhere.

#include <cstdint>
#include <span>
#include <vector>

using CInput = std::vector<std::uint8_t>;

/// A generator of its own: what the standard's distributions give differs from library to library.
class CRandom {
public:
    explicit CRandom(std::uint64_t nSeed)
        : m_nState(nSeed) {}
    std::uint64_t Next();
    /// From 0 to below nCount, which is not 0.
    std::size_t Below(std::size_t nCount) { return static_cast<std::size_t>(Next() % nCount); }

private:
    std::uint64_t m_nState;
};

inline constexpr std::size_t g_nLongestInput = 1U << 16U;

/// One of the corpus after one to four changes: bits turned, bytes set, parts cut out or doubled, another
/// input's part put in, a length field's place filled with an extreme. The corpus is not empty.
CInput Mutate(std::span<const CInput> corpus, CRandom& random);
