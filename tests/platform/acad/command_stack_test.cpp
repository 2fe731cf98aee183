#include "platform/acad/command_stack.h"

#include <gtest/gtest.h>

namespace {

void First() {}
void Second() {}

} // namespace

TEST(AcEdCommandStack, FindsACommandByItsGlobalOrLocalNameInAnyCase) {
    AcEdCommandStack stack;
    ASSERT_EQ(stack.addCommand(L"SOIL", L"SOILMAKE", L"土样", ACRX_CMD_TRANSPARENT, &First), Acad::eOk);
    const CRegisteredCommand* const pCommand = stack.lookup(L"SoilMake");
    ASSERT_NE(pCommand, nullptr);
    EXPECT_EQ(pCommand, stack.lookup(L"土样"));
    EXPECT_EQ(pCommand->m_pFunction, &First);
    EXPECT_EQ(pCommand->m_nFlags, ACRX_CMD_TRANSPARENT);
    EXPECT_EQ(stack.lookup(L"SOIL"), nullptr);
    EXPECT_EQ(stack.lookup(L""), nullptr);
    EXPECT_EQ(stack.lookup(nullptr), nullptr);
}

TEST(AcEdCommandStack, RefusesANameThatTheGroupHas) {
    AcEdCommandStack stack;
    ASSERT_EQ(stack.addCommand(L"SOIL", L"MAKE", nullptr, ACRX_CMD_MODAL, &First), Acad::eOk);
    EXPECT_EQ(stack.addCommand(L"soil", L"make", L"other", ACRX_CMD_MODAL, &Second), Acad::eDuplicateKey);
    EXPECT_EQ(stack.addCommand(L"SOIL", L"OTHER", L"Make", ACRX_CMD_MODAL, &Second), Acad::eDuplicateKey);
    EXPECT_EQ(stack.addCommand(L"ROCK", L"MAKE", L"MAKE", ACRX_CMD_MODAL, &Second), Acad::eOk);
    EXPECT_EQ(stack.lookup(L"MAKE")->m_pFunction, &First); // the first one added answers
}

TEST(AcEdCommandStack, RefusesWhatCannotBeCalledOrNamed) {
    AcEdCommandStack stack;
    EXPECT_EQ(stack.addCommand(nullptr, L"MAKE", L"MAKE", ACRX_CMD_MODAL, &First), Acad::eInvalidInput);
    EXPECT_EQ(stack.addCommand(L"SOIL", L"", L"MAKE", ACRX_CMD_MODAL, &First), Acad::eInvalidInput);
    EXPECT_EQ(stack.addCommand(L"SOIL", L"MAKE", L"MAKE", ACRX_CMD_MODAL, nullptr), Acad::eInvalidInput);
    EXPECT_TRUE(stack.Commands().empty());
}

TEST(AcEdCommandStack, RemovesAGroupAsAWhole) {
    AcEdCommandStack stack;
    stack.addCommand(L"SOIL", L"A", nullptr, ACRX_CMD_MODAL, &First);
    stack.addCommand(L"ROCK", L"B", nullptr, ACRX_CMD_MODAL, &First);
    stack.addCommand(L"SOIL", L"C", nullptr, ACRX_CMD_MODAL, &First);
    EXPECT_EQ(stack.removeGroup(L"Soil"), Acad::eOk);
    ASSERT_EQ(stack.Commands().size(), 1u);
    EXPECT_EQ(stack.Commands()[0].m_strGlobalName, L"B");
    EXPECT_EQ(stack.removeGroup(L"SOIL"), Acad::eKeyNotFound);
}
