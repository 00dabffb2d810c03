#include <QApplication>
#include <QStandardPaths>
#include <QTimer>

#include "app/program.h"
#include "platform/command_line.h"
#include "platform/display_system.h"

namespace {

ProgramFolderPlaces program_folder_places() {
    return {qEnvironmentVariable("ZIMBORA_PROGRAM"),
            QCoreApplication::applicationDirPath(),
            QStringLiteral(ZIMBORA_BUILD_BIN),
            QStringLiteral(ZIMBORA_STAGED_PROGRAM),
            QStringLiteral(ZIMBORA_INSTALLED_DICTIONARIES),
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)};
}

}  // namespace

int main(int argc, char *argv[]) {
    choose_display_system();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Zimbora"));
    QApplication::setApplicationVersion(QStringLiteral(ZIMBORA_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("zimbora"));
    set_up_toolkit();
    Program program(program_folder_places());
    QTimer::singleShot(0, &application, [&] { program.start(command_line_text()); });
    return QApplication::exec();
}
