#include "media/playback.h"

using namespace Qt::StringLiterals;

namespace {

constexpr size_t hang = 0;
constexpr size_t midi = 1;
constexpr int állapot_hossza = 255;

/// No system can open such a path; its end would be cut off.
bool átalakíthatatlan(const QString &út) {
    return út.contains(QChar::Null);
}

}  // namespace

lejátszó::lejátszó(MultimediaCommands &eszköz, const global::programállapot &állapot)
    : eszköz_(eszköz), állapot_(állapot) {}

void lejátszó::küld(const QString &parancs) {
    // A file that cannot be played is passed over in silence.
    static_cast<void>(eszköz_.send(parancs, 0));
}

void lejátszó::hanglejátszás(QString &fájl) {
    if (eszköznyitva_[hang])
        küld(u"close hang"_s);
    eszköznyitva_[hang] = true;
    if (fájl.isEmpty() || átalakíthatatlan(fájl)) {
        eszköznyitva_[hang] = false;
        return;
    }
    if (fájl == u"*"_s)
        fájl = állapot_.programkönyvtár + u"null.wav"_s;
    küld(u"open "_s + quoted_for_command(fájl) + u" type waveaudio alias hang"_s);
    küld(u"play hang "_s);
    eszköznyitva_[hang] = true;
}

void lejátszó::midilejátszás(const QString &fájl) {
    if (eszköznyitva_[midi]) {
        küld(u"close midi"_s);
        zeneszól_ = false;
    }
    eszköznyitva_[midi] = true;
    if (fájl.isEmpty() || átalakíthatatlan(fájl)) {
        eszköznyitva_[midi] = false;
        return;
    }
    küld(u"open "_s + quoted_for_command(fájl) + u" type sequencer alias midi"_s);
    küld(u"play midi "_s);
    eszköznyitva_[midi] = true;
    zeneszól_ = true;
}

QString lejátszó::midiállapot() {
    return eszköz_.send(u"Status midi mode"_s, állapot_hossza).text;
}
