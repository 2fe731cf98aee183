// Windows on a real X server: TERVO_SCREEN is its size, 1280x800 without it.

#include "host/interface_font.h"
#include "host/kept_locale.h"
#include "tests/host/desktop/screenshots/virtual_display.h"
#include "tests/temp_folder.h"

#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

#include <optional>

int main(int nArguments, char** ppArguments) {
    testing::InitGoogleTest(&nArguments, ppArguments);
    const CTempFolder folder; // whose name is short enough for the file dialogs
    std::filesystem::current_path(folder.Path());
    const CVirtualDisplay display(qEnvironmentVariable("TERVO_SCREEN", u"1280x800"_qs).toStdString());
    qputenv("DISPLAY", QByteArray::fromStdString(display.Name()));
    qputenv("QT_QPA_PLATFORM", "xcb");
    std::optional<CKeptLocale> locale(std::in_place);
    const QApplication application(nArguments, ppArguments);
    locale.reset();
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setStyle(u"Fusion"_qs);
    UseInterfaceFont();
    return RUN_ALL_TESTS();
}
