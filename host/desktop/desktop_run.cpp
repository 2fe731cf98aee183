#include "host/desktop/desktop_run.h"

#include "host/console/answers.h"
#include "host/desktop/desktop.h"
#include "host/desktop_entry.h"
#include "host/display_probe.h"
#include "host/interface_font.h"
#include "host/kept_locale.h"

#include <QtWidgets/QApplication>

#include <array>

namespace {

/// Never deleted: fonts held by other statics need it to the last.
void StartWindowedQt() {
    const CKeptLocale locale;
    static int s_nArguments = 1;
    static std::array<char, 6> s_szProgram = {"tvcad"};
    static std::array<char*, 2> s_arArguments = {s_szProgram.data(), nullptr};
    [[maybe_unused]] static QApplication& s_application =
        *new QApplication(s_nArguments, s_arArguments.data());
    QApplication::setQuitOnLastWindowClosed(false); // QUIT ends the run
    QApplication::setStyle(u"Fusion"_qs);
    UseInterfaceFont();
    UseDesktopEntry(u"tvcad"_qs);
}

} // namespace

std::optional<int> RunDesktop(const CProgramOptions& options, const std::string& strRootGbk) {
    {
        const CDisplayProbe probe;
        if (!probe.Found()) return std::nullopt;
        StartWindowedQt();
    }
    CDesktop(strRootGbk, CAutosave::UserFolder()).Run(options);
    return EXIT_DONE;
}
