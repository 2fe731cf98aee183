#include "platform/acad/ap_document_manager.h"

#include "platform/acad/editor.h"
#include "platform/mfc/resources.h"
#include "tests/support/documents.h"

#include <gtest/gtest.h>

namespace {

class ApDocManager : public testing::Test {
protected:
    AcApDocument* Add() { return &m_documents.Add(L"new"); }
    CTestDocuments m_documents;
    AcApDocManager& m_manager = *acDocManagerPtr();
};

void AddOne(void* pData) {
    ++*static_cast<int*>(pData);
}

/// Hands AddOne over from within deferred work.
void AddOneLater(void* pData) {
    acDocManagerPtr()->executeInApplicationContext(AddOne, pData);
    *static_cast<int*>(pData) *= 10;
}

} // namespace

TEST(ApDocManagerWithoutProgram, HasNoDocument) {
    EXPECT_EQ(acDocManager->curDocument(), nullptr);
    EXPECT_EQ(acDocManager->documentCount(), 0);
    EXPECT_EQ(acDocManager->appContextNewDocument(), Acad::eNotApplicable);
    EXPECT_EQ(acDocManager->lockDocument(nullptr), Acad::eNoDocument);
    EXPECT_EQ(acedSyncFileOpen(L"a.dwg"), Acad::eNotApplicable);
}

TEST_F(ApDocManager, WalksTheDocumentsThatThereWere) {
    AcApDocument* const pFirst = Add();
    AcApDocument* const pSecond = Add();
    EXPECT_EQ(m_manager.documentCount(), 2);
    EXPECT_EQ(m_manager.mdiActiveDocument(), pSecond);
    const std::unique_ptr<AcApDocumentIterator> walk(m_manager.newAcApDocumentIterator());
    EXPECT_EQ(walk->document(), pFirst);
    EXPECT_EQ(m_manager.appContextCloseDocument(pFirst), Acad::eOk);
    walk->step();
    EXPECT_FALSE(walk->done());
    EXPECT_EQ(walk->document(), pSecond);
    walk->step();
    EXPECT_TRUE(walk->done());
    EXPECT_EQ(walk->document(), nullptr);
}

TEST_F(ApDocManager, ACommandRunsInItsDocumentsContext) {
    EXPECT_TRUE(m_manager.isApplicationContext());
    {
        const CDocumentContext command;
        const CDocumentContext nested;
        EXPECT_FALSE(m_manager.isApplicationContext());
    }
    EXPECT_TRUE(m_manager.isApplicationContext());
}

TEST_F(ApDocManager, WhatIsForTheApplicationIsRefusedInADocumentsContext) {
    AcApDocument* const pDocument = Add();
    const CDocumentContext command;
    EXPECT_EQ(m_manager.appContextNewDocument(), Acad::eInvalidContext);
    EXPECT_EQ(m_manager.appContextOpenDocument(L"a.dwg"), Acad::eInvalidContext);
    EXPECT_EQ(m_manager.appContextCloseDocument(pDocument), Acad::eInvalidContext);
    EXPECT_EQ(m_manager.activateDocument(pDocument), Acad::eInvalidContext);
    EXPECT_EQ(m_manager.documentCount(), 1);
    EXPECT_EQ(m_manager.lockDocument(pDocument), Acad::eOk);
    EXPECT_EQ(m_manager.unlockDocument(pDocument), Acad::eOk);
}

TEST_F(ApDocManager, ADocumentIsOpenedActivatedAndClosedByTheProgram) {
    AcApDocument* const pFirst = Add();
    Add();
    m_documents.m_strMissing = "missing.dwg";
    EXPECT_EQ(m_manager.appContextOpenDocument(L"missing.dwg"), Acad::eFileNotFound);
    EXPECT_EQ(m_manager.appContextOpenDocument(L"a.dwg"), Acad::eOk);
    EXPECT_STREQ(m_manager.curDocument()->fileName(), L"a.dwg");
    EXPECT_EQ(m_manager.appContextOpenDocument(L""), Acad::eInvalidInput);
    EXPECT_EQ(m_manager.activateDocument(pFirst), Acad::eOk);
    EXPECT_EQ(m_manager.curDocument(), pFirst);
    EXPECT_EQ(m_manager.appContextCloseDocument(pFirst), Acad::eOk);
    EXPECT_EQ(m_manager.appContextCloseDocument(pFirst), Acad::eNotFromThisDocument);
    EXPECT_EQ(m_manager.activateDocument(nullptr), Acad::eNoDocument);
}

TEST_F(ApDocManager, ALockedDocumentIsNotClosed) {
    AcApDocument* const pDocument = Add();
    EXPECT_EQ(m_manager.lockDocument(pDocument, AcAp::kWrite), Acad::eOk);
    EXPECT_EQ(pDocument->lockMode(), AcAp::kWrite);
    EXPECT_EQ(m_manager.appContextCloseDocument(pDocument), Acad::eLockViolation);
    EXPECT_EQ(m_manager.unlockDocument(pDocument), Acad::eOk);
    EXPECT_EQ(m_manager.unlockDocument(pDocument), Acad::eLockViolation);
    EXPECT_EQ(m_manager.appContextCloseDocument(pDocument), Acad::eOk);
}

