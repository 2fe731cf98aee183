#include "host/files/dwg_preview.h"

#include <gtest/gtest.h>

namespace {

const std::vector<CDwgPreviewItem> g_items = {{CDwgPreviewItem::s_nHeader, CBytes(80)},
                                              {CDwgPreviewItem::s_nBitmap, {1, 2, 3}}};
constexpr std::uint32_t g_nAddress = 7;

CBytes FileWith(const std::vector<CDwgPreviewItem>& items) {
    CBytes file(g_nAddress);
    const CBytes preview = WriteDwgPreview(items, g_nAddress);
    file.insert(file.end(), preview.begin(), preview.end());
    return file;
}

} // namespace

TEST(DwgPreview, GivesItsItemsBack) {
    EXPECT_EQ(ReadDwgPreview(FileWith(g_items), g_nAddress), g_items);
    EXPECT_EQ(ReadDwgPreview(FileWith({}), g_nAddress), std::vector<CDwgPreviewItem>());
    EXPECT_EQ(WriteDwgPreview({}, g_nAddress).size(), 37u);
}

TEST(DwgPreview, IsNoneWithoutAnAddress) {
    EXPECT_TRUE(ReadDwgPreview(FileWith(g_items), 0).empty());
    EXPECT_TRUE(ReadDwgPreview(FileWith(g_items), 0xFFFFFFFF).empty());
}

TEST(DwgPreview, LeavesOutWhatIsDamaged) {
    CBytes file = FileWith(g_items);
    file[g_nAddress] ^= 1;
    EXPECT_TRUE(ReadDwgPreview(file, g_nAddress).empty());
    file = FileWith(g_items);
    file[g_nAddress + 21 + 9 + 4] = 0xFF; // the second item's address
    EXPECT_EQ(ReadDwgPreview(file, g_nAddress), std::vector(1, g_items[0]));
}

TEST(DwgPreview, TakesNoMoreBytesThanItSaysThereAre) {
    CBytes file =
        FileWith({{CDwgPreviewItem::s_nBitmap, CBytes(40)}, {CDwgPreviewItem::s_nBitmap, CBytes(40)}});
    file[g_nAddress + 21 + 9 + 5] = 120; // the second item's size
    file.resize(file.size() + 100);
    EXPECT_EQ(ReadDwgPreview(file, g_nAddress).size(), 1u);
}
