#include "platform/acad/editor.h"

#include "tests/platform/acad/fake_editor_host.h"

#include <gtest/gtest.h>

#include <cwchar>

TEST(AcutPrintf, PrintsFormattedTextInTheCodePage) {
    CFakeEditorHost host;
    EXPECT_EQ(acutPrintf(L"\n%s第%d个, %.2f%%", L"试样", 3, 12.345), RTNORM);
    EXPECT_EQ(host.m_strPrinted, "\n试样第3个, 12.35%");
}

TEST(AcutPrintf, GoesToStandardOutputAsUtf8WhereNoHostIs) {
    testing::internal::CaptureStdout();
    acutPrintf(L"未找到线型%c", L'!');
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "\xE6\x9C\xAA\xE6\x89\xBE\xE5\x88\xB0\xE7\xBA\xBF\xE5\x9E\x8B!");
}

TEST(AcedGetPoint, TellsAPointAnEmptyAnswerAndACancelApart) {
    ads_point point = {7, 7, 7};
    EXPECT_EQ(acedGetPoint(nullptr, L"x", point), RTERROR); // nobody to ask
    CFakeEditorHost host;
    host.m_ptAnswer = {1, 2, 3};
    EXPECT_EQ(acedGetPoint(nullptr, L"\n请指定插入点: ", point), RTNORM);
    EXPECT_EQ(host.m_strPrompt, "\n请指定插入点: ");
    EXPECT_EQ(point[2], 3.0);
    host.m_answer = CPromptResult::None;
    EXPECT_EQ(acedGetPoint(point, nullptr, point), RTNONE);
    EXPECT_EQ(host.m_strPrompt, "");
    host.m_answer = CPromptResult::Cancel;
    EXPECT_EQ(acedGetPoint(point, L"x", point), RTCAN);
    EXPECT_EQ(point[2], 3.0);
}

TEST(AcedGetPoint, TellsTheHostWhereTheRubberBandBegins) {
    CFakeEditorHost host;
    const ads_point base = {4, 5, 6};
    ads_point point = {};
    acedGetPoint(base, L"x", point);
    EXPECT_EQ(host.m_ptBase, AcGePoint3d(4, 5, 6));
    acedGetPoint(nullptr, L"x", point);
    EXPECT_FALSE(host.m_ptBase);
}

TEST(AcedFindFile, GivesThePathTheHostFinds) {
    ACHAR path[1024] = L"as it was";
    EXPECT_EQ(acedFindFile(L"acad.lin", path), RTERROR);
    CFakeEditorHost host;
    host.m_mapFiles = {
        {"图框.dwg", "/图/图框.dwg"}, {"long", std::string(1024, 'x')}, {"fits", std::string(1023, 'x')}};
    EXPECT_EQ(acedFindFile(L"none", path), RTERROR);
    EXPECT_EQ(acedFindFile(L"", path), RTERROR);
    EXPECT_EQ(acedFindFile(L"long", path), RTERROR);
    EXPECT_STREQ(path, L"as it was");
    EXPECT_EQ(acedFindFile(L"图框.dwg", path), RTNORM);
    EXPECT_STREQ(path, L"/图/图框.dwg");
    EXPECT_EQ(acedFindFile(L"fits", path), RTNORM);
    EXPECT_EQ(std::wcslen(path), 1023u);
}

TEST(AcutNewString, MakesACopyThatItsPartnerReleases) {
    ACHAR* pText = acutNewString(L"文字");
    EXPECT_STREQ(pText, L"文字");
    acutDelString(pText);
    EXPECT_EQ(pText, nullptr);
    acutDelString(pText);
    EXPECT_EQ(acutNewString(nullptr), nullptr);
}