TEST_F(ApDocManager, RunsWhatIsForTheApplicationAtOnceThereAndLaterFromACommand) {
    int n = 0;
    m_manager.executeInApplicationContext(AddOne, &n);
    EXPECT_EQ(n, 1);
    EXPECT_FALSE(m_manager.RunDeferredWork());
    {
        const CDocumentContext command;
        m_manager.executeInApplicationContext(AddOneLater, &n);
        m_manager.executeInApplicationContext(AddOne, &n);
        m_manager.executeInApplicationContext(nullptr, &n);
        EXPECT_EQ(n, 1);
    }
    EXPECT_TRUE(m_manager.RunDeferredWork());
    EXPECT_EQ(n, 21); // (1 + 1) * 10 + 1
    EXPECT_FALSE(m_manager.RunDeferredWork());
}

TEST_F(ApDocManager, DropsWorkWhoseCodeGoes) {
    int n = 1;
    {
        const CDocumentContext command;
        m_manager.executeInApplicationContext(AddOneLater, &n);
        m_manager.executeInApplicationContext(AddOne, &n);
    }
    m_manager.RemoveCodeIn(
        [](const void* pCode) { return pCode == reinterpret_cast<const void*>(AddOneLater); });
    EXPECT_TRUE(m_manager.RunDeferredWork());
    EXPECT_EQ(n, 2);
}

TEST_F(ApDocManager, TextsAreTypedOneByOneAtTheirDocuments) {
    AcApDocument* const pFirst = Add();
    AcApDocument* const pSecond = Add();
    EXPECT_EQ(m_manager.sendStringToExecute(pFirst, L"zoom e "), Acad::eOk);
    EXPECT_EQ(m_manager.sendStringToExecute(pSecond, L"regen\n", false, true, false), Acad::eOk);
    EXPECT_FALSE(pFirst->TypedText().HasLine());
    EXPECT_TRUE(m_manager.TypeNextText());
    EXPECT_EQ(m_manager.curDocument(), pFirst);
    EXPECT_EQ(pFirst->TypedText().TakeLine()->m_strText, L"zoom e");
    EXPECT_FALSE(pSecond->TypedText().HasLine());
    EXPECT_TRUE(m_manager.TypeNextText());
    EXPECT_EQ(m_manager.curDocument(), pFirst); // not activated
    EXPECT_FALSE(pSecond->TypedText().TakeLine()->m_bEcho);
    EXPECT_FALSE(m_manager.TypeNextText());
}

TEST_F(ApDocManager, ATextGoesToAnOpenDocumentOnly) {
    AcApDocument* const pDocument = Add();
    EXPECT_EQ(m_manager.sendStringToExecute(nullptr, L"regen "), Acad::eNoDocument);
    EXPECT_EQ(m_manager.sendStringToExecute(pDocument, nullptr), Acad::eInvalidInput);
    EXPECT_EQ(m_manager.sendStringToExecute(pDocument, L"regen "), Acad::eOk);
    m_documents.CloseDocument(*pDocument);
    EXPECT_FALSE(m_manager.TypeNextText());
    EXPECT_EQ(m_manager.sendStringToExecute(pDocument, L"regen "), Acad::eNotFromThisDocument);
}

TEST_F(ApDocManager, ResourcesPoppedAreThoseBeforeThePush) {
    const CModuleResources first, second;
    m_manager.popResourceHandle();
    EXPECT_EQ(AfxGetResourceHandle(), nullptr);
    m_manager.pushResourceHandle(&first);
    m_manager.pushResourceHandle(&second);
    EXPECT_EQ(AfxGetResourceHandle(), &second);
    m_manager.popResourceHandle();
    EXPECT_EQ(AfxGetResourceHandle(), &first);
    m_manager.popResourceHandle();
    EXPECT_EQ(AfxGetResourceHandle(), nullptr);
}

TEST_F(ApDocManager, ADrawingIsOpenedInPlaceInSingleDocumentModeOnly) {
    Add();
    EXPECT_EQ(acedSyncFileOpen(L"a.dwg"), Acad::eNotApplicable);
    resbuf on;
    on.restype = RTSHORT;
    on.resval.rint = 2;
    ASSERT_EQ(acedSetVar(L"SDI", &on), RTNORM);
    EXPECT_EQ(acedSyncFileOpen(L"a.dwg"), Acad::eOk);
    EXPECT_STREQ(m_manager.curDocument()->fileName(), L"a.dwg");
    m_documents.m_strMissing = "missing.dwg";
    EXPECT_EQ(acedSyncFileOpen(L"missing.dwg"), Acad::eFileNotFound);
    EXPECT_EQ(acedSyncFileOpen(nullptr), Acad::eInvalidInput);
}
