#include "frame/frame_entity.h"
#include "tests/fuzz/record_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    return ReadRecord<CBRENFrame>({pData, nSize});
}
