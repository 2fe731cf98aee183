#include "host/files/dwg_classes.h"

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"
#include "host/files/dwg_error.h"

#include <set>

namespace {

constexpr std::uint16_t g_nEntityItems = 0x1F2, g_nObjectItems = 0x1F3;

/// All of an entry but its last value.
template <class Bits, class Class>
void FileClass(Bits& bits, Class& entry) {
    bits.BS(entry.m_nNumber);
    bits.BS(entry.m_nProxyFlags);
    bits.T(entry.m_strAppName);
    bits.T(entry.m_strClassName);
    bits.T(entry.m_strDxfName);
    bits.B(entry.m_bWasProxy);
}

} // namespace

std::vector<CDwgClass> ReadDwgClasses(CByteView data) {
    std::vector<CDwgClass> classes;
    std::set<std::uint16_t> numbers;
    CBitReader bits(data);
    while (bits.Left() >= 8) { // less is the filling of the last byte
        CDwgClass& entry = classes.emplace_back();
        std::uint16_t nItems = 0;
        FileClass(bits, entry);
        bits.BS(nItems);
        entry.m_bEntities = nItems == g_nEntityItems;
        if (bits.Failed()) throw CDwgError("Classes: the data end within an entry.");
        if (entry.m_nNumber < g_nDwgFirstClass || !numbers.insert(entry.m_nNumber).second)
            throw CDwgError("Classes: number " + std::to_string(entry.m_nNumber) +
                            " is taken or no class's.");
    }
    return classes;
}

CBytes WriteDwgClasses(const std::vector<CDwgClass>& classes) {
    CBitWriter bits;
    for (const CDwgClass& entry : classes) {
        FileClass(bits, entry);
        bits.BS(entry.m_bEntities ? g_nEntityItems : g_nObjectItems);
    }
    if (bits.Failed()) throw CDwgError("Classes: a name is too long.");
    return bits.Take();
}
