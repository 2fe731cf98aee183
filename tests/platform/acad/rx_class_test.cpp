#include "platform/acad/rx_class.h"

#include "platform/acad/rx_registry.h"

#include <gtest/gtest.h>

namespace {

class CSample : public AcRxObject {
public:
    explicit CSample(AcRxClass* pClass)
        : m_pClass(pClass) {}
    AcRxClass* isA() const override { return m_pClass; }

private:
    AcRxClass* m_pClass;
};

AcRxObject* MakePlain() {
    return new AcRxObject;
}

AcRxObject* ClassNamed(const ACHAR* name) {
    return static_cast<AcRxDictionary*>(acrxSysRegistry()->at(ACDB_CLASS_DICTIONARY))->at(name);
}

} // namespace

TEST(AcRxClass, OfThePlatformStandsInTheDictionaryFromTheStart) {
    EXPECT_EQ(ClassNamed(L"AcRxObject"), AcRxObject::desc());
    EXPECT_EQ(ClassNamed(L"AcRxClass"), AcRxClass::desc());
    EXPECT_EQ(ClassNamed(L"AcRxDictionary"), AcRxDictionary::desc());
    EXPECT_EQ(AcRxClass::desc()->myParent(), AcRxObject::desc());
    EXPECT_EQ(AcRxObject::desc()->myParent(), nullptr);
}

TEST(NewAcRxClass, KeepsWhatItIsGivenAndMakesObjects) {
    AcRxClass* const pClass =
        newAcRxClass(L"CSampleClass", L"AcRxDictionary", 31, 55, 255, &MakePlain, L"SAMPLE", L"SAMPLEAPP");
    ASSERT_NE(pClass, nullptr);
    EXPECT_EQ(ClassNamed(L"CSampleClass"), pClass);
    EXPECT_STREQ(pClass->name(), L"CSampleClass");
    EXPECT_STREQ(pClass->dxfName(), L"SAMPLE");
    EXPECT_STREQ(pClass->appName(), L"SAMPLEAPP");
    EXPECT_EQ(pClass->dwgVersion(), 31);
    EXPECT_EQ(pClass->maintenanceVersion(), 55);
    EXPECT_EQ(pClass->proxyFlags(), 255);
    EXPECT_EQ(pClass->myParent(), AcRxDictionary::desc());
    EXPECT_TRUE(pClass->isDerivedFrom(AcRxObject::desc()));
    EXPECT_FALSE(pClass->isDerivedFrom(AcRxClass::desc()));
    AcRxObject* const pObject = pClass->create();
    EXPECT_NE(pObject, nullptr);
    delete pObject;
    deleteAcRxClass(pClass);
    EXPECT_EQ(ClassNamed(L"CSampleClass"), nullptr);
}

TEST(NewAcRxClass, RefusesAKnownNameAndAnUnknownParent) {
    AcRxClass* const pClass = newAcRxClass(L"CSampleClass", nullptr);
    ASSERT_NE(pClass, nullptr);
    EXPECT_EQ(pClass->myParent(), AcRxObject::desc());
    EXPECT_EQ(pClass->create(), nullptr);
    EXPECT_EQ(newAcRxClass(L"CSampleClass", nullptr), nullptr);
    EXPECT_EQ(newAcRxClass(L"AcRxObject", nullptr), nullptr);
    EXPECT_EQ(newAcRxClass(L"COther", L"CNobody"), nullptr);
    EXPECT_EQ(newAcRxClass(nullptr, nullptr), nullptr);
    EXPECT_EQ(newAcRxClass(L"", nullptr), nullptr);
    deleteAcRxClass(pClass);
}

TEST(DeleteAcRxClass, LeavesThePlatformsOwnClasses) {
    deleteAcRxClass(AcRxDictionary::desc());
    deleteAcRxClass(nullptr);
    EXPECT_EQ(ClassNamed(L"AcRxDictionary"), AcRxDictionary::desc());
}

TEST(AcRxObject, AnswersItsKindAndTheExtensionOfTheNearestParent) {
    AcRxClass* const pProtocol = newAcRxClass(L"CProtocol", nullptr);
    AcRxClass* const pParent = newAcRxClass(L"CParent", nullptr);
    AcRxClass* const pChild = newAcRxClass(L"CChild", L"CParent");
    const CSample child(pChild);
    AcRxObject inherited, own;
    EXPECT_TRUE(child.isKindOf(pParent));
    EXPECT_FALSE(child.isKindOf(pProtocol));
    EXPECT_EQ(child.queryX(pProtocol), nullptr);
    EXPECT_EQ(pParent->addX(pProtocol, &inherited), nullptr);
    EXPECT_EQ(child.queryX(pProtocol), &inherited);
    EXPECT_EQ(pChild->getX(pProtocol), nullptr);
    pChild->addX(pProtocol, &own);
    EXPECT_EQ(child.queryX(pProtocol), &own);
    EXPECT_EQ(pChild->delX(pProtocol), &own);
    EXPECT_EQ(pChild->delX(pProtocol), nullptr);
    EXPECT_EQ(child.queryX(pProtocol), &inherited);
    deleteAcRxClass(pChild);
    deleteAcRxClass(pProtocol);
    EXPECT_EQ(pParent->getX(pProtocol), nullptr); // the extension went with its protocol
    deleteAcRxClass(pParent);
}
