// A DXF file of whatever bytes: refused, or read into a drawing that can be written and read again.

#include "host/files/dxf_failure.h"
#include "host/files/dxf_read.h"
#include "host/files/dxf_write.h"

#include <cstdint>
#include <cstdlib>

namespace {

bool Read(std::string_view bytes, AcDbDatabase& drawing) {
    try {
        ReadDxf(bytes, drawing);
        return true;
    } catch (const CDxfFailure&) {
        return false;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    AcDbDatabase drawing, again;
    if (!Read({reinterpret_cast<const char*>(pData), nSize}, drawing)) return 0;
    if (!Read(WriteDxf(drawing).m_strBytes, again)) std::abort();
    return 0;
}
