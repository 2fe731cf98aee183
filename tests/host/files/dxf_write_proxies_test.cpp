#include "host/files/dxf_write_proxies.h"

#include "host/files/dwg_drawing_reader.h"
#include "host/files/dwg_drawing_writer.h"
#include "host/files/dwg_own_part.h"
#include "host/files/dxf_read.h"
#include "host/files/dxf_write.h"
#include "platform/acad/db_filer.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_proxy.h"
#include "platform/acad/rx_class.h"
#include "tests/host/files/drawing_contents.h"
#include "tests/host/files/dwg_sample_drawing.h"
#include "tests/host/files/dxf_audit.h"

namespace {

AcRxClass* g_pSignClass = nullptr;

/// A custom entity that draws a line, an arc and a text in colours, and refers to another entity.
class CSign : public AcDbEntity {
public:
    AcRxClass* isA() const override { return g_pSignClass; }
    bool m_bShown = true;
    bool m_bWrites = true;
    AcDbObjectId m_idOther;
    std::wstring m_strText; ///< written unless it is empty

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override {
        if (!m_bWrites) return Acad::eNotApplicable;
        AcDbEntity::dwgOutFields(pFiler);
        pFiler->writeInt16(7);
        if (!m_strText.empty()) pFiler->writeString(m_strText.c_str());
        return pFiler->writeSoftPointerId(m_idOther);
    }

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override {
        if (!m_bShown) return Adesk::kTrue;
        const AcGePoint3d arPoints[] = {{0, 0, 0}, {30, 0, 0}, {30, 20, 0}};
        pMode->rawGeometry()->polyline(3, arPoints);
        pMode->subEntityTraits().setColor(3);
        pMode->rawGeometry()->circularArc({10, 10, 0}, 5, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, 1.5);
        AcGiTextStyle style;
        style.setFileName(L"SimSun");
        style.setTextSize(2.5);
        pMode->rawGeometry()->text({1, 2, 0}, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, L"固结", -1, true,
                                   style);
        return Adesk::kTrue;
    }
};

/// The class is registered while a test runs.
class DxfProxies : public testing::Test {
protected:
    void SetUp() override {
        g_pSignClass = newAcRxClass(L"CSign", L"AcDbEntity", 0, 0, 0x401, nullptr, L"SIGN", L"Signs");
        ASSERT_TRUE(g_pSignClass);
    }
    void TearDown() override { Unregister(); }
    static void Unregister() {
        if (g_pSignClass) deleteAcRxClass(g_pSignClass); // which its entities name while they become proxies
        g_pSignClass = nullptr;
    }
    static CSign& Add(AcDbDatabase& database) {
        auto* const pSign = new CSign;
        AppendTo(database.ModelSpaceId(), pSign);
        return *pSign;
    }
};

/// The groups of the first proxy behind those that all entities have.
std::string ProxyGroups(const CDxfFile& file) {
    const std::size_t nBegin = file.m_strBytes.find("AcDbProxyEntity\n 90");
    const std::size_t nEnd = file.m_strBytes.find(" 94\n0\n", nBegin);
    EXPECT_NE(nEnd, std::string::npos);
    return file.m_strBytes.substr(nBegin, nEnd + 7 - nBegin);
}

bool Has(const CDxfFile& file, std::string_view text) {
    return file.m_strBytes.find(text) != std::string::npos;
}

} // namespace

TEST_F(DxfProxies, StandUnderTheirClassInItsOrderAmongTheClasses) {
    AcDbDatabase database;
    Add(database);
    const CDxfFile file = WriteDxf(database);
    EXPECT_EQ(file.m_losses, CDxfLosses());
    EXPECT_TRUE(
        Has(file, "CLASS\n  1\nSIGN\n  2\nCSign\n  3\nSigns\n 90\n1025\n280\n0\n281\n1\n  0\nENDSEC\n"));
    EXPECT_TRUE(Has(file, "AcDbProxyEntity\n 90\n498\n 91\n503\n 95\n23\n 70\n0\n 92\n"));
    EXPECT_TRUE(Has(file, "CLASS\n  1\nLAYOUT\n"));
}

TEST_F(DxfProxies, HaveTheirReferencesBehindTheirData) {
    AcDbDatabase database;
    const AcDbObjectId idLine = AppendTo(database.ModelSpaceId(), new AcDbLine);
    CSign& sign = Add(database);
    {
        const CDbOpen<AcDbEntity> open(sign.objectId(), AcDb::kForWrite);
        sign.m_idOther = idLine;
    }
    const CDxfFile file = WriteDxf(database);
    EXPECT_TRUE(Has(file, "330\n" + idLine.handle().Hex() + "\n 94\n0\n"));
    EXPECT_FALSE(Has(file, " 93\n0\n"));
}

TEST_F(DxfProxies, ShowAnotherProgramThePicture) {
    AcDbDatabase database;
    Add(database);
    const CAudit audit = Audit(WriteDxf(database).m_strBytes);
    EXPECT_EQ(audit.m_strFindings, "ACAD_PROXY_ENTITY 1\nshown ARC 1\nshown POLYLINE 1\nshown TEXT 1\n");
    EXPECT_EQ(audit.m_arBox, (std::vector<double>{0, 0, 0, 30, 20, 0}));
}

