#include "search_data/search_data.h"

#include <QByteArray>
#include <QDir>
#include <utility>
#include <variant>

#include "search_data/dictionary_lines.h"
#include "search_data/frequencies.h"
#include "search_data/word_index_maker.h"
#include "state/program_folder.h"
#include "suggestions/frequency_file.h"

namespace search_data {
namespace {

struct Dictionaries {
    QByteArray english;
    QByteArray hungarian;
};

std::variant<Dictionaries, Failure> read(const QDir &program) {
    Dictionaries both;
    for (auto &[name, bytes] : {std::pair<QString, QByteArray &>{english_hungarian_file, both.english},
                                std::pair<QString, QByteArray &>{hungarian_english_file, both.hungarian}}) {
        FileContent content = files::read_whole(program.filePath(name));
        if (auto *failure = std::get_if<Failure>(&content))
            return *failure;
        bytes = std::get<QByteArray>(content);
    }
    return both;
}

struct Knowledge {
    freedict::WordClasses classes;
    freedict::WordNet net;
};

std::variant<Knowledge, Failure> knowledge(const Folders &folders) {
    auto classes = freedict::WordClasses::read(folders.scowl);
    if (auto *failure = std::get_if<Failure>(&classes))
        return *failure;
    auto net = freedict::WordNet::read(folders.wordnet);
    if (auto *failure = std::get_if<Failure>(&net))
        return *failure;
    return Knowledge{std::get<freedict::WordClasses>(std::move(classes)), std::get<freedict::WordNet>(std::move(net))};
}

std::optional<Failure> write(const QDir &program, const QString &name, const QByteArray &bytes) {
    return files::replace_whole(program.filePath(name), bytes);
}

}  // namespace

std::optional<Failure> make(const Folders &folders) {
    const QDir program(folders.program);
    const auto dictionaries = read(program);
    if (const auto *failure = std::get_if<Failure>(&dictionaries))
        return *failure;
    const auto &[english, hungarian] = std::get<Dictionaries>(dictionaries);
    const auto known = knowledge(folders);
    if (const auto *failure = std::get_if<Failure>(&known))
        return *failure;
    const auto &[classes, net] = std::get<Knowledge>(known);

    const QVector<Line> english_lines = lines_of(english);
    const QByteArray of_english = english_frequencies(english_lines, classes, net);
    const QByteArray of_hungarian = hungarian_frequencies(lines_of(hungarian), english_lines, of_english);
    if (auto failure =
            write(program, english_frequency_file, gyakoriságfájl::fájlja(english, of_english)))
        return failure;
    if (auto failure = write(program, hungarian_frequency_file,
                             gyakoriságfájl::fájlja(hungarian, of_hungarian)))
        return failure;
    return write(program, word_index_file, word_index(english, hungarian, {}));
}

}  // namespace search_data
