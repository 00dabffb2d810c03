// zimbora-import: makes the program's dictionary files am.txt and ma.txt, and that of the
// pronunciations, of the FreeDict packages.

#include <unistd.h>

#include <QFile>
#include <QStringList>
#include <QTextStream>
#include <variant>

#include "freedict/explanation.h"
#include "freedict/import.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int done = 0;
constexpr int failed = 1;
constexpr int called_wrongly = 2;

const char *const usage =
    "Használat: zimbora-import [KAPCSOLÓK] KIMENETI-MAPPA\n"
    "\n"
    "A FreeDict angol–magyar és magyar–angol szótárából elkészíti a Zimbora\n"
    "szótárfájljait (am.txt, ma.txt) és a kiejtések fájlját (kiejt.txt) a\n"
    "KIMENETI-MAPPA mappában.\n"
    "\n"
    "  --freedict MAPPA    a szótárcsomagok dictd-fájljainak mappája\n"
    "                      (alapértelmezés: /usr/share/dictd)\n"
    "  --wordnet MAPPA     a WordNet fájljainak mappája\n"
    "                      (alapértelmezés: /usr/share/wordnet)\n"
    "  --scowl MAPPA       a SCOWL szólistáinak mappája\n"
    "                      (alapértelmezés: /usr/share/dict/scowl)\n"
    "  --hunspell MAPPA    a helyesírási szótárak mappája\n"
    "                      (alapértelmezés: /usr/share/hunspell)\n"
    "  --supplement MAPPA  a saját szócikkek mappája\n"
    "                      (nélküle csak a csomagok szócikkei)\n"
    "  --explain SZÓ       fájlok helyett a szó jelentéseit írja ki, pontszámukkal\n"
    "                      és azzal, hogy melyik jellemző mennyit ad hozzá\n"
    "  --mends             fájlok helyett a kijavított elírásokat írja ki\n"
    "  --help, -h          kiírja ezt a leírást\n";

struct Request {
    bool help = false;
    freedict::Sources sources{.freedict = u"/usr/share/dictd"_s,
                              .wordnet = u"/usr/share/wordnet"_s,
                              .scowl = u"/usr/share/dict/scowl"_s,
                              .hunspell = u"/usr/share/hunspell"_s};
    QString explained;
    bool mends = false;
    QString output_folder;
};

/// An option with a value, and what lacks without the value.
struct Option {
    const char *name;
    const char *value;
    QString &target;
};

/// Takes an option's value from the argument or from the next one; false when it is another argument.
std::variant<bool, Failure> taken(const Option &option, const QString &argument, QStringList &rest) {
    const QString name = QString::fromLatin1(option.name);
    if (argument != name && !argument.startsWith(name + u'='))
        return false;
    option.target = argument.sliced(name.size()).mid(1);
    if (argument == name && !rest.isEmpty())
        option.target = rest.takeFirst();
    if (option.target.isEmpty()) {
        return Failure{u"A %1 kapcsoló után hiányzik a %2."_s.arg(name, QString::fromUtf8(option.value))};
    }
    return true;
}

std::variant<Request, Failure> request_of(QStringList arguments) {
    Request request;
    const Option options[] = {
        {"--freedict", "mappa", request.sources.freedict},     {"--wordnet", "mappa", request.sources.wordnet},
        {"--scowl", "mappa", request.sources.scowl},           {"--hunspell", "mappa", request.sources.hunspell},
        {"--supplement", "mappa", request.sources.supplement}, {"--explain", "szó", request.explained}};
    while (!arguments.isEmpty()) {
        const QString argument = arguments.takeFirst();
        if (argument == u"--help" || argument == u"-h") {
            request.help = true;
            return request;
        }
        bool is_option = argument == u"--mends";
        request.mends = request.mends || is_option;
        for (const Option &option : options) {
            const auto result = taken(option, argument, arguments);
            if (const auto *failure = std::get_if<Failure>(&result))
                return *failure;
            is_option = is_option || *std::get_if<bool>(&result);
        }
        if (is_option)
            continue;
        if (argument.startsWith(u'-'))
            return Failure{u"Ismeretlen kapcsoló: „%1”."_s.arg(argument)};
        if (!request.output_folder.isEmpty())
            return Failure{u"Csak egy kimeneti mappa adható meg, fölösleges: „%1”."_s.arg(argument)};
        request.output_folder = argument;
    }
    if (request.output_folder.isEmpty() && request.explained.isEmpty() && !request.mends)
        return Failure{u"Hiányzik a kimeneti mappa."_s};
    return request;
}

