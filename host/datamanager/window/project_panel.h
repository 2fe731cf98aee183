#pragma once

#include <QtWidgets/QWidget>

#include <functional>
#include <string>
#include <vector>

#include "host/datamanager/listing.h"
#include "host/datamanager/window/text_table.h"

/// Projects, the boreholes of the chosen one, and the samples of the chosen borehole.
class CProjectPanel final : public QWidget {
public:
    /// Heard when another project or sample is chosen; null where none is.
    using CProjectChosen = std::function<void(const CListedProject* pProject)>;
    using CSampleChosen = std::function<void(const CListedSample* pSample)>;

    CProjectPanel(CProjectChosen fnProject, CSampleChosen fnSample);

    /// Shows projects; the project, borehole and sample that were chosen stay so where they are still there,
    /// and are heard anew.
    void Show(std::vector<CListedProject> arProjects);
    /// Chooses the project of a number, GBK.
    void ChooseProject(const std::string& strGCBH);
    [[nodiscard]] const CListedProject* ChosenProject() const;
    [[nodiscard]] const CListedSample* ChosenSample() const;

private:
    struct CBorehole {
        std::string m_strZKBH;
        std::vector<CListedSample> m_arSamples;
    };

    void ShowProject();
    void ShowBorehole();
    void TellSample();
    [[nodiscard]] const CBorehole* ChosenBorehole() const;

    CProjectChosen m_fnProject;
    CSampleChosen m_fnSample;
    std::vector<CListedProject> m_arProjects;
    std::vector<CBorehole> m_arBoreholes;        ///< of the chosen project
    std::string m_strGCBH, m_strZKBH, m_strQYBH; ///< chosen last
    CTextTableView* m_pProjects;
    CTextTableView* m_pBoreholes;
    CTextTableView* m_pSamples;
};
