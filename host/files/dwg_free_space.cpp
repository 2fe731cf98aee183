#include "host/files/dwg_free_space.h"

#include "host/files/bit_writer.h"

CBytes WriteDwgFreeSpace(const CDwgFreeSpace& space) {
    CBitWriter bits;
    bits.RL(std::uint32_t{0});
    bits.RL(space.m_nObjects);
    bits.RL(space.m_tdupdate.m_nDay);
    bits.RL(space.m_tdupdate.m_nMilliseconds);
    bits.RL(space.m_nFirstObject);
    bits.RC(4); // as many limits of 64 bits follow
    for (const std::uint32_t nLimit : {0x32u, 0x64u, 0x200u, 0xFFFFFFFFu}) {
        bits.RL(nLimit);
        bits.RL(std::uint32_t{0});
    }
    return bits.Take();
}
