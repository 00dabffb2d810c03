#include <QDir>
#include <QFileInfo>
#include <QTimer>

#include "app/main_window.h"
#include "lookup/mini_window_file.h"
#include "lookup/screen_place.h"
#include "platform/files.h"
#include "ui/drawing/twips.h"

using namespace Qt::StringLiterals;

namespace {

const QString kisablakfájl_helye = u"c:\\zbrmk\\angol\\kisablak.ini"_s;

}  // namespace

void szótár::kisablakfájlolvas() {
    const FileContent tartalom = files::read_whole(k_.meghajtó.path(kisablakfájl_helye));
    const auto *bytes = std::get_if<QByteArray>(&tartalom);
    const QSizeF képernyő = k_.hasznos.képernyő().size();
    const kisablakfájl::értékek alap{qRound(képernyő.width() / 2), qRound(képernyő.height() / 2), 0};
    const auto olvasott = bytes ? kisablakfájl::olvas(*bytes) : std::nullopt;
    const kisablakfájl::értékek értékek = olvasott.value_or(alap);
    k_.állapot.kisablakbal = értékek.bal;
    k_.állapot.kisablakfent = értékek.fent;
    k_.állapot.kisablakmód = értékek.mód;
}

void szótár::kisablakfájlír() {
    const QString fájl = k_.meghajtó.path(kisablakfájl_helye);
    if (QFileInfo(fájl).dir().entryList(QDir::Files).isEmpty())
        return;
    const auto hiba = files::replace_whole(
        fájl, kisablakfájl::ír({k_.állapot.kisablakbal, k_.állapot.kisablakfent, k_.állapot.kisablakmód}));
    if (hiba)
        k_.üzenetek.tell(hiba->sentence);
}

void szótár::kisablakfájlnak_helyet_csinál() {
    const QFileInfo fájl(k_.meghajtó.path(kisablakfájl_helye));
    if (fájl.exists() || !QDir().mkpath(fájl.path()))
        return;
    // A place that cannot be written is told when something is to be kept there.
    static_cast<void>(files::replace_whole(fájl.filePath(), {}));
}

void szótár::cmd_kisablak_Click() {
    if (kisablak_.loaded())
        return;
    kisablakfájlnak_helyet_csinál();
    hide();
    k_.állapot.kisablakmód = 1;
    kisablak_.get().Form_Activate();
}

QRectF szótár::helye() const {
    return {QPointF(pos()) * twips::per_pixel, QSizeF(szélesség(), magasság())};
}

void szótár::visszatér(const QPointF &közép) {
    const QSizeF méret(szélesség(), magasság());
    const QPointF középen = közép - QPointF(méret.width(), méret.height()) / 2;
    // A mini window in a corner would take most of this one off the screen.
    const QPointF hová = képernyőbe(középen, méret, képernyője(közép));
    kisablak_.get().hide();
    move(twips::to_pixels(hová.x()), twips::to_pixels(hová.y()));
    show();
    activateWindow();
    k_.állapot.kisablakmód = 0;
    kisablakot_elenged();
}

/// Unloads the mini window, which may be in the midst of a search that let its button be pressed.
void szótár::kisablakot_elenged() {
    QTimer::singleShot(0, &események_, [this] {
        if (!kisablak_.loaded())
            return;
        if (kisablak_.get().foglalt())
            kisablakot_elenged();
        else
            kisablak_.unload();
    });
}

/// The screen on which this place lies; the main one when it lies on none.
QRectF szótár::képernyője(const QPointF &hol) const {
    for (const QRectF &képernyő : k_.képernyők()) {
        if (képernyő.contains(hol))
            return képernyő;
    }
    return k_.hasznos.képernyő();
}
