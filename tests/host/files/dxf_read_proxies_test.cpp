#include "host/files/dxf_read_proxies.h"

#include "host/files/dwg_own_part.h"
#include "host/files/dxf_read.h"
#include "platform/acad/db_proxy.h"
#include "tests/host/files/drawing_contents.h"

#include <gtest/gtest.h>

namespace {

const std::string g_strClasses = "0\nSECTION\n2\nCLASSES\n"
                                 "0\nCLASS\n1\nONE\n2\nCOne\n3\nApp\n90\n0\n280\n0\n281\n1\n"
                                 "0\nCLASS\n1\nTWO\n2\nCTwo\n3\nOther\n90\n0\n280\n1\n281\n1\n0\nENDSEC\n";
/// A line from (0,0) to (1,2) in a metafile, in two pieces.
const std::string g_strFirst = "310\n44000000010000003C0000000600000002000000\n";
const std::string g_strRest = "310\n000000000000000000000000000000000000000000000000\n"
                              "310\n000000000000f03f00000000000000400000000000000000\n";

std::string Entity(const std::string& strGroups) {
    return "0\nSECTION\n2\nENTITIES\n0\nACAD_PROXY_ENTITY\n5\n2A\n100\nAcDbEntity\n8\nSheet\n62\n3\n"
           "100\nAcDbProxyEntity\n" +
           strGroups + "0\nENDSEC\n0\nEOF\n";
}

class DxfReadProxies : public testing::Test {
protected:
    /// The only entity of a file; null when there is none.
    std::shared_ptr<AcDbProxyEntity> Read(const std::string& strBytes) {
        m_losses = ReadDxf(strBytes, m_database);
        const auto proxies = Entities<AcDbProxyEntity>(m_database.ModelSpaceId());
        return proxies.size() == 1 ? proxies[0] : nullptr;
    }
    static std::vector<AcGePoint3d> LineOf(const AcDbProxyEntity& proxy) {
        if (!proxy.Picture() || proxy.Picture()->size() != 1) return {};
        return std::get<CPolylinePrimitive>(proxy.Picture()->front().m_shape).m_arPoints;
    }

    AcDbDatabase m_database;
    CDxfLosses m_losses;
    const std::vector<AcGePoint3d> m_arLine = {{0, 0, 0}, {1, 2, 0}};
};

} // namespace

TEST_F(DxfReadProxies, HaveTheNamesOfTheirClassAndTheirPicture) {
    const auto pProxy = Read(g_strClasses + Entity("90\n498\n91\n501\n95\n23\n70\n0\n92\n68\n" + g_strFirst +
                                                   g_strRest + "93\n12\n310\nABC0\n94\n0\n"));
    ASSERT_TRUE(pProxy);
    EXPECT_EQ(std::wstring(pProxy->originalClassName()), L"CTwo");
    EXPECT_EQ(std::wstring(pProxy->originalDxfName()), L"TWO");
    EXPECT_EQ(std::wstring(pProxy->applicationDescription()), L"Other");
    EXPECT_EQ(pProxy->LayerName(), "Sheet");
    EXPECT_EQ(pProxy->handle(), AcDbHandle(0x2A));
    EXPECT_EQ(LineOf(*pProxy), m_arLine);
    EXPECT_EQ(pProxy->Picture()->front().m_nColor, 3); // the entity's own
}

TEST_F(DxfReadProxies, AreReadInWhateverOrderTheirGroupsStand) {
    const auto pProxy = Read(g_strClasses + Entity("90\n498\n93\n12\n310\nABC0\n94\n0\n160\n68\n" +
                                                   g_strFirst + g_strRest + "70\n0\n95\n23\n91\n500\n"));
    ASSERT_TRUE(pProxy);
    EXPECT_EQ(std::wstring(pProxy->originalClassName()), L"COne");
    EXPECT_EQ(LineOf(*pProxy), m_arLine);
}

TEST_F(DxfReadProxies, StayWhereTheirClassIsNotListedOrTheirPictureIsBroken) {
    const auto pProxy =
        Read(g_strClasses + Entity("90\n498\n91\n502\n92\n68\n" + g_strFirst + "310\n00xx\n" + g_strRest));
    ASSERT_TRUE(pProxy);
    EXPECT_EQ(std::wstring(pProxy->originalClassName()), L"AcDbProxyEntity");
    ASSERT_TRUE(pProxy->Picture());
    EXPECT_TRUE(pProxy->Picture()->empty());
}

TEST_F(DxfReadProxies, ShowNothingWithoutAPicture) {
    const auto pProxy = Read(Entity("90\n498\n"));
    ASSERT_TRUE(pProxy);
    EXPECT_TRUE(pProxy->Picture()->empty());
}

TEST_F(DxfReadProxies, KeepNoMoreBitsThanThereAre) {
    const auto pProxy =
        Read(g_strClasses + Entity("90\n498\n91\n500\n93\n99\n310\nABC0\n330\n2A\n340\nFFF\n94\n0\n"));
    ASSERT_TRUE(pProxy);
    const CDwgOwnPart* const pPart = DwgOwnPartOf(pProxy->ClassPart());
    ASSERT_TRUE(pPart);
    EXPECT_EQ(pPart->m_data, (CDwgBits{{0xAB, 0xC0}, 16}));
    ASSERT_EQ(pProxy->ClassPart().m_arIds.size(), 2U);
    EXPECT_EQ(pProxy->ClassPart().m_arIds[0], (CFiledId{CFiledId::CKind::SoftPointer, pProxy->objectId()}));
    EXPECT_EQ(pProxy->ClassPart().m_arIds[1], (CFiledId{CFiledId::CKind::HardPointer, AcDbObjectId::kNull}));
}

TEST_F(DxfReadProxies, LoseDataThatAreNotThoseOfADrawingFile) {
    const auto pProxy = Read(g_strClasses + Entity("90\n498\n91\n500\n70\n1\n93\n16\n310\nABC0\n94\n0\n"));
    ASSERT_TRUE(pProxy);
    EXPECT_FALSE(DwgOwnPartOf(pProxy->ClassPart()));
    EXPECT_EQ(m_losses, (CDxfLosses{{"data of ONE", 1}}));
}
