#include "host/files/dwg_handle.h"

std::uint64_t CDwgHandle::Target(std::uint64_t nOwn) const {
    switch (m_nCode) {
    case s_nOwn:
    case s_nSoftOwner:
    case s_nHardOwner:
    case s_nSoftPointer:
    case s_nHardPointer:
        return m_nValue;
    case 0x6:
        return nOwn + 1;
    case 0x8:
        return nOwn - 1;
    case 0xA:
        return nOwn + m_nValue;
    case 0xC:
        return nOwn - m_nValue;
    default:
        return 0;
    }
}
