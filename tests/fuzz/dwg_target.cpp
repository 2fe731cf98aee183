// A drawing file of whatever bytes, and the same with its check sums set right.

#include "tests/fuzz/dwg_input.h"
#include "tests/fuzz/dwg_sums.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static const CModuleClasses classes;
    const CInput input(pData, pData + nSize), summed = WithSumsRight(input);
    ReadWriteAndRead(input);
    if (summed != input) ReadWriteAndRead(summed);
    return 0;
}
