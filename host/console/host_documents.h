#pragma once

#include "host/console/host.h"
#include "platform/acad/ap_document_manager.h"

/// The program's side of the document manager, registered while it lives.
class CHostDocuments final : public CDocumentHost {
public:
    explicit CHostDocuments(CHost& host)
        : m_host(host) {
        acDocManagerPtr()->SetHost(this);
    }
    ~CHostDocuments() override { acDocManagerPtr()->SetHost(nullptr); }
    CHostDocuments(const CHostDocuments&) = delete;
    CHostDocuments& operator=(const CHostDocuments&) = delete;

    std::vector<AcApDocument*> Documents() const override { return m_host.m_drawings.Documents(); }
    AcApDocument* Current() const override { return m_host.m_drawings.CurrentDocument(); }
    void Activate(AcApDocument& document) override;
    Acad::ErrorStatus NewDocument() override;
    Acad::ErrorStatus OpenDocument(const std::wstring& strPath) override;
    Acad::ErrorStatus CloseDocument(AcApDocument& document) override;

private:
    CHost& m_host;
};
