#include <QApplication>
#include <QStandardPaths>
#include <QTimer>

#include "app/program.h"
#include "platform/command_line.h"
#include "platform/display_system.h"

using namespace Qt::StringLiterals;

namespace {

ProgramFolderPlaces program_folder_places() {
    return {qEnvironmentVariable("ZIMBORA_PROGRAM"),
            QCoreApplication::applicationDirPath(),
            u"" ZIMBORA_BUILD_BIN ""_s,
            u"" ZIMBORA_STAGED_PROGRAM ""_s,
            u"" ZIMBORA_INSTALLED_DICTIONARIES ""_s,
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)};
}

}  // namespace

int main(int argc, char *argv[]) {
    choose_display_system();
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Zimbora"_s);
    QApplication::setApplicationVersion(u"" ZIMBORA_VERSION ""_s);
    QApplication::setDesktopFileName(u"zimbora"_s);
    set_up_toolkit();
    Program program(program_folder_places());
    QTimer::singleShot(0, &application, [&] { program.start(command_line_text()); });
    return QApplication::exec();
}
