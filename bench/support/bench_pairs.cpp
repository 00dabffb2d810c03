#include "support/bench_pairs.h"

#include "app/program_folder.h"
#include "platform/code_page.h"
#include "support/bench_dictionary.h"
#include "wordlist/szs_file.h"

QVector<szópár> real_pairs(int count) {
    QVector<szópár> pairs;
    each_entry(bytes_of(staged_program() + u'/' + hungarian_english_file), [&](const szócikk &entry) {
        const QString headword = code_page::decode(entry.címszó);
        const szópár pair{code_page::decode(entry.jelentések).section(u'÷', 0, 0), headword};
        if (pairs.size() < count && szsfájl::akadály(pair).isEmpty())
            pairs.append(pair);
    });
    if (pairs.size() != count)
        qFatal("the dictionary has only %d pairs", static_cast<int>(pairs.size()));
    return pairs;
}