/// The progress on the standard error output: a bar drawn again and again in one line of a terminal; in a log, where
/// that would leave a hundred lines, only the beginning of each dictionary.
class ProgressBar final {
  public:
    void show(const freedict::Dictionary &dictionary, int percent) {
        if (!is_terminal_) {
            if (percent == 0)
                out_ << dictionary.title << u" szótár átalakítása…"_s << Qt::endl;
            return;
        }
        const int filled = percent * width / 100;
        out_ << u'\r' << dictionary.title << u" ["_s << QString(filled, u'#') << QString(width - filled, u'.')
             << u"] "_s << qSetFieldWidth(3) << percent << qSetFieldWidth(0) << u" %"_s << Qt::flush;
        open_ = percent < 100;
        if (!open_)
            out_ << Qt::endl;
    }
    /// Leaves the line of a bar that has not reached its end.
    void leave() {
        if (open_)
            out_ << Qt::endl;
        open_ = false;
    }

  private:
    static constexpr int width = 40;

    QTextStream out_{stderr};
    const bool is_terminal_ = isatty(STDERR_FILENO) != 0;
    bool open_ = false;
};

QString counts_line(const freedict::Imported &one) {
    return u"%1 (%2 szótár): %3 szócikkből és %4 jelentésből %5 szócikk és %6 jelentés lett.\n"_s.arg(
        one.dictionary.file, one.dictionary.title, QString::number(one.read.entries),
        QString::number(one.read.meanings), QString::number(one.written.entries),
        QString::number(one.written.meanings));
}

/// What the difference consists of; empty when nothing was changed.
QString changes_line(const freedict::Imported &one) {
    const std::pair<const char *, qsizetype> changes[] = {
        {"új szócikk", one.added.entries},         {"új jelentés", one.added.meanings},
        {"összevont szócikk", one.joined.entries}, {"kétszer álló jelentés", one.joined.meanings},
        {"javított elírás", one.mended},           {"nagybetűs lett", one.capitals},
        {"igétől kölcsönzött jelentés", one.lent},
    };
    QStringList parts;
    for (const auto &[what, count] : changes) {
        if (count != 0)
            parts.append(QString::number(count) + u' ' + QString::fromUtf8(what));
    }
    return parts.isEmpty() ? QString() : u"%1: %2.\n"_s.arg(one.dictionary.file, parts.join(u", "_s));
}

int run(const Request &request) {
    ProgressBar bar;
    const auto result = freedict::import_dictionaries(
        request.sources, request.output_folder,
        [&](const freedict::Dictionary &dictionary, int percent) { bar.show(dictionary, percent); });
    bar.leave();
    const auto *imported = std::get_if<QVector<freedict::Imported>>(&result);
    if (const auto *failure = std::get_if<Failure>(&result); imported == nullptr) {
        QTextStream(stderr) << failure->sentence << Qt::endl;
        return failed;
    }
    QTextStream out(stdout);
    for (const auto &one : *imported)
        out << counts_line(one);
    for (const auto &one : *imported)
        out << changes_line(one);
    return done;
}

int print(const std::variant<QString, Failure> &text) {
    if (const auto *failure = std::get_if<Failure>(&text)) {
        QTextStream(stderr) << failure->sentence << Qt::endl;
        return failed;
    }
    QTextStream(stdout) << *std::get_if<QString>(&text);
    return done;
}

}  // namespace

int main(int count, char *values[]) {
    // There is no application object: it would complain in English about a locale that is not UTF-8.
    QStringList arguments;
    for (int i = 1; i < count; ++i)
        arguments.append(QFile::decodeName(values[i]));
    const auto result = request_of(arguments);
    const auto *request = std::get_if<Request>(&result);
    if (const auto *failure = std::get_if<Failure>(&result); request == nullptr) {
        QTextStream(stderr) << failure->sentence << u"\n\n"_s << QString::fromUtf8(usage);
        return called_wrongly;
    }
    if (request->help) {
        QTextStream(stdout) << QString::fromUtf8(usage);
        return done;
    }
    if (!request->explained.isEmpty())
        return print(freedict::explanation(request->sources, request->explained));
    if (request->mends)
        return print(freedict::list_of_mends(request->sources));
    return run(*request);
}
