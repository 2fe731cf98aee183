#pragma once
// A program's documents for tests of what opens, closes and speaks to them.

#include "platform/acad/ap_document_manager.h"
#include "platform/acad/editor.h"
#include "platform/windows/code_page.h"

/// No document is open at first. Opening adds one named by the file, but not for a path in m_strMissing. SDI
/// is 0 again at the end.
class CTestDocuments final : public CDocumentHost {
public:
    CTestDocuments() { acDocManager->SetHost(this); }
    ~CTestDocuments() override {
        resbuf off;
        off.restype = RTSHORT;
        acedSetVar(L"SDI", &off);
        acDocManager->RunDeferredWork();
        acDocManager->SetHost(nullptr);
    }
    CTestDocuments(const CTestDocuments&) = delete;
    CTestDocuments& operator=(const CTestDocuments&) = delete;

    std::vector<AcApDocument*> Documents() const override {
        std::vector<AcApDocument*> documents;
        for (const auto& pDocument : m_arDocuments)
            documents.push_back(pDocument.get());
        return documents;
    }
    AcApDocument* Current() const override { return m_pCurrent; }
    void Activate(AcApDocument& document) override { m_pCurrent = &document; }
    Acad::ErrorStatus NewDocument() override {
        Add(L"new");
        return Acad::eOk;
    }
    Acad::ErrorStatus OpenDocument(const std::wstring& strPath) override {
        if (GbkFromWide(strPath) == m_strMissing) return Acad::eFileNotFound;
        Add(strPath);
        return Acad::eOk;
    }
    Acad::ErrorStatus CloseDocument(AcApDocument& document) override {
        std::erase_if(m_arDocuments, [&](const auto& pDocument) { return pDocument.get() == &document; });
        m_pCurrent = m_arDocuments.empty() ? nullptr : m_arDocuments.front().get();
        return Acad::eOk;
    }

    AcApDocument& Add(const std::wstring& strName) {
        m_arDocuments.push_back(std::make_unique<AcApDocument>(std::make_unique<AcDbDatabase>(), strName));
        m_pCurrent = m_arDocuments.back().get();
        return *m_pCurrent;
    }
    /// The names, GBK, each with what was typed for it meanwhile in brackets, "^" for Escape and "_" before
    /// what is not echoed.
    std::string Shown() {
        while (acDocManager->TypeNextText()) {
        }
        std::string shown;
        for (const auto& pDocument : m_arDocuments) {
            shown += (shown.empty() ? "" : " ") + GbkFromWide(pDocument->fileName());
            while (const std::optional<CTypedLine> line = pDocument->TypedText().TakeLine())
                shown += std::string("[") + (line->m_bEcho ? "" : "_") +
                         (line->m_bEscape ? "^" : GbkFromWide(line->m_strText)) + "]";
        }
        return shown;
    }

    std::string m_strMissing; ///< GBK

private:
    std::vector<std::unique_ptr<AcApDocument>> m_arDocuments;
    AcApDocument* m_pCurrent = nullptr;
};
