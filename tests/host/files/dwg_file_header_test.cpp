#include "host/files/dwg_file_header.h"

#include "tests/host/files/dwg_refusal.h"
#include "tests/host/files/hex_bytes.h"

#include <gtest/gtest.h>

namespace {

const CBytes g_known =
    HexBytes("41 43 31 30 31 35 00 00 00 00 00 06 01 DC 00 00 00 17 06 1E 00 06 00 00 00"
             "00 01 01 00 00 58 02 00 00 01 59 03 00 00 05 01 00 00 02 F6 12 00 00 87 00 00 00"
             "03 7D 13 00 00 35 00 00 00 04 47 14 00 00 04 00 00 00 05 61 00 00 00 7B 00 00 00"
             "D7 3E 95 A0 4E 28 99 82 1A E5 5E 41 E0 5F 9D 3A 4D 00");

CDwgFileHeader KnownHeader() {
    CDwgFileHeader header;
    header.m_identity.m_nCodePage = g_nDwgAnsi1252;
    header.m_nPreview = 0xDC;
    header.m_arSections = {
        {{0x101, 0x258}, {0x359, 0x105}, {0x12F6, 0x87}, {0x137D, 0x35}, {0x1447, 4}, {0x61, 0x7B}}};
    return header;
}

CBytes KnownFile() {
    CBytes file = g_known;
    file.resize(0x1447 + 4);
    return file;
}

std::string RefusalOfFile(const CBytes& file) {
    return RefusalOf([&] { ReadDwgFileHeader(file); });
}

} // namespace

TEST(DwgFileHeader, IsWrittenAsAKnownOneIs) {
    EXPECT_EQ(WriteDwgFileHeader(KnownHeader()), g_known);
    EXPECT_EQ(g_known.size(), g_nDwgFileHeaderSize);
}

TEST(DwgFileHeader, IsReadAsItWasWritten) {
    EXPECT_EQ(ReadDwgFileHeader(KnownFile()), KnownHeader());
}

TEST(DwgFileHeader, IsReadWithFiveRecordsToo) {
    CBytes file = KnownFile();
    file[0x15] = 5;
    file.erase(file.begin() + 0x19 + 5 * 9, file.begin() + 0x19 + 6 * 9);
    file.resize(file.size() + 9);
    EXPECT_EQ(RefusalOfFile(file), "File header: the check sum is wrong.");
    file[0x46] = 0xF4, file[0x47] = 0x58;
    const CDwgFileHeader header = ReadDwgFileHeader(file);
    EXPECT_EQ(header.m_arSections[g_nDwgTemplateSection], (CDwgLocator{0x1447, 4}));
    EXPECT_EQ(header.m_arSections[g_nDwgAuxHeaderSection], CDwgLocator());
}

TEST(DwgFileHeader, NamesTheVersionAndTheReleaseOfAnotherDrawing) {
    for (const auto& [strVersion, strRelease] :
         {std::pair("AC1002", "R2.5"), std::pair("AC1003", "R2.6"), std::pair("AC1004", "R9"),
          std::pair("AC1006", "R10"), std::pair("AC1009", "R12"), std::pair("AC1012", "R13"),
          std::pair("AC1014", "R14"), std::pair("AC1018", "R2004"), std::pair("AC1021", "R2007"),
          std::pair("AC1024", "R2010"), std::pair("AC1027", "R2013"), std::pair("AC1032", "R2018")}) {
        CBytes file = KnownFile();
        std::copy_n(strVersion, 6, file.begin());
        EXPECT_EQ(RefusalOfFile(file), std::string("The drawing is of version ") + strVersion + " (" +
                                           strRelease + "); only AC1015 (R2000) can be read.");
    }
}

TEST(DwgFileHeader, NamesTheVersionAlsoWhereItKnowsNoRelease) {
    CBytes file = KnownFile();
    for (const char* strVersion : {"AC1099", "AC2.10"}) {
        std::copy_n(strVersion, 6, file.begin());
        EXPECT_EQ(RefusalOfFile(file), std::string("The drawing is of version ") + strVersion +
                                           "; only AC1015 (R2000) can be read.");
    }
}

TEST(DwgFileHeader, RefusesWhatIsNoDrawing) {
    EXPECT_EQ(RefusalOfFile(HexBytes("41 43 31 30 31 58")), "The file is no DWG drawing.");
    EXPECT_EQ(RefusalOfFile({}), "The file is no DWG drawing.");
    EXPECT_EQ(RefusalOfFile(HexBytes("41 43 31 30")), "The file is no DWG drawing.");
    EXPECT_EQ(RefusalOfFile(HexBytes("41 43 31 30 31 35")), "File header: the file ends in it.");
}

TEST(DwgFileHeader, RefusesAWrongSumMarkOrRecord) {
    CBytes file = KnownFile();
    file[0x0B] ^= 1;
    EXPECT_EQ(RefusalOfFile(file), "File header: the check sum is wrong.");
    file = KnownFile();
    file[0x60] ^= 1;
    EXPECT_EQ(RefusalOfFile(file), "File header: the end mark is missing.");
    file = KnownFile();
    file[0x15] = 7;
    EXPECT_EQ(RefusalOfFile(file), "File header: 7 section records; there are 3 to 6.");
    file = KnownFile();
    file[0x19] = 9;
    EXPECT_EQ(RefusalOfFile(file), "File header: section record 9 is unknown.");
    file = KnownFile();
    file.pop_back();
    EXPECT_EQ(RefusalOfFile(file), "File header: section record 4 reaches beyond the end of the file.");
}
