// zimbora-lists: makes the word lists that come with the program of their sources.

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTextStream>
#include <variant>

#include "word_lists/given_lists.h"
#include "word_lists/word_list_source.h"
#include "wordlist/szs_file.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int done = 0;
constexpr int failed = 1;
constexpr int called_wrongly = 2;

const char *const usage =
    "Használat: zimbora-lists [--help] FORRÁSMAPPA KIMENETI-MAPPA NYILVÁNTARTÁS\n"
    "\n"
    "A FORRÁSMAPPA szövegfájljaiból szószedeteket (.szs) készít a KIMENETI-MAPPA\n"
    "mappában. Amit ott a felhasználó megváltoztatott vagy törölt, azt nem írja felül\n"
    "és nem hozza vissza; a NYILVÁNTARTÁS fájl őrzi, hogy mit adott már oda.\n"
    "\n"
    "  --help, -h  kiírja ezt a leírást\n";

/// The list of one source.
std::variant<word_lists::File, Failure> list_of(const QDir &folder, const QString &file) {
    const FileContent content = files::read_whole(folder.filePath(file));
    if (const auto *failure = std::get_if<Failure>(&content))
        return *failure;
    const auto source = word_lists::parse(*std::get_if<QByteArray>(&content), file);
    if (const auto *failure = std::get_if<Failure>(&source))
        return *failure;
    const auto &parsed = *std::get_if<word_lists::Source>(&source);
    const FileContent bytes = szsfájl::ír(parsed.pairs);
    if (const auto *failure = std::get_if<Failure>(&bytes))
        return Failure{u"%1: %2"_s.arg(file, failure->sentence)};
    return word_lists::File{parsed.name + u".szs"_s, *std::get_if<QByteArray>(&bytes)};
}

std::variant<int, Failure> make(const QString &sources, const QString &output, const QString &record) {
    const QDir folder(sources);
    QVector<word_lists::File> lists;
    for (const QString &file : folder.entryList({u"*.txt"_s}, QDir::Files, QDir::Name)) {
        const auto list = list_of(folder, file);
        if (const auto *failure = std::get_if<Failure>(&list))
            return *failure;
        lists.append(*std::get_if<word_lists::File>(&list));
    }
    if (lists.isEmpty())
        return Failure{u"A(z) „%1” mappában nincs szószedet forrása."_s.arg(sources)};
    return word_lists::give(lists, output, record);
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
    if (arguments.size() != 3 || arguments[0].startsWith(u'-')) {
        QTextStream(stderr) << u"Két mappát és egy fájlt kell megadni.\n\n"_s << QString::fromUtf8(usage);
        return called_wrongly;
    }
    const auto result = make(arguments[0], arguments[1], arguments[2]);
    if (const auto *failure = std::get_if<Failure>(&result)) {
        QTextStream(stderr) << failure->sentence << Qt::endl;
        return failed;
    }
    QTextStream(stdout) << u"%1 szószedet készült.\n"_s.arg(*std::get_if<int>(&result));
    return done;
}
