// Feeds arbitrary bytes to the readers of the sound and the music settings, as each of their files. Whatever they read
// is written again as files that read the same, and no list leads out of its folder.

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "fuzz/expanded.h"
#include "media/music_settings.h"
#include "media/sound_settings.h"

using namespace Qt::StringLiterals;

namespace {

void demand(bool condition) {
    if (!condition)
        std::abort();
}

void write(const QString &path, QByteArrayView bytes) {
    QFile file(path);
    demand(file.open(QIODevice::WriteOnly) && file.write(bytes.data(), bytes.size()) == bytes.size());
}

/// A program folder with some sounds, and a drive C beside it: in memory, where replacing a file waits for no disk.
class Places {
  public:
    Places() {
        for (const QString &folder : {u"program/hangok"_s, u"program/kavaro"_s, u"c/zbrmk/kavaro"_s})
            demand(QDir(root_.path()).mkpath(folder));
        for (const QString &sound : {u"a.wav"_s, u"b c.wav"_s, u"őű.wav"_s})
            write(program() + u"/hangok/"_s + sound, {});
    }

    [[nodiscard]] QString program() const { return root_.filePath(u"program"_s); }
    [[nodiscard]] QString drive() const { return root_.filePath(u"c"_s); }

  private:
    QTemporaryDir root_{u"/dev/shm/media_settings_fuzz-XXXXXX"_s};
};

void check_names(const névlista &list) {
    for (const QString &name : list.nevek())
        demand(!name.contains(u'/') && !name.contains(u'\\') && !name.contains(u'\n'));
}

void check_sounds(const Places &places, QByteArrayView bytes) {
    for (const QString &name : {u"grathang.ini"_s, u"helyeshang.ini"_s, u"hibahang.ini"_s})
        write(places.program() + u"/kavaro/"_s + name, bytes);
    hangbeállítások first(places.program());
    static_cast<void>(first.betölt());
    demand(!first.ment());
    hangbeállítások second(places.program());
    demand(!second.betölt() && second.kapcsolók == first.kapcsolók);
    for (const auto list : {&hangbeállítások::gratula, &hangbeállítások::helyes, &hangbeállítások::hiba}) {
        demand((second.*list).nevek() == (first.*list).nevek());
        demand((first.*list).darab() <= 3);
        check_names(first.*list);
    }
}

void check_music(const Places &places, QByteArrayView bytes) {
    write(places.drive() + u"/zbrmk/kavaro/zenebeáll.ini"_s, bytes);
    zenebeállítások first(DriveC(places.drive()), places.program());
    static_cast<void>(first.betölt());
    demand(!first.ment());
    zenebeállítások second(DriveC(places.drive()), places.program());
    demand(!second.betölt() && second.engedélyezve == first.engedélyezve);
    demand(second.lista.nevek() == first.lista.nevek());
    check_names(first.lista);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static const Places places;
    const QByteArray bytes = expanded(QByteArrayView(data, static_cast<qsizetype>(size)));
    check_sounds(places, bytes);
    check_music(places, bytes);
    return 0;
}
