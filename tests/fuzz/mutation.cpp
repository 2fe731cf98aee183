#include "tests/fuzz/mutation.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

using CChange = void (*)(CInput& input, std::span<const CInput> corpus, CRandom& random);

struct CRange {
    std::ptrdiff_t m_nFirst, m_nLast;
};

/// Two places in order, from the start to the end of an input.
CRange SomeRange(const CInput& input, CRandom& random) {
    const auto nFirst = static_cast<std::ptrdiff_t>(random.Below(input.size() + 1));
    const auto nLast = static_cast<std::ptrdiff_t>(random.Below(input.size() + 1));
    return {std::min(nFirst, nLast), std::max(nFirst, nLast)};
}

void TurnBit(CInput& input, std::span<const CInput>, CRandom& random) {
    if (!input.empty()) input[random.Below(input.size())] ^= static_cast<std::uint8_t>(1U << random.Below(8));
}

void SetByte(CInput& input, std::span<const CInput>, CRandom& random) {
    if (!input.empty()) input[random.Below(input.size())] = static_cast<std::uint8_t>(random.Below(256));
}

void CutEnd(CInput& input, std::span<const CInput>, CRandom& random) {
    input.resize(random.Below(input.size() + 1));
}

void CutPart(CInput& input, std::span<const CInput>, CRandom& random) {
    const CRange part = SomeRange(input, random);
    input.erase(input.begin() + part.m_nFirst, input.begin() + part.m_nLast);
}

void PutIn(CInput& input, const CInput& source, CRandom& random) {
    const CRange part = SomeRange(source, random);
    const CInput copy(source.begin() + part.m_nFirst, source.begin() + part.m_nLast);
    const auto nAt = static_cast<std::ptrdiff_t>(random.Below(input.size() + 1));
    input.insert(input.begin() + nAt, copy.begin(), copy.end());
}

void DoublePart(CInput& input, std::span<const CInput>, CRandom& random) {
    PutIn(input, CInput(input), random);
}

void Splice(CInput& input, std::span<const CInput> corpus, CRandom& random) {
    PutIn(input, corpus[random.Below(corpus.size())], random);
}

/// What counts and lengths of 16 and 32 bits turn over at, and lengths just beyond what is there.
void SetExtreme(CInput& input, std::span<const CInput>, CRandom& random) {
    const auto nSize = static_cast<std::uint32_t>(input.size());
    const std::array<std::uint32_t, 10> extremes = {
        0, 1, 0x7FFF, 0x8000, 0xFFFF, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFF, nSize + 1, nSize / 4};
    const std::uint32_t nValue = extremes[random.Below(extremes.size())];
    const std::size_t nBytes = random.Below(2) == 0 ? 2 : 4;
    if (input.size() < nBytes) return;
    std::memcpy(input.data() + random.Below(input.size() - nBytes + 1), &nValue, nBytes);
}

constexpr std::array<CChange, 8> g_changes = {TurnBit, SetByte,    CutEnd,     CutPart,
                                              Splice,  DoublePart, SetExtreme, SetExtreme};

} // namespace

std::uint64_t CRandom::Next() {
    m_nState += 0x9E3779B97F4A7C15U;
    std::uint64_t nMixed = m_nState;
    nMixed = (nMixed ^ (nMixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    nMixed = (nMixed ^ (nMixed >> 27U)) * 0x94D049BB133111EBU;
    return nMixed ^ (nMixed >> 31U);
}

CInput Mutate(std::span<const CInput> corpus, CRandom& random) {
    CInput input = corpus[random.Below(corpus.size())];
    for (std::size_t nLeft = 1 + random.Below(4); nLeft > 0; --nLeft)
        g_changes[random.Below(g_changes.size())](input, corpus, random);
    if (input.size() > g_nLongestInput) input.resize(g_nLongestInput);
    return input;
}
