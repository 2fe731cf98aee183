#include "host/files/dxf_header.h"

#include <gtest/gtest.h>

namespace {

/// The header of a text file's bytes from the section's name on; the bytes outlive it.
CDxfHeader Header(std::string_view bytes) {
    const std::unique_ptr<CDxfReader> pReader = OpenDxf(bytes);
    CDxfRecords records(*pReader);
    CDxfRecord section;
    EXPECT_TRUE(records.Next(&section));
    return CDxfHeader(section);
}

} // namespace

TEST(DxfHeader, TellsTheEncodingByVersionAndCodePage) {
    constexpr std::string_view chinese("固结");
    EXPECT_EQ(Header("0\nSECTION\n9\n$ACADVER\n1\nAC1018\n9\n$DWGCODEPAGE\n3\nANSI_936\n")
                  .Encoding()
                  .Decode(chinese),
              L"固结");
    EXPECT_EQ(Header("0\nSECTION\n9\n$ACADVER\n1\nAC1021\n9\n$DWGCODEPAGE\n3\nANSI_936\n")
                  .Encoding()
                  .Decode("\xC3\xBC"),
              L"ü");
    EXPECT_EQ(Header("0\nSECTION\n2\nHEADER\n").Encoding().Decode("\xFC"), L"ü");
}

TEST(DxfHeader, LeavesVariablesThatNoDrawingCanHave) {
    AcDbDatabase database;
    CDxfDrawing drawing(database);
    CDxfHeader().Apply(drawing);
    EXPECT_EQ(database.ltscale(), 1.0);
    EXPECT_EQ(SymbolName(database.clayer()), "0");
    EXPECT_TRUE(database.celtype().isNull());
    constexpr std::string_view bytes = "0\nSECTION\n2\nHEADER\n9\n$LTSCALE\n40\n0.0\n";
    Header(bytes).Apply(drawing);
    EXPECT_EQ(database.ltscale(), 1.0);
}
