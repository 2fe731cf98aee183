// The content of an object of a drawing file of which all else is whole.

#include "host/files/bit_reader.h"
#include "tests/fuzz/dwg_input.h"

namespace {

/// The handle that the object says it has.
std::uint64_t HandleOf(CByteView content) {
    CBitReader bits(content);
    std::uint16_t nType = 0;
    std::uint32_t nFrontBits = 0;
    CDwgHandle handle;
    bits.BS(nType);
    bits.RL(nFrontBits);
    bits.H(handle);
    return handle.m_nValue;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static const CModuleClasses classes;
    static const CDwgFile whole = DwgOfEveryKind();
    const CByteView content(pData, nSize);
    CDwgFile file = whole;
    if (const std::uint64_t nHandle = HandleOf(content))
        file.m_contents[nHandle].assign(content.begin(), content.end());
    ReadWriteAndRead(WriteDwgFile(file));
    return 0;
}
