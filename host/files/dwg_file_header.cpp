#include "host/files/dwg_file_header.h"

#include "host/files/bit_reader.h"
#include "host/files/bit_writer.h"
#include "host/files/dwg_crc.h"
#include "host/files/dwg_error.h"

#include <algorithm>
#include <string>

namespace {

constexpr std::array<std::uint8_t, 16> g_endMark = {0x95, 0xA0, 0x4E, 0x28, 0x99, 0x82, 0x1A, 0xE5,
                                                    0x5E, 0x41, 0xE0, 0x5F, 0x9D, 0x3A, 0x4D, 0x00};
constexpr std::uint32_t g_nFewestSections = 3;
/// What the sum is combined with, by the number of records from the fewest on.
constexpr std::array<std::uint16_t, 4> g_arSumMasks = {0xA598, 0x8101, 0x3CC4, 0x8461};

struct CRelease {
    std::string_view m_strVersion;
    const char* m_pRelease;
};
constexpr CRelease g_arReleases[] = {{"AC1002", "R2.5"},  {"AC1003", "R2.6"},  {"AC1004", "R9"},
                                     {"AC1006", "R10"},   {"AC1009", "R12"},   {"AC1012", "R13"},
                                     {"AC1014", "R14"},   {"AC1018", "R2004"}, {"AC1021", "R2007"},
                                     {"AC1024", "R2010"}, {"AC1027", "R2013"}, {"AC1032", "R2018"}};

/// Two letters and four more characters, digits or points.
bool IsVersion(std::string_view text) {
    return text.size() == g_strDwgVersion.size() && text.starts_with("AC") &&
           text.find_first_not_of("0123456789.", 2) == std::string_view::npos;
}

void CheckVersion(CByteView file) {
    const std::string strVersion(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(std::min(
                                                                  file.size(), g_strDwgVersion.size())));
    if (strVersion == g_strDwgVersion) return;
    if (!IsVersion(strVersion)) throw CDwgError("The file is no DWG drawing.");
    const auto found =
        std::find_if(std::begin(g_arReleases), std::end(g_arReleases),
                     [&](const CRelease& release) { return release.m_strVersion == strVersion; });
    const std::string strRelease =
        found == std::end(g_arReleases) ? "" : std::string(" (") + found->m_pRelease + ")";
    throw CDwgError("The drawing is of version " + strVersion + strRelease +
                    "; only AC1015 (R2000) can be read.");
}

/// The records, as many as there are; bits go up to the file's end.
CDwgLocators ReadLocators(CBitReader& bits, std::uint32_t nSections, std::size_t nFileSize) {
    CDwgLocators locators;
    for (std::uint32_t i = 0; i < nSections; ++i) {
        std::uint8_t nNumber = 0;
        CDwgLocator locator;
        bits.RC(nNumber);
        bits.RL(locator.m_nAddress);
        bits.RL(locator.m_nSize);
        const std::string strRecord = "File header: section record " + std::to_string(nNumber);
        if (nNumber >= g_nDwgSections) throw CDwgError(strRecord + " is unknown.");
        if (locator.m_nSize > nFileSize || locator.m_nAddress > nFileSize - locator.m_nSize)
            throw CDwgError(strRecord + " reaches beyond the end of the file.");
        locators[nNumber] = locator;
    }
    return locators;
}

void CheckEnd(CBitReader& bits, CByteView covered, std::uint32_t nSections) {
    std::uint16_t nSum = 0;
    bits.RS(nSum);
    if (nSum != (DwgCrc(covered, 0) ^ g_arSumMasks[nSections - g_nFewestSections]))
        throw CDwgError("File header: the check sum is wrong.");
    CBytes mark;
    bits.Raw(mark, g_endMark.size());
    if (!std::equal(mark.begin(), mark.end(), g_endMark.begin(), g_endMark.end()))
        throw CDwgError("File header: the end mark is missing.");
}

} // namespace

CDwgFileHeader ReadDwgFileHeader(CByteView file) {
    CheckVersion(file);
    CDwgFileHeader header;
    CBitReader bits(file);
    CBytes skipped;
    std::uint8_t nOne = 0;
    std::uint32_t nSections = 0;
    bits.Raw(skipped, g_strDwgVersion.size() + 5);
    bits.RC(header.m_identity.m_nMaintenance);
    bits.RC(nOne);
    bits.RL(header.m_nPreview);
    bits.RS(header.m_identity.m_nWriter);
    bits.RS(header.m_identity.m_nCodePage);
    bits.RL(nSections);
    if (bits.Failed()) throw CDwgError("File header: the file ends in it.");
    if (nSections < g_nFewestSections || nSections > g_nDwgSections)
        throw CDwgError("File header: " + std::to_string(nSections) + " section records; there are 3 to 6.");
    header.m_arSections = ReadLocators(bits, nSections, file.size());
    CheckEnd(bits, file.first(bits.At() / 8), nSections);
    return header;
}

CBytes WriteDwgFileHeader(const CDwgFileHeader& header) {
    CBitWriter bits;
    for (const char c : g_strDwgVersion)
        bits.RC(static_cast<std::uint8_t>(c));
    bits.Raw(CBytes(5), 5);
    bits.RC(header.m_identity.m_nMaintenance);
    bits.RC(1);
    bits.RL(header.m_nPreview);
    bits.RS(header.m_identity.m_nWriter);
    bits.RS(header.m_identity.m_nCodePage);
    bits.RL(static_cast<std::uint32_t>(g_nDwgSections));
    for (std::size_t i = 0; i < g_nDwgSections; ++i) {
        bits.RC(static_cast<std::uint8_t>(i));
        bits.RL(header.m_arSections[i].m_nAddress);
        bits.RL(header.m_arSections[i].m_nSize);
    }
    bits.RS(static_cast<std::uint16_t>(DwgCrc(bits.Bytes(), 0) ^ g_arSumMasks.back()));
    bits.Raw(g_endMark, g_endMark.size());
    return bits.Take();
}
