#include "app/program.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QScreen>
#include <QSessionManager>
#include <QSysInfo>
#include <QTimer>
#include <chrono>
#include <optional>
#include <utility>

#include "lookup/widgets/system_browser.h"
#include "platform/information_tool.h"
#include "ui/drawing/font_sized_style.h"
#include "ui/drawing/fonts.h"
#include "ui/drawing/twips.h"
#include "ui/messages/splash_window.h"
#include "ui/messages/toolkit_texts.h"

namespace {

/// 25 steps of this length make an animation of a quarter of a second.
constexpr std::chrono::milliseconds animation_step(10);
/// 100 make a glide of a quarter of a second.
constexpr std::chrono::milliseconds glide_step(2);
/// The program folder is made faster than anybody reads.
constexpr std::chrono::milliseconds splash_time(1500);

QRectF in_twips(const QScreen &screen) {
    const QRectF pixels = screen.geometry();
    return {pixels.topLeft() * twips::per_pixel, pixels.size() * twips::per_pixel};
}

QRectF main_screen() {
    return in_twips(*QGuiApplication::primaryScreen());
}

QVector<QRectF> all_screens() {
    QVector<QRectF> places;
    for (const QScreen *screen : QGuiApplication::screens())
        places.append(in_twips(*screen));
    return places;
}

/// Goes on evenly, whatever happens to the clock on the wall.
std::chrono::milliseconds even_time() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

void wait_without_input(std::chrono::milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
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

Program::Program(ProgramFolderPlaces places)
    : places_(std::move(places)),
      fitting_(reference_, main_screen),
      main_window_({.állapot = state_,
                    .referencia = reference_,
                    .hasznos = fitting_,
                    .üzenetek = message_boxes_,
                    .fájlablakok = file_dialogs_,
                    .meghajtó = drive_,
                    .véletlen = random_,
                    .beállítások = settings_,
                    .nyomtatók = printers_,
                    .legfelül = *top_most_,
                    .multimédia = *multimedia_,
                    .vágólap = watch_clipboard,
                    .képernyők = all_screens,
                    .böngésző = make_system_browser,
                    .rendszeradatok = start_information_tool,
                    .lépésköz = [] { wait_without_input(animation_step); },
                    .siklásköz = [] { wait_without_input(glide_step); },
                    .óra = even_time,
                    .vége = [] { QCoreApplication::quit(); }}),
      termination_([this] { main_window_.kilép_Click(); }) {
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
    std::optional<FrmFolyamat> splash;
    if (program_folder_is_missing(places_)) {
        splash.emplace(fitting_, QCoreApplication::applicationVersion(), QSysInfo::prettyProductName());
        splash->show();
        // A window without a frame is put into the corner by some window managers.
        splash->középre(main_screen());
        splash->repaint();
        wait_without_input(splash_time);
    }
    // Addresses that begin with it are shown.
    state_.programkönyvtár = QDir::toNativeSeparators(find_program_folder(places_));
    main_window_.Form_Load(command_line);
    // A message at the start may have been answered by a request to end; the mini window stands in its place.
    if (!main_window_.vége() && state_.kisablakmód != 1)
        main_window_.show();
}
