#include "freedict/usual_verbs.h"

#include <QHash>

namespace freedict {
namespace {

constexpr int least_count = 200;    // of the verb in the texts that WordNet counted
constexpr int times_as_usual = 30;  // as everything else that is written so
constexpr qsizetype lent_meanings = 2;

}  // namespace

qsizetype lend_usual_verbs(Lexicon &lexicon, const WordNet &net) {
    QHash<QString, qsizetype> verbs;
    for (qsizetype i = 0; i < lexicon.english.size(); ++i) {
        const QString base = base_form(lexicon.english[i].headword, Language::english);
        if (base.startsWith(verb_mark) && !verbs.contains(base))
            verbs.insert(base, i);
    }
    qsizetype lent = 0;
    for (Entry &entry : lexicon.english) {
        const qsizetype verb = verbs.value(verb_mark + entry.headword, -1);
        if (verb < 0)
            continue;
        const int as_verb = net.count(entry.headword, true);
        if (as_verb < least_count || as_verb < times_as_usual * (net.count(entry.headword, false) + 1))
            continue;
        const QStringList before = entry.meanings;
        entry.meanings =
            lexicon.english[verb].meanings.first(std::min(lent_meanings, lexicon.english[verb].meanings.size())) +
            before;
        entry.meanings.removeDuplicates();
        lent += entry.meanings.size() - before.size();
    }
    return lent;
}

}  // namespace freedict
