#include "host/datamanager/window/project_panel.h"

#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

#include "host/datamanager/window/labelled.h"
#include "host/window_text.h"

namespace {

std::vector<CTextRow> ProjectRows(const std::vector<CListedProject>& arProjects) {
    std::vector<CTextRow> arRows;
    for (const CListedProject& listed : arProjects) {
        CTextRow row{{FromGbk(listed.m_project.m_strGCBH), FromGbk(listed.m_project.m_strGCMC),
                      QString::number(listed.m_project.m_nGCBZ), listed.m_bRunning ? u"running"_qs : u""_qs}};
        if (listed.m_bRunning) row.m_mark = RowMark::Chosen;
        if (!listed.m_strFault.empty()) {
            row.m_mark = RowMark::Wrong;
            row.m_strHint = QString::fromStdString(listed.m_strFault);
            row.m_arTexts.back() = u"cannot be read"_qs;
        }
        arRows.push_back(std::move(row));
    }
    return arRows;
}

std::vector<CTextRow> SampleRows(const std::vector<CListedSample>& arSamples) {
    std::vector<CTextRow> arRows;
    arRows.reserve(arSamples.size());
    for (const CListedSample& sample : arSamples)
        arRows.push_back({{FromGbk(sample.m_strQYBH), FromGbk(sample.m_strSYFF.value_or("")),
                           QString::number(sample.m_nReadings)}});
    return arRows;
}

/// The place of the entry whose key is strKey; the first one where there is none such.
template <class Entries, class Key>
int PlaceOf(const Entries& arEntries, const std::string& strKey, Key key) {
    const auto it = std::ranges::find(arEntries, strKey, key);
    return it == arEntries.end() ? 0 : static_cast<int>(it - arEntries.begin());
}

std::string ProjectNumber(const CListedProject& listed) {
    return listed.m_project.m_strGCBH;
}

} // namespace

CProjectPanel::CProjectPanel(CProjectChosen fnProject, CSampleChosen fnSample)
    : m_fnProject(std::move(fnProject))
    , m_fnSample(std::move(fnSample))
    , m_pProjects(new CTextTableView(
          u"Projects"_qs,
          {{u"Number"_qs, {}}, {u"Name"_qs, {}}, {u"Standard"_qs, {}, true}, {u"State"_qs, {}}}))
    , m_pBoreholes(new CTextTableView(u"Boreholes"_qs, {{u"Borehole"_qs, {}}, {u"Samples"_qs, {}, true}}))
    , m_pSamples(new CTextTableView(u"Samples"_qs,
                                    {{u"Sample"_qs, {}}, {u"Method"_qs, {}}, {u"Readings"_qs, {}, true}})) {
    auto* pTables = new QSplitter(Qt::Vertical);
    pTables->setChildrenCollapsible(false);
    pTables->addWidget(Labelled(u"Pro&jects"_qs, m_pProjects));
    pTables->addWidget(Labelled(u"&Boreholes"_qs, m_pBoreholes));
    pTables->addWidget(Labelled(u"&Samples"_qs, m_pSamples));
    auto* pAll = new QVBoxLayout(this);
    pAll->addWidget(pTables);
    connect(m_pProjects->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CProjectPanel::ShowProject);
    connect(m_pBoreholes->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CProjectPanel::ShowBorehole);
    connect(m_pSamples->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CProjectPanel::TellSample);
}

void CProjectPanel::Show(std::vector<CListedProject> arProjects) {
    m_arProjects = std::move(arProjects);
    m_pProjects->Show(ProjectRows(m_arProjects));
    // A table that loses its rows tells of no other choice by itself.
    if (m_arProjects.empty()) ShowProject();
    m_pProjects->Choose(PlaceOf(m_arProjects, m_strGCBH, ProjectNumber));
}

void CProjectPanel::ChooseProject(const std::string& strGCBH) {
    m_pProjects->Choose(PlaceOf(m_arProjects, strGCBH, ProjectNumber));
}

void CProjectPanel::ShowProject() {
    const CListedProject* pProject = ChosenProject();
    m_arBoreholes.clear();
    if (pProject) {
        m_strGCBH = pProject->m_project.m_strGCBH;
        for (const CListedSample& sample : pProject->m_arSamples) {
            if (m_arBoreholes.empty() || m_arBoreholes.back().m_strZKBH != sample.m_strZKBH)
                m_arBoreholes.push_back({sample.m_strZKBH, {}});
            m_arBoreholes.back().m_arSamples.push_back(sample);
        }
    }
    std::vector<CTextRow> arRows;
    for (const CBorehole& borehole : m_arBoreholes)
        arRows.push_back({{FromGbk(borehole.m_strZKBH), QString::number(borehole.m_arSamples.size())}});
    m_pBoreholes->Show(std::move(arRows));
    m_fnProject(pProject);
    if (m_arBoreholes.empty()) ShowBorehole();
    m_pBoreholes->Choose(PlaceOf(m_arBoreholes, m_strZKBH, &CBorehole::m_strZKBH));
}

void CProjectPanel::ShowBorehole() {
    const CBorehole* pBorehole = ChosenBorehole();
    if (pBorehole) m_strZKBH = pBorehole->m_strZKBH;
    m_pSamples->Show(pBorehole ? SampleRows(pBorehole->m_arSamples) : std::vector<CTextRow>());
    if (!pBorehole)
        TellSample();
    else
        m_pSamples->Choose(PlaceOf(pBorehole->m_arSamples, m_strQYBH, &CListedSample::m_strQYBH));
}

void CProjectPanel::TellSample() {
    const CListedSample* pSample = ChosenSample();
    if (pSample) m_strQYBH = pSample->m_strQYBH;
    m_fnSample(pSample);
}

const CListedProject* CProjectPanel::ChosenProject() const {
    const int nRow = m_pProjects->Chosen();
    return nRow < 0 ? nullptr : &m_arProjects[static_cast<std::size_t>(nRow)];
}

const CProjectPanel::CBorehole* CProjectPanel::ChosenBorehole() const {
    const int nRow = m_pBoreholes->Chosen();
    return nRow < 0 ? nullptr : &m_arBoreholes[static_cast<std::size_t>(nRow)];
}

const CListedSample* CProjectPanel::ChosenSample() const {
    const int nRow = m_pSamples->Chosen();
    return nRow < 0 ? nullptr : &ChosenBorehole()->m_arSamples[static_cast<std::size_t>(nRow)];
}
