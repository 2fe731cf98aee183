#include "platform/acad/rx_registry.h"

#include "platform/acad/command_stack.h"
#include "platform/acad/dynamic_linker.h"
#include "platform/acad/editor_reactor.h"
#include "platform/acad/rx_class.h"

#include <gtest/gtest.h>

TEST(AcRxDictionary, GivesWhatWasPutAndReturnsWhatStoodThere) {
    AcRxDictionary dictionary;
    AcRxObject first, second;
    EXPECT_EQ(dictionary.at(L"key"), nullptr);
    EXPECT_EQ(dictionary.atPut(L"key", &first), nullptr);
    EXPECT_EQ(dictionary.atPut(L"key", &second), &first);
    EXPECT_EQ(dictionary.at(L"key"), &second);
    EXPECT_EQ(dictionary.at(L"KEY"), nullptr);
    EXPECT_EQ(dictionary.remove(L"key"), &second);
    EXPECT_EQ(dictionary.remove(L"key"), nullptr);
    EXPECT_TRUE(dictionary.Entries().empty());
}

TEST(SystemRegistry, OffersItsFourServices) {
    EXPECT_EQ(acrxSysRegistry()->Entries().size(), 4u);
    EXPECT_EQ(acrxSysRegistry()->at(L"DynamicLinker"), acrxDynamicLinker());
    EXPECT_EQ(acrxSysRegistry()->at(L"DynamicLinker")->isA(), AcRxDynamicLinker::desc());
    EXPECT_EQ(acrxSysRegistry()->at(L"AcEditor")->isA(), AcEditor::desc());
    EXPECT_EQ(acrxSysRegistry()->at(L"ACAD_REGISTERED_COMMANDS")->isA(), AcEdCommandStack::desc());
    EXPECT_EQ(acrxSysRegistry()->at(L"ClassDictionary")->isA(), AcRxDictionary::desc());
    EXPECT_EQ(acedRegCmds, acrxSysRegistry()->at(L"ACAD_REGISTERED_COMMANDS"));
    EXPECT_EQ(acedEditor, acrxSysRegistry()->at(L"AcEditor"));
}
