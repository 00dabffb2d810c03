#include "media/playback.h"

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
        küld(QStringLiteral("close hang"));
    eszköznyitva_[hang] = true;
    if (fájl.isEmpty() || átalakíthatatlan(fájl)) {
        eszköznyitva_[hang] = false;
        return;
    }
    if (fájl == QStringLiteral("*"))
        fájl = állapot_.programkönyvtár + QStringLiteral("null.wav");
    küld(QStringLiteral("open ") + quoted_for_command(fájl) + QStringLiteral(" type waveaudio alias hang"));
    küld(QStringLiteral("play hang "));
    eszköznyitva_[hang] = true;
}

void lejátszó::midilejátszás(const QString &fájl) {
    if (eszköznyitva_[midi]) {
        küld(QStringLiteral("close midi"));
        zeneszól_ = false;
    }
    eszköznyitva_[midi] = true;
    if (fájl.isEmpty() || átalakíthatatlan(fájl)) {
        eszköznyitva_[midi] = false;
        return;
    }
    küld(QStringLiteral("open ") + quoted_for_command(fájl) + QStringLiteral(" type sequencer alias midi"));
    küld(QStringLiteral("play midi "));
    eszköznyitva_[midi] = true;
    zeneszól_ = true;
}

QString lejátszó::midiállapot() {
    return eszköz_.send(QStringLiteral("Status midi mode"), állapot_hossza).text;
}
