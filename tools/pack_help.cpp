// zimbora-help: packs the pages of the help into the program's help document.

#include <QFile>
#include <QStringList>
#include <QTextStream>

#include "help/pack.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int done = 0;
constexpr int failed = 1;
constexpr int called_wrongly = 2;

const char *const usage =
    "Használat: zimbora-help [--help] LAPOK-MAPPÁJA KIMENETI-MAPPA\n"
    "\n"
    "A súgó lapjaiból (HTML, a sorrendjük a tartalom.txt fájlban) egyetlen\n"
    "fájlt készít: „Kavaro súgó.mht”. A dokumentum mellé tett lapokat is a\n"
    "KIMENETI-MAPPA mappába másolja.\n"
    "\n"
    "  --help, -h  kiírja ezt a leírást\n";

int run(const QString &folder, const QString &output_folder) {
    const auto result = help::pack(folder, output_folder);
    const auto *packed = std::get_if<help::Packed>(&result);
    if (const auto *failure = std::get_if<Failure>(&result); packed == nullptr) {
        QTextStream(stderr) << failure->sentence << Qt::endl;
        return failed;
    }
    QTextStream(stdout) << u"%1: %2 lap, %3 kép.\n"_s.arg(help::archive_name, QString::number(packed->pages),
                                                          QString::number(packed->pictures));
    return done;
}

}  // namespace

int main(int count, char *values[]) {
    // There is no application object: it would complain in English about a locale that is not UTF-8.
    QStringList arguments;
    for (int i = 1; i < count; ++i)
        arguments.append(QFile::decodeName(values[i]));
    if (arguments.contains(u"--help"_s) || arguments.contains(u"-h"_s)) {
        QTextStream(stdout) << QString::fromUtf8(usage);
        return done;
    }
    const bool option = arguments.value(0).startsWith(u'-');
    if (option || arguments.size() != 2) {
        QTextStream(stderr) << (option ? u"Ismeretlen kapcsoló: „%1”."_s.arg(arguments[0])
                                       : u"Két mappát kell megadni."_s)
                            << u"\n\n"_s << QString::fromUtf8(usage);
        return called_wrongly;
    }
    return run(arguments[0], arguments[1]);
}
