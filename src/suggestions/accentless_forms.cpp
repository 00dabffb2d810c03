#include "suggestions/accentless_forms.h"

#include <algorithm>

#include "platform/code_page.h"
#include "suggestions/letter_sets.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype shortest_stem = 2;
/// Longer words take the analysis a millisecond for each try.
constexpr qsizetype longest_word = 20;
constexpr qsizetype most_forms = 3;
constexpr int most_tries = 48;
/// Of what stands behind one stem.
constexpr qsizetype most_endings = 16;

bool is_bare_word(const QByteArray &word) {
    return word.size() > shortest_stem && word.size() <= longest_word && std::ranges::all_of(word, [](char byte) {
               return betűk::alap(byte) != betűk::egyéb && betűk::ékezettelen(byte) == byte;
           });
}

/// The headwords that are these letters but for their accents, the common ones first.
QStringList stems_of(QByteArrayView letters, címszólista &headwords) {
    const auto group = headwords.csoport(letters.size());
    const betűhalmaz set = betűk::halmaza(letters);
    QVector<címszólista::tétel> found;
    for (qsizetype i = 0; i < group.darab(); ++i) {
        const auto same = [](char mine, char its) { return mine == betűk::ékezettelen(its); };
        if (group.halmazok[i] == set && std::ranges::equal(letters, group.elem(i).kulcs, same))
            found.append(group.elem(i));
    }
    std::ranges::stable_sort(found, std::ranges::greater(), &címszólista::tétel::gyakoriság);
    QStringList stems;
    for (const auto &item : found)
        stems.append(code_page::decode(item.kulcs));
    return stems;
}

QStringView accented(QChar letter) {
    switch (letter.unicode()) {
        case u'a':
            return u"aá";
        case u'e':
            return u"eé";
        case u'o':
            return u"oöőó";
        case u'u':
            return u"uüúű";
        default:
            return {};
    }
}

/// The ways to put accents on an ending, the fewer the earlier.
QStringList endings_of(const QString &bare) {
    QStringList endings{bare};
    for (qsizetype place = 0; place < bare.size(); ++place) {
        const QStringView letters = accented(bare[place]);
        const QStringList until_here = endings;
        for (qsizetype i = 1; i < letters.size(); ++i) {
            for (const QString &ending : until_here) {
                QString other = ending;
                other[place] = letters[i];
                if (endings.size() < most_endings)
                    endings.append(other);
            }
        }
    }
    return endings;
}

/// The stem, and as it is before an ending: "alma", "almá".
QStringList before_ending(const QString &stem) {
    QStringList stems{stem};
    if (stem.endsWith(u'a'))
        stems.append(stem.chopped(1) + u'á');
    if (stem.endsWith(u'e'))
        stems.append(stem.chopped(1) + u'é');
    return stems;
}

}  // namespace

QStringList ékezetes_alakok(const QString &szó, címszólista &címszavak, alakelemző &alakok,
                            const std::function<bool()> &régi) {
    QStringList forms;
    const auto bytes = betűk::kódolva(szó.toLower());
    if (!bytes || !is_bare_word(*bytes))
        return forms;
    int tries = 0;
    for (qsizetype length = bytes->size() - 1; length >= shortest_stem; --length) {
        const QStringList endings = endings_of(szó.toLower().sliced(length));
        for (const QString &headword : stems_of(QByteArrayView(*bytes).first(length), címszavak)) {
            for (const QString &stem : before_ending(headword)) {
                for (const QString &ending : endings) {
                    if (forms.size() == most_forms || tries == most_tries || régi())
                        return forms;
                    ++tries;
                    const QString form = stem + ending;
                    if (form != szó && !alakok.olvasatok(form).empty())
                        forms.append(form);
                }
            }
        }
    }
    return forms;
}
