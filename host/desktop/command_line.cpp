#include "host/desktop/command_line.h"

#include "host/interface_font.h"

#include <QtCore/QStringListModel>
#include <QtGui/QFontDatabase>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int g_nLastLines = 3;
constexpr int g_nProposalsWidth = 200; // pixels at least
constexpr int g_nMostLines = 20000;    // kept in the text window

void SetUpText(QPlainTextEdit& edit, const QString& strName) {
    edit.setReadOnly(true);
    edit.setMaximumBlockCount(g_nMostLines);
    edit.setFont(
        WithChinese(QFontDatabase::systemFont(QFontDatabase::FixedFont), u"WenQuanYi Micro Hei Mono"_qs));
    edit.setAccessibleName(strName);
}

void AppendTo(QPlainTextEdit& edit, const QString& strText) {
    QTextCursor cursor(edit.document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(strText);
    edit.verticalScrollBar()->setValue(edit.verticalScrollBar()->maximum());
}

} // namespace

CCommandLine::CCommandLine(CSinks sinks, QWidget* pParent)
    : QWidget(pParent)
    , m_sinks(std::move(sinks))
    , m_pLastLines(new QPlainTextEdit(this))
    , m_pTextWindow(new QPlainTextEdit(this))
    , m_pPrompt(new QLabel(this))
    , m_pEdit(new QLineEdit(this))
    , m_pProposals(new QStringListModel(this))
    , m_pCompleter(new QCompleter(m_pProposals, this)) {
    SetUpText(*m_pLastLines, u"Last lines"_qs);
    m_pLastLines->setFocusPolicy(Qt::NoFocus);
    m_pLastLines->setFixedHeight(QFontMetrics(m_pLastLines->font()).lineSpacing() * g_nLastLines + 12);
    SetUpText(*m_pTextWindow, u"Text window"_qs);
    m_pTextWindow->setWindowFlag(Qt::Window);
    m_pTextWindow->setWindowTitle(u"Text window"_qs);
    m_pTextWindow->resize(720, 480);
    m_pTextWindow->installEventFilter(this);
    m_pEdit->setAccessibleName(u"Command line"_qs);
    m_pEdit->setFrame(false);
    m_pEdit->installEventFilter(this);
    m_pPrompt->setBuddy(m_pEdit);
    m_pCompleter->setCaseSensitivity(Qt::CaseInsensitive);
    m_pEdit->setCompleter(m_pCompleter);
    m_pCompleter->popup()->installEventFilter(this);
    connect(m_pEdit, &QLineEdit::returnPressed, this, &CCommandLine::Enter);
    auto* const pRow = new QHBoxLayout;
    pRow->setContentsMargins(6, 0, 6, 2);
    pRow->addWidget(m_pPrompt);
    pRow->addWidget(m_pEdit, 1);
    auto* const pColumn = new QVBoxLayout(this);
    pColumn->setContentsMargins(0, 0, 0, 0);
    pColumn->setSpacing(0);
    pColumn->addWidget(m_pLastLines);
    pColumn->addLayout(pRow);
    setFocusProxy(m_pEdit);
}

void CCommandLine::Append(const QString& strText) {
    QString strShown = m_bLineEnded ? u'\n' + strText : strText;
    m_bLineEnded = strShown.endsWith(u'\n');
    if (m_bLineEnded) strShown.chop(1); // no empty line below the last one
    AppendTo(*m_pLastLines, strShown);
    AppendTo(*m_pTextWindow, strShown);
}

void CCommandLine::SetPrompt(const QString& strPrompt) {
    m_pPrompt->setText(strPrompt);
}

void CCommandLine::ToggleTextWindow() {
    m_pTextWindow->setVisible(!m_pTextWindow->isVisible());
    if (m_pTextWindow->isVisible()) m_pTextWindow->activateWindow();
}

void CCommandLine::TakeKey(QKeyEvent* pEvent) {
    if (TakeEditKey(*pEvent) || pEvent->text().isEmpty()) return;
    m_pEdit->setFocus();
    m_pEdit->event(pEvent);
}

bool CCommandLine::eventFilter(QObject* pWatched, QEvent* pEvent) {
    if (pWatched == m_pCompleter->popup()) {
        const bool bPlaced = pEvent->type() == QEvent::Move || pEvent->type() == QEvent::Resize;
        if (bPlaced) PlaceProposals();
        return false;
    }
    if (pEvent->type() != QEvent::KeyPress) return QWidget::eventFilter(pWatched, pEvent);
    const auto& key = *static_cast<QKeyEvent*>(pEvent);
    if (pWatched == m_pEdit) return TakeEditKey(key);
    const bool bCloses = key.key() == Qt::Key_Escape || key.key() == Qt::Key_F2;
    if (bCloses) m_pTextWindow->hide();
    return bCloses;
}

bool CCommandLine::TakeEditKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Escape:
        m_pEdit->clear();
        m_sinks.m_fnEscape();
        return true;
    case Qt::Key_Up:
        Recall(-1);
        return true;
    case Qt::Key_Down:
        Recall(1);
        return true;
    case Qt::Key_Tab:
        return Complete();
    default:
        return false;
    }
}

void CCommandLine::SetProposals(const QStringList& arWords) {
    m_pProposals->setStringList(arWords);
}

// The completer puts them below the line, where the window and often the screen ends.
void CCommandLine::PlaceProposals() {
    QAbstractItemView* const pPopup = m_pCompleter->popup();
    const int nWidth = std::max(g_nProposalsWidth, pPopup->sizeHintForColumn(0) + 2 * pPopup->frameWidth() +
                                                       pPopup->verticalScrollBar()->sizeHint().width());
    const QPoint above = m_pEdit->mapToGlobal(QPoint(0, -pPopup->height()));
    const QRect place(above, QSize(nWidth, pPopup->height()));
    if (pPopup->geometry() != place) pPopup->setGeometry(place);
}

bool CCommandLine::Complete() {
    m_pCompleter->setCompletionPrefix(m_pEdit->text());
    const QString strWord = m_pCompleter->currentCompletion();
    if (m_pEdit->text().isEmpty() || strWord.isEmpty()) return false;
    m_pEdit->setText(strWord);
    return true;
}

void CCommandLine::Enter() {
    const QString strLine = m_pEdit->text();
    m_pEdit->clear();
    m_pCompleter->popup()->hide();
    if (!strLine.isEmpty() && (m_arTyped.isEmpty() || m_arTyped.back() != strLine)) m_arTyped << strLine;
    m_nRecalled = m_arTyped.size();
    m_sinks.m_fnEntered(strLine);
}

void CCommandLine::Recall(int nStep) {
    m_nRecalled = std::clamp<qsizetype>(m_nRecalled + nStep, 0, m_arTyped.size());
    m_pEdit->setText(m_nRecalled < m_arTyped.size() ? m_arTyped[m_nRecalled] : QString());
}
