// Feeds arbitrary index and data bytes to the dictionary importer. It must not crash, and what it accepts must become a
// dictionary file that the search can read.
//
// The input is read in two ways: as the index, a zero byte and the unpacked data; and as definitions with a zero byte
// after each, for which the target writes the index and the package's description, since chance hardly would.

#include <QByteArray>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "dictionary/dictionary_search.h"
#include "freedict/dictionary_text.h"

using namespace Qt::StringLiterals;

namespace {

void demand(bool condition) {
    if (!condition)
        std::abort();
}

/// The number of meanings of a line, which must be headword ":" (meaning "÷")…
qsizetype meanings_of(QByteArrayView line) {
    const qsizetype colon = line.indexOf(':');
    demand(colon > 0 && line.endsWith('\xF7'));
    qsizetype meanings = 0;
    for (qsizetype start = colon + 1; start < line.size(); ++meanings) {
        const qsizetype end = line.indexOf('\xF7', start);
        demand(end > start);
        start = end + 1;
    }
    demand(meanings > 0);
    return meanings;
}

/// The colons of all meanings; a line has one more, behind its headword.
qsizetype colons_of(const freedict::Package &package) {
    qsizetype colons = 0;
    for (const freedict::Entry &entry : package.entries)
        colons += entry.meanings.join(QString()).count(u':');
    return colons;
}

void check(const freedict::Package &package, const QByteArray &text) {
    qsizetype entries = -1;  // the notice is none
    qsizetype meanings = 0;
    qsizetype colons = 0;
    QByteArrayView previous;
    QByteArrayView rest = text;
    for (; !rest.isEmpty(); ++entries) {
        const qsizetype end = rest.indexOf('\n');
        demand(end > 0 && rest[end - 1] == '\r');
        const QByteArrayView line = rest.first(end - 1);
        rest = rest.sliced(end + 1);
        demand(!line.contains('\r'));
        if (entries < 0) {
            demand(line.size() >= freedict::notice_bytes && !line.contains(':') && !line.contains('\xF7'));
            continue;
        }
        meanings += meanings_of(line);
        colons += line.count(':') - 1;
        demand(previous <= keresőkulcs(line));
        previous = keresőkulcs(line);
    }
    const freedict::Counts found{entries, meanings};
    demand(found == freedict::counts_of(package.entries) && found == freedict::counts_in(text));
    demand(colons == colons_of(package));
}

void import(QByteArrayView index, QByteArrayView data) {
    const freedict::PackageResult result = freedict::parse_package(index, data, u"fuzz"_s);
    const auto *package = std::get_if<freedict::Package>(&result);
    if (package == nullptr)
        return;
    for (const freedict::Dictionary &dictionary : freedict::dictionaries) {
        const FileContent text = freedict::dictionary_text(*package, dictionary);
        if (std::holds_alternative<QByteArray>(text))
            check(*package, std::get<QByteArray>(text));
    }
}

void import_files(QByteArrayView input) {
    const qsizetype middle = input.indexOf('\0');
    if (middle >= 0)
        import(input.first(middle), input.sliced(middle + 1));
}

/// A number below 64³ in the index's base 64.
QByteArray base64(qsizetype number) {
    constexpr QByteArrayView digits("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/");
    return QByteArray().append(digits[number / 4096]).append(digits[number / 64 % 64]).append(digits[number % 64]);
}

void import_definitions(QByteArrayView input) {
    constexpr qsizetype limit = 262'144;  // 64³
    QByteArray data = "N\nEdition: 1\nSize: 1 headwords\nAvailability:\n General Public License\n";
    QByteArray index = "00databaseinfo\tA\t" + base64(data.size()) + '\n';
    for (qsizetype end = 0; (end = input.indexOf('\0')) >= 0; input = input.sliced(end + 1)) {
        if (data.size() + end >= limit)
            return;
        index += "w\t" + base64(data.size()) + '\t' + base64(end) + '\n';
        data += input.first(end);
    }
    import(index, data);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size) {
    const QByteArrayView input(bytes, static_cast<qsizetype>(size));
    import_files(input);
    import_definitions(input);
    return 0;
}
