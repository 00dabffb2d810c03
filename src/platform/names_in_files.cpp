#include "platform/names_in_files.h"

#include "platform/code_page.h"

using namespace Qt::StringLiterals;

namespace names_in_files {
namespace {

/// The last letter before `accent`, with it: an accent alone would hardly be seen.
QString with_its_letter(const QString &name, const QString &accent) {
    const qsizetype place = name.indexOf(accent);
    return name.mid(std::max<qsizetype>(place - 1, 0), place > 0 ? 2 : 1);
}

QString reason_without_line(const QString &name) {
    for (const QChar character : name) {
        if (character.isMark() && !code_page::encode_as_it_is(character)) {
            return u"a nevében a(z) „%1” betű ékezete külön jel, és az nem írható le a közép-európai kódlapon"_s.arg(
                with_its_letter(name, character));
        }
    }
    return u"a nevében a(z) „%1” betű nem írható le a közép-európai kódlapon"_s.arg(code_page::first_missing(name));
}

}  // namespace

std::variant<QByteArray, Obstacle> line_of(const QString &name) {
    if (name.contains(u'\n'))
        return Obstacle{u"a nevében sortörés van"_s};
    // Of several at the end of a line one belongs to its end.
    if (const auto bytes = code_page::encode_as_it_is(name))
        return *bytes;
    return Obstacle{reason_without_line(name)};
}

}  // namespace names_in_files
