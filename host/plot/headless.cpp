#include "host/plot/headless.h"

#include "host/kept_locale.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QGuiApplication>

#include <array>

namespace {

void SwallowRemarks(QtMsgType type, const QMessageLogContext&, const QString& strText) {
    if (type == QtFatalMsg) qt_message_output(type, QMessageLogContext(), strText);
}

} // namespace

void StartHeadlessQt() {
    if (QCoreApplication::instance()) return;
    qInstallMessageHandler(SwallowRemarks);
    const CKeptLocale locale;
    static int s_nArguments = 3;
    static std::array<char, 6> s_szProgram = {"tervo"};
    static std::array<char, 10> s_szOption = {"-platform"};
    static std::array<char, 10> s_szPlatform = {"offscreen"};
    static std::array<char*, 4> s_arArguments = {s_szProgram.data(), s_szOption.data(), s_szPlatform.data(),
                                                 nullptr};
    // Never deleted: fonts held by other statics need it to the last.
    [[maybe_unused]] static QGuiApplication& s_application =
        *new QGuiApplication(s_nArguments, s_arArguments.data());
}
