// zimbora-order: checks the order of the word file magyar.skt and, if needed, writes it sorted as magyarvg.skt.

#include <QFile>
#include <QStringList>
#include <QTextStream>

#include "dictionary/order_tool.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int done = 0;
constexpr int failed = 1;
constexpr int called_wrongly = 2;

const char *const usage =
    "Használat: zimbora-order [--help] [MAPPA]\n"
    "\n"
    "Megnézi, hogy a MAPPA (alapértelmezés: az aktuális mappa) magyar.skt\n"
    "fájljának sorai nagybetűsen növekvő sorrendben állnak-e, és ha nem,\n"
    "nagybetűsen, sorba rendezve kiírja őket a magyarvg.skt fájlba.\n"
    "A rendezés ideje a sorok számának négyzetével nő.\n"
    "\n"
    "Kiírja a rossz helyen álló és az összes sor számát, vesszővel elválasztva,\n"
    "rendezés közben pedig annak a sornak a számát, amelynél tart.\n"
    "\n"
    "  --help, -h  kiírja ezt a leírást\n";

int run(const QString &folder) {
    QTextStream out(stdout);
    const auto show = [&out](const QString &text) { out << text << Qt::endl; };
    const auto failure = állományátalakító(folder, show, [] { return false; }).átalakít();
    if (failure)
        QTextStream(stderr) << failure->sentence << Qt::endl;
    return failure ? failed : done;
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
    if (option || arguments.size() > 1) {
        QTextStream(stderr) << (option ? u"Ismeretlen kapcsoló: „%1”."_s.arg(arguments[0])
                                       : u"Legfeljebb egy mappa adható meg."_s)
                            << u"\n\n"_s << QString::fromUtf8(usage);
        return called_wrongly;
    }
    return run(arguments.value(0, u"."_s));
}
