#include "host/files/dxf_reader.h"

#include "host/files/dxf_ascii_reader.h"
#include "host/files/dxf_binary_reader.h"

namespace {
constexpr int g_nComment = 999;
}

bool CDxfReader::Next(CDxfTag* pTag) {
    while (Read(pTag))
        if (pTag->m_nCode != g_nComment) return true;
    return false;
}

std::unique_ptr<CDxfReader> OpenDxf(std::string_view bytes) {
    if (bytes.starts_with(g_szDxfBinarySentinel)) return std::make_unique<CDxfBinaryReader>(bytes);
    return std::make_unique<CDxfAsciiReader>(bytes);
}
