#pragma once
// The documents of the program, and the two contexts in which code runs: a command runs in its document's,
// everything else in the application's.

#include "platform/acad/ap_document.h"
#include "platform/windows/types.h"

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// What the program does for the document manager. It owns the documents.
class CDocumentHost {
public:
    virtual ~CDocumentHost() = default;
    virtual std::vector<AcApDocument*> Documents() const = 0; ///< in order of opening
    virtual AcApDocument* Current() const = 0;                ///< null when none is open
    virtual void Activate(AcApDocument& document) = 0;        ///< makes it the current one

    // In single-document mode a drawing that is made or opened takes the place of the current one. What would
    // discard changes asks the user before: eUserBreak when he gives it up.
    virtual Acad::ErrorStatus NewDocument() = 0;
    virtual Acad::ErrorStatus OpenDocument(const std::wstring& strPath) = 0;
    virtual Acad::ErrorStatus CloseDocument(AcApDocument& document) = 0;
};

/// Walks the documents there are when it is made. The caller deletes it.
class AcApDocumentIterator {
public:
    explicit AcApDocumentIterator(std::vector<AcApDocument*> documents)
        : m_arDocuments(std::move(documents)) {}
    bool done() const { return m_nAt >= m_arDocuments.size(); }
    void step() { ++m_nAt; }
    AcApDocument* document() const { return done() ? nullptr : m_arDocuments[m_nAt]; }

private:
    std::vector<AcApDocument*> m_arDocuments;
    std::size_t m_nAt = 0;
};

/// Without a host there is no document. A null document gives eNoDocument, one that the program hasn't open
/// eNotFromThisDocument.
class AcApDocManager : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return AcApDocManager::desc(); }

    AcApDocument* curDocument() const; ///< null when none is open
    AcApDocument* mdiActiveDocument() const { return curDocument(); }
    long documentCount() const { return static_cast<long>(Documents().size()); }
    AcApDocumentIterator* newAcApDocumentIterator() const { return new AcApDocumentIterator(Documents()); }
    bool isApplicationContext() const { return m_nCommands == 0; }

    /// See AcApDocument::Lock; each lock is given back by one unlocking.
    Acad::ErrorStatus lockDocument(AcApDocument* pDocument, AcAp::DocLockMode mode = AcAp::kWrite);
    Acad::ErrorStatus unlockDocument(AcApDocument* pDocument);

    // In application context only, else eInvalidContext. eNotApplicable without a host.
    Acad::ErrorStatus appContextNewDocument();
    Acad::ErrorStatus appContextOpenDocument(const ACHAR* path);        ///< it becomes the current one
    Acad::ErrorStatus appContextCloseDocument(AcApDocument* pDocument); ///< eLockViolation while locked
    Acad::ErrorStatus activateDocument(AcApDocument* pDocument);

    /// Runs the function in application context: at once, or from a document's context when the command
    /// function that runs has returned, before the next answer of the user is read.
    void executeInApplicationContext(void (*pFunction)(void*), void* pData);
    /// Types the text (see CTypedText) at the document's command line once no command runs, before the next
    /// answer of the user is read. bActivate makes the document the current one first; else the text waits
    /// until it is. A command is never left half done for another document, so there is nothing to wrap up.
    Acad::ErrorStatus sendStringToExecute(AcApDocument* pDocument, const ACHAR* text, bool bActivate = true,
                                          bool bWrapUpInactiveDoc = false, bool bEchoString = true);

    /// Puts a module's resources in force until they are popped. To pop without a push changes nothing.
    void pushResourceHandle(HINSTANCE hResources);
    void popResourceHandle();

    // Host side.
    void SetHost(CDocumentHost* pHost) { m_pHost = pHost; } ///< not owned; null takes it away
    /// Runs what was handed over to the application context, and what that hands over in turn. False when
    /// there was nothing.
    bool RunDeferredWork();
    /// Types the next of the texts sent. False when there is none.
    bool TypeNextText();
    Acad::ErrorStatus OpenInPlace(const ACHAR* path); ///< see acedSyncFileOpen
    /// Drops work whose function is in the code that goes.
    void RemoveCodeIn(const std::function<bool(const void*)>& isInside);
    /// For a document that closes: what was sent to it goes with it.
    void Forget(const AcApDocument& document);

private:
    friend class CDocumentContext;
    struct CWork {
        void (*m_pFunction)(void*);
        void* m_pData;
    };
    struct CSentText {
        AcApDocument* m_pDocument;
        std::wstring m_strText;
        bool m_bActivate, m_bEcho;
    };
    std::vector<AcApDocument*> Documents() const;
    Acad::ErrorStatus Check(const AcApDocument* pDocument) const;
    Acad::ErrorStatus CheckApplicationContext() const;

    CDocumentHost* m_pHost = nullptr;
    int m_nCommands = 0;
    std::deque<CWork> m_arWork;
    std::deque<CSentText> m_arSent;
    std::vector<HINSTANCE> m_arResources; // what was in force before each push
};

AcApDocManager* acDocManagerPtr();
#define acDocManager acDocManagerPtr()

/// A command runs in the current document's context while this lives. Commands may nest.
class CDocumentContext {
public:
    CDocumentContext() { ++acDocManagerPtr()->m_nCommands; }
    ~CDocumentContext() { --acDocManagerPtr()->m_nCommands; }
    CDocumentContext(const CDocumentContext&) = delete;
    CDocumentContext& operator=(const CDocumentContext&) = delete;
};

/// In single-document mode: opens a drawing in place of the current one. eNotApplicable in
/// multiple-document mode.
Acad::ErrorStatus acedSyncFileOpen(const ACHAR* path);
