#pragma once

#include "platform/acad/ap_document_manager.h"

/// A program with some documents; it notes what it is asked to do.
class CFakeDocuments final : public CDocumentHost {
public:
    CFakeDocuments() { acDocManagerPtr()->SetHost(this); }
    ~CFakeDocuments() override { acDocManagerPtr()->SetHost(nullptr); }
    CFakeDocuments(const CFakeDocuments&) = delete;
    CFakeDocuments& operator=(const CFakeDocuments&) = delete;

    std::vector<AcApDocument*> Documents() const override {
        std::vector<AcApDocument*> documents;
        for (const auto& pDocument : m_arDocuments)
            documents.push_back(pDocument.get());
        return documents;
    }
    AcApDocument* Current() const override { return m_pCurrent; }
    void Activate(AcApDocument& document) override { m_pCurrent = &document; }
    Acad::ErrorStatus NewDocument() override {
        m_arDocuments.push_back(std::make_unique<AcApDocument>(std::make_unique<AcDbDatabase>(), L"new"));
        m_pCurrent = m_arDocuments.back().get();
        return Acad::eOk;
    }
    Acad::ErrorStatus OpenDocument(const std::wstring& strPath) override {
        m_strOpened = strPath;
        return Acad::eFileNotFound;
    }
    Acad::ErrorStatus CloseDocument(AcApDocument& document) override {
        std::erase_if(m_arDocuments, [&](const auto& pDocument) { return pDocument.get() == &document; });
        m_pCurrent = m_arDocuments.empty() ? nullptr : m_arDocuments.front().get();
        return Acad::eOk;
    }

    std::vector<std::unique_ptr<AcApDocument>> m_arDocuments;
    AcApDocument* m_pCurrent = nullptr;
    std::wstring m_strOpened;
};
