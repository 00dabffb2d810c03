#include "freedict/doubled_headwords.h"

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

bool holds_all(const QStringList &forms, const QStringList &others) {
    return std::ranges::all_of(others, [&](const QString &form) { return forms.contains(form); });
}

/// How well a headword tells its forms: by their number, without those that nobody uses any more.
qsizetype completeness(const Entry &entry) {
    static const QStringList archaic{u"holden"_s, u"slank"_s, u"span"_s};
    QStringList forms = further_forms(entry.headword, Language::english);
    const bool is_archaic = std::ranges::any_of(forms, [](const QString &form) { return archaic.contains(form); });
    forms.removeDuplicates();
    return is_archaic ? 0 : forms.size();
}

/// True when one of the two lists all forms of the other.
bool are_one_word(const Entry &first, const Entry &second) {
    const QStringList forms = further_forms(first.headword, Language::english);
    const QStringList others = further_forms(second.headword, Language::english);
    return !forms.isEmpty() && !others.isEmpty() && (holds_all(forms, others) || holds_all(others, forms));
}

}  // namespace

DoubledHeadwords doubled_headwords(const QVector<Entry> &english) {
    QHash<QString, QVector<qsizetype>> places;
    for (qsizetype i = 0; i < english.size(); ++i)
        places[base_form(english[i].headword, Language::english)].append(i);
    DoubledHeadwords doubled;
    for (qsizetype i = 0; i < english.size(); ++i) {
        const QVector<qsizetype> all = places.value(base_form(english[i].headword, Language::english));
        if (all.size() < 2 || all.first() != i)
            continue;
        const qsizetype most = *std::ranges::max_element(all, {}, [&](qsizetype place) {
            return std::tuple(completeness(english[place]), english[place].meanings.size(), -place);
        });
        qsizetype joined = 0;
        for (const qsizetype place : all) {
            if (place == most || !are_one_word(english[place], english[most]))
                continue;
            doubled.joined.insert(english[place].headword, english[most].headword);
            ++joined;
        }
        doubled.left += joined + 1 < all.size() ? 1 : 0;
    }
    return doubled;
}

}  // namespace freedict
