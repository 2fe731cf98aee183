#include "host/desktop/question_dialogs.h"

#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>

namespace {

/// `Files (*.dwg *.dxf)` of `.dwg .dxf`, and one filter for each ending.
QStringList Filters(const QStringList& arEndings, bool bEach) {
    if (!bEach) return {u"Files (*"_qs + arEndings.join(u" *"_qs) + u")"_qs, u"All files (*)"_qs};
    QStringList arFilters;
    for (const QString& strEnding : arEndings)
        arFilters << strEnding.mid(1).toUpper() + u" (*"_qs + strEnding + u")"_qs;
    return arFilters;
}

std::string Run(QFileDialog& dialog) {
    return dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()
               ? dialog.selectedFiles().front().toStdString()
               : std::string();
}

std::string AskFileToOpen(const QString& strCaption, const QStringList& arEndings, QWidget* pParent) {
    QFileDialog dialog(pParent, strCaption);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(Filters(arEndings, false));
    return Run(dialog);
}

/// A prompt without the colon at its end.
QString TextOf(const CQuestion& question) {
    QString strText = QString::fromStdString(question.m_strPrompt).trimmed();
    while (strText.endsWith(u':'))
        strText.chop(1);
    return strText;
}

std::string AskToSave(const CQuestion& question, QWidget* pParent) {
    const auto button =
        QMessageBox::question(pParent, u"Tervo"_qs, TextOf(question),
                              QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    if (button == QMessageBox::Yes) return "yes";
    return button == QMessageBox::No ? "no" : g_szEscape;
}

std::string OrEscape(const std::string& strPath) {
    return strPath.empty() ? g_szEscape : strPath;
}

} // namespace

std::optional<std::string> AskQuestionByDialog(const CQuestion& question, QWidget* pParent) {
    const QStringList arEndings = QString::fromStdString(question.m_strEndings).split(u' ');
    switch (question.m_kind) {
    case CAnswerKind::FileToOpen:
        return OrEscape(AskFileToOpen(u"Open file"_qs, arEndings, pParent));
    case CAnswerKind::FileToSave:
        return OrEscape(AskFileToSave("Save file", question.m_strEndings, pParent));
    case CAnswerKind::SaveChanges:
        return AskToSave(question, pParent);
    default:
        return std::nullopt;
    }
}

std::string AskFileToSave(const std::string& strCaption, const std::string& strEndings, QWidget* pParent) {
    const QStringList arEndings = QString::fromStdString(strEndings).split(u' ');
    QFileDialog dialog(pParent, QString::fromStdString(strCaption));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    const QStringList arFilters = Filters(arEndings, true);
    dialog.setNameFilters(arFilters);
    const auto takeSuffix = [&](const QString& strFilter) {
        dialog.setDefaultSuffix(arEndings.value(arFilters.indexOf(strFilter)).mid(1));
    };
    takeSuffix(arFilters.front());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, takeSuffix);
    return Run(dialog);
}
