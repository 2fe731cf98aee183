#pragma once

#include "host/console/host.h"
#include "platform/acad/ap_document_manager.h"

/// The document manager's side of a scripted run, registered while it lives.
class CScriptDocuments final : public CDocumentHost {
public:
    explicit CScriptDocuments(CHost& host)
        : m_host(host) {
        acDocManagerPtr()->SetHost(this);
    }
    ~CScriptDocuments() override { acDocManagerPtr()->SetHost(nullptr); }
    CScriptDocuments(const CScriptDocuments&) = delete;
    CScriptDocuments& operator=(const CScriptDocuments&) = delete;

    std::vector<AcApDocument*> Documents() const override { return m_host.m_drawings.Documents(); }
    AcApDocument* Current() const override { return m_host.m_drawings.CurrentDocument(); }
    void Activate(AcApDocument& document) override;
    Acad::ErrorStatus NewDocument() override;
    Acad::ErrorStatus OpenDocument(const std::wstring& strPath) override;
    Acad::ErrorStatus CloseDocument(AcApDocument& document) override;

private:
    CHost& m_host;
};
