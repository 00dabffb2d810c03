#include "freedict/spelling_likeness.h"

#include <QVector>
#include <algorithm>
#include <array>
#include <numeric>

#include "freedict/words_of.h"

namespace freedict {
namespace {

constexpr double by_chance = 0.4;  // what texts have in common that have nothing in common

constexpr std::array<std::pair<QStringView, QStringView>, 10> same_sounds{{{u"sz", u"s"},
                                                                           {u"cs", u"c"},
                                                                           {u"k", u"c"},
                                                                           {u"ph", u"f"},
                                                                           {u"x", u"cs"},
                                                                           {u"y", u"i"},
                                                                           {u"z", u"s"},
                                                                           {u"ck", u"c"},
                                                                           {u"ll", u"l"},
                                                                           {u"th", u"t"}}};

QString sounds_of(const QString &text) {
    QString sounds = folded(text);
    for (const auto &[from, to] : same_sounds)
        sounds.replace(from.toString(), to.toString());
    return sounds;
}

/// The least number of letters to be put in, taken out or changed.
int distance(const QString &first, const QString &second) {
    QVector<int> row(second.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < first.size(); ++i) {
        int diagonal = row[0]++;
        for (qsizetype j = 0; j < second.size(); ++j) {
            const int changed = diagonal + (first[i] == second[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({row[j] + 1, diagonal + 1, changed});
        }
    }
    return row.last();
}

}  // namespace

double spelling_likeness(const QString &english, const QString &hungarian) {
    QString base = base_form(english, Language::english);
    if (base.startsWith(verb_mark))
        base.remove(0, verb_mark.size());
    const QString first = sounds_of(base);
    const QString second = sounds_of(hungarian);
    const auto longer = static_cast<double>(std::max(first.size(), second.size()));
    return longer == 0 ? 0 : std::max(0.0, 1 - distance(first, second) / longer - by_chance);
}

}  // namespace freedict
