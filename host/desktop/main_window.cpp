#include "host/desktop/main_window.h"

#include "host/console/host_commands.h"
#include "host/console/progress.h"
#include "host/console/words.h"
#include "host/desktop/exporting.h"
#include "host/desktop/printing.h"
#include "host/desktop/question_dialogs.h"
#include "platform/acad/command_stack.h"

#include <QtCore/QFileInfo>
#include <QtGui/QAction>
#include <QtGui/QCloseEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QVBoxLayout>

#include <cmath>

namespace {

constexpr double g_dZoomStep = 1.5;
constexpr double g_dPanStep = 0.2; // of the view
constexpr const char16_t* g_pBusy = u"Working...";
constexpr QSize g_startSize(1280, 860);
constexpr QSize g_windowFrame(16, 48); // room that a window manager takes around the window

QString WithoutLineEnds(const std::string& strPrompt) {
    return QString::fromStdString(strPrompt).trimmed();
}

} // namespace

CMainWindow::CMainWindow()
    : m_pTabs(new QTabBar(this))
    , m_pView(new CDrawingView(ViewSinks(), this))
    , m_pCommandLine(new CCommandLine(
          {[this](const QString& strLine) { Entered(strLine); }, [this] { Escape(); }}, this))
    , m_pPrompt(new QLabel(this))
    , m_pCoordinates(new QLabel(this))
    , m_pBusy(new QLabel(this))
    , m_actions(*this,
                {[this](const QString& strLine) { Start(strLine); }, [this](CWindowDeed deed) { Do(deed); },
                 [this](const QString& strPath) { Open(strPath); }})
    , m_progress(*this) {
    LayOut();
    QAction* const pDark = m_actions.Deed(CWindowDeed::DarkBackground);
    pDark->setCheckable(true);
    SetDark(m_settings.IsDark());
    m_actions.SetRecentFiles(m_settings.RecentFiles());
    resize(g_startSize.boundedTo(screen()->availableSize() - g_windowFrame));
    restoreGeometry(m_settings.Geometry());
    restoreState(m_settings.Bars());
}

CMainWindow::~CMainWindow() = default;

void CMainWindow::LayOut() {
    setWindowTitle(u"Tervo"_qs);
    m_pTabs->setTabsClosable(true);
    m_pTabs->setDocumentMode(true);
    m_pTabs->setExpanding(false);
    m_pTabs->setAccessibleName(u"Drawings"_qs);
    connect(m_pTabs, &QTabBar::tabBarClicked, this, [this](int nIndex) { Activate(nIndex); });
    connect(m_pTabs, &QTabBar::tabCloseRequested, this, [this](int nIndex) {
        Activate(nIndex);
        Start(u"CLOSE"_qs);
    });
    auto* const pMiddle = new QWidget(this);
    auto* const pColumn = new QVBoxLayout(pMiddle);
    pColumn->setContentsMargins(0, 0, 0, 0);
    pColumn->setSpacing(0);
    pColumn->addWidget(m_pTabs);
    pColumn->addWidget(m_pView, 1);
    pColumn->addWidget(m_pCommandLine);
    setCentralWidget(pMiddle);
    statusBar()->addWidget(m_pPrompt, 1);
    // No layout is made before the work that it tells of, so its place is kept.
    m_pBusy->setMinimumWidth(m_pBusy->fontMetrics().horizontalAdvance(QString::fromUtf16(g_pBusy)));
    statusBar()->addPermanentWidget(m_pBusy);
    m_pCoordinates->setMinimumWidth(
        m_pCoordinates->fontMetrics().horizontalAdvance(u"-000000.000, -000000.000"_qs));
    m_pCoordinates->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    statusBar()->addPermanentWidget(m_pCoordinates);
}

CDrawingView::CSinks CMainWindow::ViewSinks() {
    CDrawingView::CSinks sinks;
    sinks.m_mouse.m_fnAnswer = [this](const std::string& strText) { m_pAnswers->Answer(strText); };
    sinks.m_mouse.m_fnStart = [this](const std::string& strLine) { m_pAnswers->Start(strLine); };
    sinks.m_fnCursor = [this](const QPointF& at) {
        m_pCoordinates->setText(u"%1, %2"_qs.arg(at.x(), 0, 'f', 3).arg(at.y(), 0, 'f', 3));
    };
    sinks.m_fnEnter = [this] { Entered(QString()); };
    sinks.m_fnKey = [this](QKeyEvent* pEvent) { m_pCommandLine->TakeKey(pEvent); };
    return sinks;
}

void CMainWindow::Attach(CWindowAnswers& answers, CHost& host) {
    m_pAnswers = &answers;
    m_pHost = &host;
    SetProgressSink([this](const std::string& strWork, std::size_t nDone, std::size_t nAll) {
        return m_progress.Show(strWork, nDone, nAll);
    });
    ShowBusy(true); // until the first question
}

void CMainWindow::Detach() {
    SetProgressSink({});
    m_settings.SetPlaces(saveGeometry(), saveState());
    m_pView->Show(nullptr);
    m_mapViews.clear();
    m_pHost = nullptr;
}

void CMainWindow::ShowText(const std::string& strText) {
    m_pCommandLine->Append(QString::fromStdString(strText));
}

