#include "host/datamanager/window/run_window.h"

#include <QtWidgets/QApplication>

#include "host/datamanager/window/data_window.h"
#include "host/desktop_entry.h"
#include "host/display_probe.h"
#include "host/interface_font.h"
#include "host/kept_locale.h"
#include "platform/windows/runtime_dir.h"

std::optional<int> RunWindow(int nArguments, char** ppArguments) {
    std::optional<CDisplayProbe> probe(std::in_place);
    if (!probe->Found()) return std::nullopt;
    EnsureRuntimeDir();
    std::optional<CKeptLocale> locale(std::in_place);
    QApplication application(nArguments, ppArguments);
    locale.reset();
    probe.reset();
    UseInterfaceFont();
    UseDesktopEntry(u"tvdata"_qs);
    CDataWindow window(QCoreApplication::applicationFilePath().toStdString());
    window.show();
    return QApplication::exec();
}