TEST_F(DxfProxies, ComeBackWithPicturePropertiesAndExtendedData) {
    AcDbDatabase database, back;
    CSign& sign = Add(database);
    {
        const CDbOpen<AcDbEntity> open(sign.objectId(), AcDb::kForWrite);
        sign.setColorIndex(5);
    }
    EXPECT_EQ(ReadDxf(WriteDxf(database).m_strBytes, back), CDxfLosses());
    const auto proxies = Entities<AcDbProxyEntity>(back.ModelSpaceId());
    ASSERT_EQ(proxies.size(), 1U);
    EXPECT_EQ(std::wstring(proxies[0]->originalClassName()), L"CSign");
    EXPECT_EQ(proxies[0]->handle(), sign.handle());
    EXPECT_EQ(proxies[0]->colorIndex(), 5);
    ASSERT_TRUE(proxies[0]->Picture());
    const CDisplayList& picture = *proxies[0]->Picture();
    ASSERT_EQ(picture.size(), 3U);
    EXPECT_EQ(picture[0].m_nColor, 5);
    EXPECT_EQ(picture[1].m_nColor, 3);
    EXPECT_EQ(std::get<CTextPrimitive>(picture[2].m_shape).m_strText, "固结");
    EXPECT_EQ(std::get<CTextPrimitive>(picture[2].m_shape).m_strFont, "SimSun");
}

TEST_F(DxfProxies, TellWhatIsMissingOfThem) {
    AcDbDatabase database;
    Add(database).m_bShown = false;
    EXPECT_EQ(WriteDxf(database).m_losses, (CDxfLosses{{"picture of SIGN", 1}}));
    Add(database).m_bWrites = false;
    const CDxfFile file = WriteDxf(database);
    EXPECT_EQ(file.m_losses, (CDxfLosses{{"data of SIGN", 1}, {"picture of SIGN", 1}}));
    EXPECT_EQ(Audit(file.m_strBytes).m_strFindings.substr(0, 20), "ACAD_PROXY_ENTITY 2\n");
}

TEST_F(DxfProxies, LoseTheirDataWithATextThatIsTooLongForAFile) {
    constexpr std::size_t nLongest = 65535; // bytes
    AcDbDatabase fits, tooLong;
    Add(fits).m_strText = std::wstring(nLongest, L'a');
    EXPECT_EQ(WriteDxf(fits).m_losses, CDxfLosses());
    Add(tooLong).m_strText = std::wstring(nLongest + 1, L'a');
    const CDxfFile file = WriteDxf(tooLong);
    EXPECT_EQ(file.m_losses, (CDxfLosses{{"data of SIGN", 1}}));
    EXPECT_NE(ProxyGroups(file).find(" 93\n0\n"), std::string::npos);
}

TEST_F(DxfProxies, AreCountedWhereTheyShouldExplodeAndCannot) {
    AcDbDatabase database;
    Add(database);
    EXPECT_EQ(WriteDxf(database, CDxfCustom::Exploded).m_losses, (CDxfLosses{{"SIGN", 1}}));
}

TEST_F(DxfProxies, KeepTheirDataAndReferencesFromFileToFile) {
    AcDbDatabase database, back;
    CSign& sign = Add(database);
    const AcDbObjectId idLine = AppendTo(database.ModelSpaceId(), new AcDbLine); // stands behind it
    {
        const CDbOpen<AcDbEntity> open(sign.objectId(), AcDb::kForWrite);
        sign.m_idOther = idLine;
    }
    const CDxfFile file = WriteDxf(database);
    ReadDxf(file.m_strBytes, back);
    const CDxfFile again = WriteDxf(back);
    EXPECT_EQ(again.m_losses, CDxfLosses());
    EXPECT_EQ(ProxyGroups(again), ProxyGroups(file));
    EXPECT_NE(ProxyGroups(again).find("330\n" + idLine.handle().Hex() + "\n 94\n0\n"), std::string::npos);
}

TEST_F(DxfProxies, AreWrittenAlikeWhetherTheirClassIsKnown) {
    AcDbDatabase database;
    Add(database);
    const CDxfFile known = WriteDxf(database);
    Unregister(); // makes a proxy of the sign
    const CDxfFile unknown = WriteDxf(database);
    EXPECT_EQ(unknown.m_losses, CDxfLosses());
    EXPECT_EQ(ProxyGroups(unknown), ProxyGroups(known));
    EXPECT_TRUE(Has(unknown, "\n  3\nSigns\n 90\n1025\n280\n1\n281\n1\n"));
}

TEST_F(DxfProxies, GoOnIntoADrawingFileAndBack) {
    AcDbDatabase database, fromDxf;
    Add(database);
    const CDxfFile file = WriteDxf(database);
    ReadDxf(file.m_strBytes, fromDxf);
    Unregister();
    const auto pFromDwg = DrawingOfDwg(ReadDwgFile(WriteDwgFile(DwgFileOf(fromDxf))));
    const CDxfFile again = WriteDxf(*pFromDwg);
    EXPECT_EQ(again.m_losses, CDxfLosses());
    EXPECT_EQ(ProxyGroups(again), ProxyGroups(file));
}

TEST_F(DxfProxies, StayProxiesWhenTheirClassComesLater) {
    AcDbDatabase database, back;
    Add(database);
    ReadDxf(WriteDxf(database).m_strBytes, back);
    Unregister();
    SetUp();
    EXPECT_EQ(Entities<AcDbProxyEntity>(back.ModelSpaceId()).size(), 1U);
}

TEST_F(DxfProxies, AreNotMadeOfTypesThatADrawingFileHasBesides) {
    AcDbProxyEntity hatch;
    hatch.SetOrigin({L"AcDbHatch", L"HATCH", L""});
    const auto pPart = std::make_shared<CDwgOwnPart>();
    pPart->m_nType = 0x4E;
    CDbRecord part;
    part.m_pForeign = pPart;
    hatch.SetClassPart(part);
    EXPECT_FALSE(IsDxfProxy(hatch));
    pPart->m_nType = 500;
    EXPECT_TRUE(IsDxfProxy(hatch));
    EXPECT_TRUE(IsDxfProxy(CSign()));
}
