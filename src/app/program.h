#pragma once

#include <QString>
#include <memory>

#include "app/main_window.h"
#include "platform/drive_c.h"
#include "platform/multimedia_commands.h"
#include "platform/system_random.h"
#include "platform/termination_signal.h"
#include "platform/top_most.h"
#include "print/widgets/qt_printers.h"
#include "state/global.h"
#include "state/program_folder.h"
#include "state/settings_store.h"
#include "ui/messages/qt_dialogs.h"
#include "ui/window/reference_window.h"
#include "ui/window/window_fitting.h"

/// The program's parts, made and wired. One object a process, made after the QApplication.
class Program final {
  public:
    explicit Program(ProgramFolderPlaces places);

    /// Shows the main window, with the word list that `command_line` names if it names one. To be called from the event
    /// loop: a message that it shows may be answered by a request to end the program.
    void start(const QString &command_line);

    [[nodiscard]] szótár &main_window() { return main_window_; }

  private:
    const ProgramFolderPlaces places_;
    global::programállapot state_;
    DriveC drive_ = DriveC::of_this_user();
    SystemRandom random_;
    global::beállítástár settings_;
    QtPrinters printers_{make_print_spooler()};
    frm_referencia reference_;
    Module_hasznos fitting_;
    QtMessageBoxes message_boxes_{fitting_};
    QtFileDialogs file_dialogs_{fitting_};
    std::unique_ptr<TopMost> top_most_ = make_top_most();
    std::unique_ptr<MultimediaCommands> multimedia_ = make_multimedia_commands();
    szótár main_window_;
    TerminationSignal termination_;
};

/// Gives the toolkit's own texts in Hungarian and the program's type face. Call before the first window is made.
void set_up_toolkit();
