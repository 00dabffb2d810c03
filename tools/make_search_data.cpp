// zimbora-index: makes what the search for what was meant needs of the dictionaries in a program folder: the index of
// their words and the frequencies of their headwords.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTextStream>
#include <optional>
#include <variant>

#include "platform/files.h"
#include "search_data/search_data.h"

using namespace Qt::StringLiterals;

int main(int count, char *values[]) {
    // The library of Hungarian forms is looked for beside the executable.
    const QCoreApplication application(count, values);
    constexpr int called_wrongly = 2;
    QStringList arguments;
    for (int i = 1; i < count; ++i)
        arguments.append(QFile::decodeName(values[i]));
    if (arguments.size() != 3) {
        QTextStream(stderr) << u"Használat: zimbora-index WORDNET-MAPPA SCOWL-MAPPA PROGRAMKÖNYVTÁR\n\n"
                               "A programkönyvtár szótáraihoz (am.txt, ma.txt) elkészíti a szavak mutatóját\n"
                               "(szavak.idx) és a címszavak gyakoriságát (am.gyk, ma.gyk).\n"_s;
        return called_wrongly;
    }
    const auto failure = search_data::make({.wordnet = arguments[0], .scowl = arguments[1], .program = arguments[2]});
    if (failure)
        QTextStream(stderr) << failure->sentence << Qt::endl;
    return failure ? 1 : 0;
}
