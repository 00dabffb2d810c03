#include "app/mini_window_owner.h"

#include <QDir>
#include <QFileInfo>
#include <QTimer>

#include "lookup/mini_window_file.h"
#include "lookup/screen_place.h"
#include "platform/files.h"

using namespace Qt::StringLiterals;

namespace {

const QString kisablakfájl_helye = u"c:\\zbrmk\\angol\\kisablak.ini"_s;

}  // namespace

kisablakgazda::kisablakgazda(const szótárkörnyezet &k, ablak &főablak, nagyablak &nagy, szókereső &kereső,
                             ajánlatlista &ajánlatok)
    : k_(k), főablak_(főablak), kisablak_([this, &nagy, &kereső, &ajánlatok] {
          return std::make_unique<frm_kisablak>(
              kisablakkörnyezet{.közös = {.hasznos = k_.hasznos, .főablak = főablak_, .üzenetek = k_.üzenetek},
                                .nagy = nagy,
                                .kereső = kereső,
                                .ajánlatok = ajánlatok,
                                .állapot = k_.állapot,
                                .legfelül = k_.legfelül,
                                .vágólap = k_.vágólap,
                                .képernyők = k_.képernyők,
                                .lépésköz = k_.siklásköz});
      }) {}

void kisablakgazda::fájlolvas() {
    const QString fájl = k_.meghajtó.path(kisablakfájl_helye);
    const FileContent tartalom = files::read_whole(fájl);
    const auto *bytes = std::get_if<QByteArray>(&tartalom);
    if (!bytes && files::is_taken(fájl))
        k_.üzenetek.tell(std::get<Failure>(tartalom).sentence);
    const QSizeF képernyő = k_.hasznos.képernyő().size();
    const kisablakfájl::értékek alap{
        .bal = qRound(képernyő.width() / 2), .fent = qRound(képernyő.height() / 2), .mód = 0};
    const auto olvasott = bytes ? kisablakfájl::olvas(*bytes) : std::nullopt;
    const kisablakfájl::értékek értékek = olvasott.value_or(alap);
    k_.állapot.kisablakbal = értékek.bal;
    k_.állapot.kisablakfent = értékek.fent;
    k_.állapot.kisablakmód = értékek.mód;
}

void kisablakgazda::fájlír() {
    const QString fájl = k_.meghajtó.path(kisablakfájl_helye);
    if (QFileInfo(fájl).dir().entryList(QDir::Files).isEmpty())
        return;
    const auto hiba = files::replace_whole(
        fájl, kisablakfájl::ír(
                  {.bal = k_.állapot.kisablakbal, .fent = k_.állapot.kisablakfent, .mód = k_.állapot.kisablakmód}));
    if (hiba)
        k_.üzenetek.tell(hiba->sentence);
}

void kisablakgazda::fájlnak_helyet_csinál() {
    const QFileInfo fájl(k_.meghajtó.path(kisablakfájl_helye));
    if (fájl.exists() || !QDir().mkpath(fájl.path()))
        return;
    // A place that cannot be written is told when something is to be kept there.
    static_cast<void>(files::replace_whole(fájl.filePath(), {}));
}

void kisablakgazda::cmd_kisablak_Click() {
    if (kisablak_.loaded())
        return;
    fájlnak_helyet_csinál();
    főablak_.hide();
    k_.állapot.kisablakmód = 1;
    kisablak_.get().Form_Activate();
}

void kisablakgazda::visszatér(const QPointF &közép) {
    const QSizeF méret(főablak_.szélesség(), főablak_.magasság());
    const QPointF középen = közép - QPointF(méret.width(), méret.height()) / 2;
    // A mini window in a corner would take most of this one off the screen.
    const QPointF hová = képernyőbe(középen, méret, képernyője(közép));
    kisablak_.get().hide();
    főablak_.áttesz(hová);
    főablak_.show();
    főablak_.activateWindow();
    k_.állapot.kisablakmód = 0;
    elenged();
}

/// Unloads the mini window, which may be in the midst of a search that let its button be pressed.
void kisablakgazda::elenged() {
    QTimer::singleShot(0, &események_, [this] {
        if (!kisablak_.loaded())
            return;
        if (kisablak_.get().foglalt())
            elenged();
        else
            kisablak_.unload();
    });
}

void kisablakgazda::elrejt() {
    if (kisablak_.loaded())
        kisablak_.get().hide();
}

QRectF kisablakgazda::képernyője(const QPointF &hol) const {
    for (const QRectF &képernyő : k_.képernyők()) {
        if (képernyő.contains(hol))
            return képernyő;
    }
    return k_.hasznos.képernyő();
}
