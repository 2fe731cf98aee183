// Frame templates as other programs save them.

#include "tests/road/bren_project.h"
#include "tests/support/foreign/form.h"
#include "tests/support/foreign/names.h"
#include "tests/support/template_file.h"

#include <gtest/gtest.h>

namespace {

struct CTemplateCase {
    const char* m_pName;
    CForeignForm m_form;
    AcDb::TextHorzMode m_mode = AcDb::kTextLeft; ///< of the placeholders
    bool m_bAttributes = false;                  ///< the placeholders are attributes
};

void PrintTo(const CTemplateCase& tested, std::ostream* pOut) {
    *pOut << tested.m_pName;
}

constexpr CForeignForm g_everyForm{.m_bReversed = true,
                                   .m_bSpread = true,
                                   .m_bNoLinks = true,
                                   .m_bRelative = true,
                                   .m_bStrangeClasses = true,
                                   .m_bStrangeObjects = true,
                                   .m_bStrangeEntities = true,
                                   .m_bWestern = true,
                                   .m_bOtherNames = true};

class ForeignTemplates : public testing::TestWithParam<CTemplateCase> {
protected:
    /// The file of a template that has placeholders among texts and as attributes.
    std::string DrawnTemplate() const {
        CTemplateFile drawn;
        drawn.AddText("工程名称 \xA1\xE3", {10, 280, 0}); // with a degree sign, which western pages have too
        double y = 270.0;
        for (const char* pMark :
             {"[GCMC]", "[ZKBH]", "[SH]", "[TH]", "[DIST]", "[SP]", "[SP1]", "[RQ]", "[SYFF]"})
            AddPlaceholder(drawn, pMark, {40.0, y -= 5.0, 0});
        drawn.AddAttribute("[GCBH]", {100, 250, 0}, GetParam().m_mode);
        drawn.AddAttribute("[检查]", {100, 240, 0}, GetParam().m_mode, "默认值");
        drawn.Write(m_program.Folder().Path("drawn.dwg"));
        return m_program.Folder().Read("drawn.dwg");
    }
    static void AddPlaceholder(CTemplateFile& drawn, const char* pMark, const AcGePoint3d& pt) {
        if (GetParam().m_bAttributes)
            drawn.AddAttribute(pMark, pt, GetParam().m_mode, pMark);
        else
            drawn.AddText(pMark, pt, GetParam().m_mode);
    }
    static std::string Foreign(const std::string& strFile) {
        const CBytes bytes = InForeignForm(CBytes(strFile.begin(), strFile.end()), GetParam().m_form);
        return {bytes.begin(), bytes.end()};
    }
    /// Two sheets in the frame that a file gives, and the block of it.
    CJson Sheets(const std::string& strFile) const {
        m_program.Folder().Write("root/Templates/t.dwg", strFile);
        m_program.Do("template --root \"$ROOT\" t.dwg");
        m_project.Run("BREN\n" + Selection("1", "all") + "0,0\n" + m_project.Dump());
        return {{"sheets", Same(m_project.Entities())}, {"block", Same(m_project.FrameEntities())}};
    }
    /// What is the same for any form: the entities that are known, by what they show.
    static CJson Same(const CJson& entities) {
        CJson same = CJson::array();
        for (CJson entity : entities) {
            if (entity["class"] == "AcDbProxyEntity") continue;
            for (CJson& attribute : entity["attributes"])
                ForgetNames(attribute);
            ForgetNames(entity);
            same.push_back(entity);
        }
        return same;
    }
    static void ForgetNames(CJson& entity) {
        entity.erase("handle");
        if (entity["layer"] == g_pForeignLayer) entity["layer"] = "0";
        if (entity.contains("style") && entity["style"] == g_pForeignStyle) entity["style"] = Utf8(u8"图框");
    }
    void ExpectTheSame(const std::string& strFile) const {
        const std::string strForeign = Foreign(strFile);
        ASSERT_NE(strForeign, strFile);
        const CJson own = Sheets(strFile), foreign = Sheets(strForeign);
        EXPECT_EQ(own["block"], foreign["block"]);
        EXPECT_EQ(own["sheets"], foreign["sheets"]);
    }

    const CBrenProject m_project{CSamples{{"1", "1-1"}, {"1", "1-2"}}};
    const CProgram& m_program = m_project.m_program;
};

} // namespace

TEST_P(ForeignTemplates, GiveTheSameSheets) {
    ExpectTheSame(DrawnTemplate());
    ExpectTheSame(m_program.Folder().Read("root/Templates/BREN-A4.dwg"));
}

INSTANTIATE_TEST_SUITE_P(, ForeignTemplates,
                         testing::Values(CTemplateCase{"WithObjectsInAnotherOrder", {.m_bReversed = true}},
                                         CTemplateCase{"WithGapsInTheHandles", {.m_bSpread = true}},
                                         CTemplateCase{"WithNeighboursByTheirHandles", {.m_bNoLinks = true}},
                                         CTemplateCase{"WithRelativePointers", {.m_bRelative = true}},
                                         CTemplateCase{"WithOtherClasses", {.m_bStrangeClasses = true}},
                                         CTemplateCase{"WithOtherObjects", {.m_bStrangeObjects = true}},
                                         CTemplateCase{"WithOtherEntities", {.m_bStrangeEntities = true}},
                                         CTemplateCase{"WithEscapes", {.m_bEscapes = true}},
                                         CTemplateCase{"InAWesternCodePage", {.m_bWestern = true}},
                                         CTemplateCase{"WithOtherLayersAndStyles", {.m_bOtherNames = true}},
                                         CTemplateCase{"WithAllOfThat", g_everyForm},
                                         CTemplateCase{"Centred", g_everyForm, AcDb::kTextCenter},
                                         CTemplateCase{"AtTheRight", g_everyForm, AcDb::kTextRight},
                                         CTemplateCase{"InTheMiddle", g_everyForm, AcDb::kTextMid},
                                         CTemplateCase{"Aligned", g_everyForm, AcDb::kTextAlign},
                                         CTemplateCase{"AsAttributes", g_everyForm, AcDb::kTextLeft, true},
                                         CTemplateCase{"AsCentredAttributes", g_everyForm, AcDb::kTextCenter,
                                                       true}),
                         [](const auto& tested) { return tested.param.m_pName; });
