#include "platform/linux/command_string.h"

namespace {

/// Takes the quoted word that begins at `at` and moves `at` behind it.
std::optional<QString> quoted_word(const QString &command, qsizetype &at) {
    QString word;
    for (++at; at < command.size(); ++at) {
        if (command[at] != u'"') {
            word.append(command[at]);
            continue;
        }
        ++at;
        if (at == command.size() || command[at] != u'"')
            return word;
        word.append(u'"');
    }
    return std::nullopt;
}

QString plain_word(const QString &command, qsizetype &at) {
    const qsizetype begin = at;
    while (at < command.size() && !command[at].isSpace())
        ++at;
    return command.sliced(begin, at - begin);
}

}  // namespace

std::optional<QStringList> words_of_command(const QString &command) {
    QStringList words;
    qsizetype at = 0;
    while (at < command.size()) {
        if (command[at].isSpace()) {
            ++at;
        } else if (command[at] == u'"') {
            const auto word = quoted_word(command, at);
            if (!word)
                return std::nullopt;
            words.append(*word);
        } else {
            words.append(plain_word(command, at));
        }
    }
    return words;
}
