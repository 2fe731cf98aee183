#pragma once
// A chart in a drawing, of a sample in a project of the test's own, for tests of what is adopted from it.

#include "analysis/numbers.h"
#include "chart/chart_entity.h"
#include "drawing/model_space.h"
#include "host/console/dialog_lines.h"
#include "platform/windows/code_page.h"
#include "tests/platform/mfc/dialog_script.h"
#include "tests/support/documents.h"
#include "tests/support/drawing.h"
#include "tests/support/project.h"

#include <gtest/gtest.h>

class CChartCommandTest : public testing::Test {
protected:
    CChartCommandTest() {
        CBRENChart::rxInit();
        m_project.Execute("insert into x_GongCheng values(1,'GC-1','工程',0,NULL)");
        g_bChartDataChanged = 1;
    }
    ~CChartCommandTest() override {
        g_bChartDataChanged = 0;
        CBRENChart::rxExit();
    }

    /// Adds the chart of a method, and its row, and lets it be picked. Its values are 11.111, 12.222 and so
    /// on to 16.666, in the order computed, graphical, adopted, the angle before the cohesion; those of
    /// effective stress by 10 greater.
    void AddChart(const char* pMethod) {
        m_project.AddMethod("ZK1", "1-1", pMethod);
        auto* const pChart = new CBRENChart;
        pChart->m_nGCSY = 1;
        pChart->m_strGCBH = "GC-1";
        pChart->m_strZKBH = "ZK1";
        pChart->m_strQYBH = "1-1";
        pChart->m_strSYFF = pMethod;
        pChart->m_ptMohrOrigin.set(10.0, 20.0, 0.0);
        pChart->m_nMohrRows = 8;
        pChart->m_dMohrStepX = pChart->m_dMohrStepY = 50.0;
        pChart->m_dMaxSigma1 = 300.0;
        double dValue = 11.111;
        for (double* pValue : {&pChart->m_dCalcPhi, &pChart->m_dCalcC, &pChart->m_dGraphPhi,
                               &pChart->m_dGraphC, &pChart->m_dAdoptPhi, &pChart->m_dAdoptC}) {
            *pValue = dValue;
            dValue += 1.111;
        }
        dValue = 21.111;
        for (double* pValue : {&pChart->m_dCalcPhiEff, &pChart->m_dCalcCEff, &pChart->m_dGraphPhiEff,
                               &pChart->m_dGraphCEff, &pChart->m_dAdoptPhiEff, &pChart->m_dAdoptCEff}) {
            *pValue = dValue;
            dValue += 1.111;
        }
        AddToModelSpace(pChart, m_idChart);
        m_drawing.m_arPicks = {m_idChart};
    }
    void Change(const std::function<void(CBRENChart&)>& change) const {
        const CDbOpen<CBRENChart> pChart(m_idChart, AcDb::kForWrite);
        change(*pChart.Get());
    }
    template <class Question>
    auto Ask(const Question& ask) const {
        const CDbOpen<CBRENChart> pChart(m_idChart);
        return ask(*pChart.Get());
    }
    /// Runs a command in the drawing's document; the lines play its dialog.
    void Run(void (*pCommand)(), const std::vector<std::string>& lines) {
        const CDialogScript script([&](CModalWindow& window) {
            m_nDialogs++;
            for (const std::string& line : lines)
                for (const std::string& shown : RunDialogLine(window, ToUtf8(line)))
                    Utf8ToGbk(shown, &m_arShown.emplace_back());
        });
        const CDocumentContext context;
        pCommand();
    }
    /// The stored values of the row, NULL as nothing.
    std::string Stored() {
        return m_project.Query(
            "SELECT round(UUC,2),round(UUF,2),round(CUC,2),round(CUF,2),round(CUCE,2),round(CUFE,2),"
            "round(CDC,2),round(CDF,2) FROM z_c_SanZhou");
    }

    CTestProject m_project;
    CTestDrawing m_drawing;
    CTestDocuments m_documents;
    AcDbObjectId m_idChart;
    int m_nDialogs = 0;
    std::vector<std::string> m_arShown; ///< what the dialog's lines printed, GBK
};
