#include "platform/mfc/runtime_class.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/mfc/list_box.h"

TEST(RuntimeClass, IsFoundByItsNameWhileItLives) {
    {
        const CRuntimeClass base("CSampleBase", nullptr);
        const CRuntimeClass derived("CSample", &base);
        EXPECT_EQ(CRuntimeClass::FromName("CSample"), &derived);
        EXPECT_EQ(CRuntimeClass::FromName("CSample")->m_pBaseClass, &base);
        EXPECT_EQ(CRuntimeClass::FromName("csample"), nullptr);
    }
    EXPECT_EQ(CRuntimeClass::FromName("CSample"), nullptr);
}

TEST(RuntimeClass, MakesAnObjectByName) {
    const CRuntimeClass list("CSampleList", nullptr, []() -> CWnd* { return new CListBox; });
    const std::unique_ptr<CWnd> pMade(CRuntimeClass::CreateObject("CSampleList"));
    EXPECT_NE(dynamic_cast<CListBox*>(pMade.get()), nullptr);
}

TEST(RuntimeClass, MakesNothingForAClassThatIsNotMadeByName) {
    const CRuntimeClass plain("CPlain", nullptr);
    EXPECT_EQ(CRuntimeClass::CreateObject("CPlain"), nullptr);
    EXPECT_EQ(CRuntimeClass::CreateObject("CNoSuchClass"), nullptr);
}
