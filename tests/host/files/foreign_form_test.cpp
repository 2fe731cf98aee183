// Files in the forms of other programs, which other tests read: each is a sound file of its form.

#include "tests/support/foreign/form.h"

#include "host/files/dwg_drawing_writer.h"
#include "host/files/dwg_record.h"
#include "tests/host/files/dwg_structure.h"
#include "tests/support/foreign/names.h"
#include "tests/support/foreign/records.h"
#include "tests/support/template_file.h"

#include <algorithm>

namespace {

/// A drawing with a text, a line and an attribute, as it is saved here.
CBytes PlainFile() {
    CTemplateFile drawn;
    drawn.AddText("[GCMC]", {10, 20, 0}, AcDb::kTextCenter);
    drawn.AddText("工程", {10, 10, 0});
    drawn.AddAttribute("[钻孔]", {10, 0, 0});
    drawn.AddText("末", {0, 0, 0});
    drawn.Close();
    return WriteDwgFile(DwgFileOf(drawn.m_drawing));
}

/// The file in a form, of which its structure says that it is sound.
CDwgFile Sound(const CForeignForm& form) {
    const CBytes bytes = InForeignForm(PlainFile(), form);
    EXPECT_EQ(DwgFaults(bytes), "");
    return ReadDwgFile(bytes);
}

template <class Is>
std::size_t Count(const CDwgFile& file, Is is) {
    std::size_t nCount = 0;
    for (const auto& [nHandle, content] : file.m_contents)
        nCount += is(ReadDwgRecord(content, nHandle));
    return nCount;
}

std::uint16_t NumberOf(const CDwgFile& file, const std::string& strDxfName) {
    const auto found = std::ranges::find(file.m_arClasses, strDxfName, &CDwgClass::m_strDxfName);
    return found == file.m_arClasses.end() ? 0 : found->m_nNumber;
}

const CDwgFile g_plain = ReadDwgFile(PlainFile());

} // namespace

TEST(ForeignForm, TurnsTheOrderInTheFileRound) {
    const CBytes bytes = InForeignForm(PlainFile(), {.m_bReversed = true});
    EXPECT_EQ(DwgFaults(bytes), "");
    const CDwgLocators sections = ReadDwgFileHeader(bytes).m_arSections;
    const CDwgLocator& place = sections[g_nDwgObjectMapSection];
    std::vector<std::uint32_t> addresses;
    for (const auto& [nHandle, nAddress] :
         ReadDwgObjectMap(CByteView(bytes).subspan(place.m_nAddress, place.m_nSize)))
        addresses.push_back(nAddress);
    EXPECT_TRUE(std::ranges::is_sorted(addresses, std::greater<>()));
    EXPECT_LT(sections[g_nDwgTemplateSection].m_nAddress, place.m_nAddress);
    EXPECT_EQ(ReadDwgFile(bytes).m_contents, g_plain.m_contents);
}

TEST(ForeignForm, SpreadsHandlesWithGaps) {
    const CDwgFile file = Sound({.m_bSpread = true});
    EXPECT_EQ(file.m_contents.size(), g_plain.m_contents.size());
    EXPECT_GT(file.m_contents.rbegin()->first - file.m_contents.begin()->first, 2 * file.m_contents.size());
    EXPECT_GT(file.m_variables.m_hHandseed.m_nValue, file.m_contents.rbegin()->first);
    EXPECT_LT(ModelSpaceOf(file).front(), file.m_variables.m_roots.m_hModelSpace.m_nValue); // turned round
    EXPECT_EQ(ModelSpaceOf(file).size(), 4U);
}

