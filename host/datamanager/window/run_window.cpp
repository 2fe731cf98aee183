#include "host/datamanager/window/run_window.h"

#include <QtWidgets/QApplication>

#include <clocale>

#include "host/datamanager/window/data_window.h"
#include "host/datamanager/window/display_probe.h"
#include "host/interface_font.h"
#include "platform/windows/runtime_dir.h"

std::optional<int> RunWindow(int nArguments, char** ppArguments) {
    std::optional<CDisplayProbe> probe(std::in_place);
    if (!probe->Found()) return std::nullopt;
    EnsureRuntimeDir();
    QApplication application(nArguments, ppArguments);
    probe.reset();
    UseInterfaceFont();
    // Qt takes the user's locale over, with its decimal comma; numbers are read and written with a point
    // here.
    std::setlocale(LC_ALL, "C");
    CDataWindow window(QCoreApplication::applicationFilePath().toStdString());
    window.show();
    return QApplication::exec();
}
