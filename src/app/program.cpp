#include "app/program.h"

#include <QApplication>
#include <QEventLoop>
#include <QScreen>
#include <QSessionManager>
#include <QTimer>

#include "ui/font_sized_style.h"
#include "ui/fonts.h"
#include "ui/toolkit_texts.h"
#include "ui/twips.h"

namespace {

/// 25 steps of this length make an animation of a quarter of a second.
constexpr int animation_step = 10;

QRectF screen_in_twips() {
    const QRectF pixels = QGuiApplication::primaryScreen()->geometry();
    return {pixels.topLeft() * twips::per_pixel, pixels.size() * twips::per_pixel};
}

void wait_an_animation_step() {
    QEventLoop loop;
    QTimer::singleShot(animation_step, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

void set_up_toolkit() {
    make_toolkit_hungarian();
    QApplication::setStyle(new FontSizedStyle);
    fonts::substitute_missing_faces();
    // The main window hides while another one is used; only the exit procedure ends the program.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

Program::Program(const ProgramFolderPlaces &places)
    : fitting_(reference_, screen_in_twips),
      main_window_({state_, reference_, fitting_, message_boxes_, file_dialogs_, drive_, random_, settings_,
                    wait_an_animation_step, [] { QCoreApplication::quit(); }}),
      termination_([this] { main_window_.kilép_Click(); }) {
    state_.programkönyvtár = find_program_folder(places);
    message_boxes_.set_window(&main_window_);
    file_dialogs_.set_window(&main_window_);
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &main_window_, [this](QSessionManager &session) {
        if (!session.allowsInteraction())
            return;
        if (!main_window_.close())
            session.cancel();
        session.release();
    });
}

void Program::start(const QString &command_line) {
    // Its files lie there; one that cannot be written is told when it is.
    static_cast<void>(drive_.make_root());
    main_window_.Form_Load(command_line);
    // A message at the start may have been answered by a request to end.
    if (!main_window_.vége())
        main_window_.show();
}