TEST(ForeignForm, TellsNeighboursByHandles) {
    const CDwgFile file = Sound({.m_bNoLinks = true});
    for (const std::uint64_t nHandle : ModelSpaceOf(g_plain))
        EXPECT_FALSE(EntityAt(g_plain, nHandle).m_common.m_bNeighbours);
    const std::vector<std::uint64_t> entities = ModelSpaceOf(g_plain);
    EXPECT_FALSE(EntityAt(file, entities[0]).m_common.m_bNeighbours); // an end
    EXPECT_TRUE(EntityAt(file, entities[1]).m_common.m_bNeighbours);
    EXPECT_TRUE(EntityAt(file, entities[2]).m_common.m_bNeighbours);
    EXPECT_FALSE(EntityAt(file, entities[3]).m_common.m_bNeighbours);
}

TEST(ForeignForm, HasRelativePointers) {
    const auto isRelative = [](const CDwgRecord& record) {
        return std::ranges::any_of(record.m_arHandles, [](const CDwgHandle& handle) {
            return handle.m_nCode > CDwgHandle::s_nHardPointer;
        });
    };
    EXPECT_EQ(Count(g_plain, isRelative), 0U);
    EXPECT_GT(Count(Sound({.m_bRelative = true}), isRelative), 10U);
}

TEST(ForeignForm, HasClassesThatAreKnownNowhere) {
    const CDwgFile file = Sound({.m_bStrangeClasses = true});
    EXPECT_GT(file.m_arClasses.size(), g_plain.m_arClasses.size());
    EXPECT_NE(NumberOf(file, "ACDBPLACEHOLDER"), NumberOf(g_plain, "ACDBPLACEHOLDER"));
    const auto isPlaceholder = [&file](const CDwgRecord& record) {
        return record.m_nType == NumberOf(file, "ACDBPLACEHOLDER");
    };
    EXPECT_EQ(Count(file, isPlaceholder), 1U);
}

TEST(ForeignForm, HasObjectsAndEntitiesThatAreKnownNowhere) {
    const CDwgFile objects = Sound({.m_bStrangeObjects = true});
    EXPECT_EQ(objects.m_contents.size(), g_plain.m_contents.size() + 5);
    EXPECT_EQ(ModelSpaceOf(objects).size(), 4U);
    const CDwgFile entities = Sound({.m_bStrangeEntities = true});
    EXPECT_EQ(ModelSpaceOf(entities).size(), 6U);
    const std::uint16_t nStranger = NumberOf(entities, "FREMDLING");
    const auto isStranger = [nStranger](const CDwgRecord& record) { return record.m_nType == nStranger; };
    EXPECT_EQ(Count(entities, isStranger), 2U);
}

TEST(ForeignForm, HasItsTextsInAWesternCodePageOrAsEscapes) {
    const CDwgFile western = Sound({.m_bWestern = true}), escaped = Sound({.m_bEscapes = true});
    EXPECT_EQ(western.m_identity.m_nCodePage, g_nDwgAnsi1252);
    EXPECT_EQ(escaped.m_identity.m_nCodePage, g_nDwgAnsi936);
    const std::vector<std::uint64_t> entities = ModelSpaceOf(g_plain);
    const auto grown = [&entities](const CDwgFile& file, std::size_t nEntity) {
        const std::uint64_t nHandle = entities[nEntity];
        return file.m_contents.at(nHandle).size() - g_plain.m_contents.at(nHandle).size();
    };
    EXPECT_EQ(grown(western, 0), 0U);  // without a Chinese character
    EXPECT_EQ(grown(western, 1), 10U); // two of them, of 7 bytes each
    EXPECT_EQ(grown(western, 3), 5U);
    EXPECT_EQ(grown(escaped, 0), 0U);
    EXPECT_EQ(grown(escaped, 1), 12U); // of 8 bytes each
    EXPECT_EQ(grown(escaped, 3), 6U);
}

TEST(ForeignForm, HasALayerOfItsOwn) {
    const CDwgFile file = Sound({.m_bOtherNames = true});
    const std::uint64_t nLayer = EntityAt(file, ModelSpaceOf(file)[0]).m_common.m_hLayer.m_nValue;
    EXPECT_EQ(g_plain.m_contents.count(nLayer), 0U);
    EXPECT_EQ(file.m_contents.count(nLayer), 1U);
}