void CMainWindow::BeginQuestion(const CQuestion& question, bool bCommand) {
    RefreshDocuments(); // which may take its time
    m_progress.End();
    ShowBusy(false);
    const QString strPrompt = WithoutLineEnds(question.m_strPrompt);
    m_pCommandLine->SetPrompt(strPrompt);
    m_pCommandLine->SetProposals(bCommand ? CommandNames() : QStringList());
    m_pPrompt->setText(bCommand ? u"Ready"_qs : strPrompt);
    m_pView->SetQuestion(&question, bCommand);
    m_pView->setFocus();
}

void CMainWindow::EndQuestion() {
    m_pView->SetQuestion(nullptr, false);
    m_pCommandLine->SetProposals({});
    ShowBusy(true);
}

std::optional<std::string> CMainWindow::AskByDialog(const CQuestion& question) {
    return AskQuestionByDialog(question, this);
}

void CMainWindow::ShowBusy(bool bBusy) {
    m_pBusy->setText(bBusy ? QString::fromUtf16(g_pBusy) : QString());
    m_pView->setCursor(bBusy ? Qt::WaitCursor : Qt::CrossCursor);
    if (bBusy) statusBar()->repaint(); // no event is handled before the work is done
}

void CMainWindow::closeEvent(QCloseEvent* pEvent) {
    pEvent->ignore(); // QUIT asks, and ends the run
    if (m_pAnswers) m_pAnswers->Start("QUIT");
}

void CMainWindow::Entered(const QString& strLine) {
    const std::string strText = strLine.toStdString();
    if (m_pView->TakeTyped(strText)) return;
    if (!m_pAnswers->IsAtCommandPrompt()) return m_pAnswers->Answer(strText);
    Start(strLine.trimmed().isEmpty() ? m_strLastCommand : strLine); // Enter alone repeats the last one
}

void CMainWindow::Start(const QString& strCommandLine) {
    std::vector<CWord> arWords;
    std::string strReason;
    std::string strLine = strCommandLine.toStdString();
    SplitWords(strLine, &arWords, &strReason);
    if (arWords.empty()) return;
    const QString strName = QString::fromStdString(arWords[0].m_strText).toUpper();
    m_strLastCommand = strName;
    CDocumentView* const pView = CurrentView();
    if (arWords.size() == 1 && pView && !pView->Selection().empty() && TakesSelection(strName.toStdString()))
        strLine += " " + pView->SelectionWord();
    m_pAnswers->Start(strLine);
}

void CMainWindow::Escape() {
    if (!m_pView->Escape() && !m_pAnswers->IsAtCommandPrompt()) m_pAnswers->Cancel();
}

void CMainWindow::Open(const QString& strPath) {
    m_pAnswers->Start("OPEN " + QuotedWord(strPath.toStdString()));
}

void CMainWindow::Do(CWindowDeed deed) {
    const double dAcross = g_dPanStep * m_pView->Frame().m_size.width();
    const double dUpright = g_dPanStep * m_pView->Frame().m_size.height();
    switch (deed) {
    case CWindowDeed::Export:
        return Export();
    case CWindowDeed::PrintPreview:
        return Print(PreviewPrint);
    case CWindowDeed::Print:
        return Print(PrintDrawing);
    case CWindowDeed::SelectAll:
        return m_pView->SelectAll();
    case CWindowDeed::ZoomExtents:
        return m_pView->ZoomExtents();
    case CWindowDeed::ZoomIn:
        return m_pView->ZoomBy(g_dZoomStep);
    case CWindowDeed::ZoomOut:
        return m_pView->ZoomBy(1.0 / g_dZoomStep);
    case CWindowDeed::PanLeft:
        return m_pView->PanBy({std::round(dAcross), 0.0});
    case CWindowDeed::PanRight:
        return m_pView->PanBy({-std::round(dAcross), 0.0});
    case CWindowDeed::PanUp:
        return m_pView->PanBy({0.0, std::round(dUpright)});
    case CWindowDeed::PanDown:
        return m_pView->PanBy({0.0, -std::round(dUpright)});
    case CWindowDeed::TextWindow:
        return m_pCommandLine->ToggleTextWindow();
    case CWindowDeed::DarkBackground:
        return SetDark(m_actions.Deed(deed)->isChecked());
    case CWindowDeed::NextDrawing:
        return ActivateNext(1);
    case CWindowDeed::PreviousDrawing:
        return ActivateNext(-1);
    case CWindowDeed::CommandHelp:
        return TellCommands();
    }
}

void CMainWindow::Print(std::string (*pfnPrint)(AcDbDatabase&, CFonts&, QWidget*)) {
    if (!CurrentView()) return;
    const std::string strReason = pfnPrint(m_pHost->Drawing(), m_pHost->m_fonts, this);
    if (!strReason.empty()) m_pAnswers->Print(strReason);
}

void CMainWindow::Export() {
    if (!CurrentView()) return;
    const std::string strPath = AskExportPath(this);
    if (strPath.empty()) return;
    if (!IsDxfPath(strPath)) return m_pAnswers->Start("PLOT " + QuotedWord(strPath));
    ShowBusy(true);
    m_pAnswers->Print(ExportDxf(m_pHost->Drawing(), strPath));
    ShowBusy(false);
}

void CMainWindow::SetDark(bool bDark) {
    m_actions.Deed(CWindowDeed::DarkBackground)->setChecked(bDark);
    m_settings.SetDark(bDark);
    m_pView->SetColors(bDark ? DarkColors() : LightColors());
}

void CMainWindow::TellCommands() {
    for (const CHostCommand& command : HostCommands())
        m_pAnswers->Print(std::string(command.m_pName) + "  " + command.m_pHelp);
}
