#include "host/files/dwg_crc.h"

#include <array>

namespace {

constexpr std::array<std::uint16_t, 256> Table() {
    std::array<std::uint16_t, 256> table{};
    for (unsigned i = 0; i < table.size(); ++i) {
        unsigned nValue = i;
        for (int bit = 0; bit < 8; ++bit)
            nValue = nValue & 1 ? nValue >> 1 ^ 0xA001 : nValue >> 1;
        table[i] = static_cast<std::uint16_t>(nValue);
    }
    return table;
}

constexpr std::array<std::uint16_t, 256> g_table = Table();

} // namespace

std::uint16_t DwgCrc(CByteView bytes, std::uint16_t nSeed) {
    unsigned nSum = nSeed;
    for (const std::uint8_t byte : bytes)
        nSum = nSum >> 8 ^ g_table[(nSum ^ byte) & 0xFF];
    return static_cast<std::uint16_t>(nSum);
}
