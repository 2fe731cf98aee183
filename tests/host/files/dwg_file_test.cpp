#include "host/files/dwg_file.h"

#include "host/files/bit_writer.h"
#include "tests/host/files/dwg_refusal.h"
#include "tests/host/files/dwg_structure.h"

#include <gtest/gtest.h>

namespace {

/// An object of no meaning but with its own handle.
CBytes ContentOf(std::uint64_t nHandle) {
    CBitWriter bits;
    bits.BS(std::uint16_t{0x50});
    bits.RL(std::uint32_t{60});
    bits.H({CDwgHandle::s_nOwn, nHandle});
    return bits.Take();
}

CDwgFile SomeFile() {
    CDwgFile file;
    file.m_nSaves = 3;
    file.m_arPreview = {{CDwgPreviewItem::s_nBitmap, CBytes(40, 9)}};
    file.m_variables.m_hHandseed.m_nValue = 0x400;
    file.m_variables.m_strMenuname = "menu";
    file.m_arClasses = {{500, 0, "app", "class", "DXF", false, true}};
    for (const std::uint64_t nHandle : {1, 2, 0x3FF})
        file.m_contents[nHandle] = ContentOf(nHandle);
    file.m_bMetric = false;
    return file;
}

} // namespace

TEST(DwgFile, HasASoundStructure) {
    EXPECT_EQ(DwgFaults(WriteDwgFile(SomeFile())), "");
    CDwgFile many = SomeFile();
    many.m_variables.m_hHandseed.m_nValue = 0x10000;
    for (std::uint64_t nHandle = 0x400; nHandle < 0x1400; ++nHandle)
        many.m_contents[nHandle] = ContentOf(nHandle);
    EXPECT_EQ(DwgFaults(WriteDwgFile(many)), "");
}

TEST(DwgFile, IsReadAsItWasWritten) {
    const CDwgFile file = SomeFile(), back = ReadDwgFile(WriteDwgFile(file));
    EXPECT_EQ(back.m_identity, file.m_identity);
    EXPECT_EQ(back.m_nSaves, 3u);
    EXPECT_EQ(back.m_arPreview, file.m_arPreview);
    EXPECT_EQ(back.m_variables.m_strMenuname, "menu");
    EXPECT_EQ(back.m_arClasses, file.m_arClasses);
    EXPECT_EQ(back.m_contents, file.m_contents);
    EXPECT_FALSE(back.m_bMetric);
}

TEST(DwgFile, GivesTheSameBytesAgain) {
    const CBytes bytes = WriteDwgFile(SomeFile());
    EXPECT_EQ(WriteDwgFile(ReadDwgFile(bytes)), bytes);
}

TEST(DwgFile, IsReadOrRefusedWhateverByteOfItIsChanged) {
    const CBytes bytes = WriteDwgFile(SomeFile());
    std::size_t nRefused = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        for (const std::uint8_t nMask : {0x01, 0x80, 0xFF}) {
            CBytes damaged = bytes;
            damaged[i] ^= nMask;
            nRefused += !RefusalOf([&] { ReadDwgFile(damaged); }).empty();
        }
    }
    EXPECT_GT(nRefused, bytes.size());
}

TEST(DwgFile, IsRefusedWhereverItIsCutOff) {
    const CBytes bytes = WriteDwgFile(SomeFile());
    for (std::size_t nSize = 0; nSize < bytes.size(); ++nSize)
        EXPECT_NE(RefusalOf([&] { ReadDwgFile(CByteView(bytes).first(nSize)); }), "") << nSize;
}
