#include "host/files/dwg_file.h"

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"
#include "host/files/dwg_aux_header.h"
#include "host/files/dwg_error.h"
#include "host/files/dwg_free_space.h"
#include "host/files/dwg_marked_section.h"
#include "host/files/dwg_second_header.h"

#include <algorithm>
#include <limits>

namespace {

CByteView Section(CByteView file, const CDwgFileHeader& header, std::size_t nSection) {
    const CDwgLocator& locator = header.m_arSections[nSection];
    return file.subspan(locator.m_nAddress, locator.m_nSize);
}

/// Whether the drawing is metric; a file without the section is.
bool ReadTemplate(CByteView section) {
    if (section.empty()) return true;
    CBitReader bits(section);
    std::uint16_t nDescription = 0, nMeasurement = 0;
    CBytes description;
    bits.RS(nDescription);
    bits.Raw(description, nDescription);
    bits.RS(nMeasurement);
    if (bits.Failed()) throw CDwgError("Template: the section is too short.");
    return nMeasurement != 0;
}

CBytes WriteTemplate(bool bMetric) {
    CBitWriter bits;
    bits.RS(0); // no description
    bits.RS(bMetric ? 1 : 0);
    return bits.Take();
}

/// Builds a file section by section and notes where each is.
class CDwgFileBuilder {
public:
    explicit CDwgFileBuilder(const CDwgFile& file)
        : m_file(file) {
        m_header.m_identity = file.m_identity;
        m_bytes.resize(g_nDwgFileHeaderSize);
    }

    CBytes Build() {
        AppendSection(g_nDwgAuxHeaderSection, WriteDwgAuxHeader(AuxHeader(), m_file.m_identity));
        m_header.m_nPreview = Address();
        Append(WriteDwgPreview(m_file.m_arPreview, m_header.m_nPreview));
        AppendSection(g_nDwgHeaderSection,
                      WriteMarkedSection(WriteDwgVariables(m_file.m_variables), g_dwgHeaderMarks));
        AppendSection(g_nDwgClassSection,
                      WriteMarkedSection(WriteDwgClasses(m_file.m_arClasses), g_dwgClassMarks));
        const CDwgFreeSpace space{static_cast<std::uint32_t>(m_file.m_contents.size()),
                                  m_file.m_variables.m_tdupdate, Address()};
        const CDwgObjectMap map = AppendDwgContents(m_file.m_contents, m_bytes);
        AppendSection(g_nDwgObjectMapSection, WriteDwgObjectMap(map));
        AppendSection(g_nDwgFreeSpaceSection, WriteDwgFreeSpace(space));
        Append(WriteDwgSecondHeader(m_header, m_file.m_variables, Address()));
        AppendSection(g_nDwgTemplateSection, WriteTemplate(m_file.m_bMetric));
        if (m_bytes.size() > std::numeric_limits<std::uint32_t>::max())
            throw CDwgError("The drawing is too large for a file.");
        const CBytes header = WriteDwgFileHeader(m_header);
        std::copy(header.begin(), header.end(), m_bytes.begin());
        return std::move(m_bytes);
    }

private:
    std::uint32_t Address() const { return static_cast<std::uint32_t>(m_bytes.size()); }
    void Append(const CBytes& bytes) { m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end()); }
    void AppendSection(std::size_t nSection, const CBytes& bytes) {
        m_header.m_arSections[nSection] = {Address(), static_cast<std::uint32_t>(bytes.size())};
        Append(bytes);
    }

    CDwgAuxHeader AuxHeader() const {
        const CDwgVariables& vars = m_file.m_variables;
        return {m_file.m_nSaves, vars.m_tdcreate, vars.m_tdupdate,
                static_cast<std::uint32_t>(vars.m_hHandseed.m_nValue)};
    }

    const CDwgFile& m_file;
    CDwgFileHeader m_header;
    CBytes m_bytes;
};

} // namespace

CDwgFile ReadDwgFile(CByteView bytes) {
    const CDwgFileHeader header = ReadDwgFileHeader(bytes);
    CDwgFile file;
    file.m_identity = header.m_identity;
    file.m_nSaves = ReadDwgAuxHeader(Section(bytes, header, g_nDwgAuxHeaderSection)).m_nSaves;
    file.m_arPreview = ReadDwgPreview(bytes, header.m_nPreview);
    file.m_variables =
        ReadDwgVariables(ReadMarkedSection(Section(bytes, header, g_nDwgHeaderSection), g_dwgHeaderMarks));
    file.m_arClasses =
        ReadDwgClasses(ReadMarkedSection(Section(bytes, header, g_nDwgClassSection), g_dwgClassMarks));
    file.m_contents =
        ReadDwgContents(bytes, ReadDwgObjectMap(Section(bytes, header, g_nDwgObjectMapSection)));
    file.m_bMetric = ReadTemplate(Section(bytes, header, g_nDwgTemplateSection));
    return file;
}

CBytes WriteDwgFile(const CDwgFile& file) {
    return CDwgFileBuilder(file).Build();
}
