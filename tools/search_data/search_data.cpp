#include "search_data/search_data.h"

#include <QByteArray>
#include <QDir>
#include <utility>
#include <variant>

#include "forms/english_forms.h"
#include "forms/hungarian_forms.h"
#include "platform/code_page.h"
#include "search_data/dictionary_lines.h"
#include "search_data/frequencies.h"
#include "search_data/word_index_maker.h"
#include "state/program_folder.h"
#include "suggestions/frequency_file.h"
#include "suggestions/headword_list.h"

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

/// Both analysers, which ask about the headwords of the program folder.
class Forms final {
  public:
    explicit Forms(const QDir &program)
        : english_words_(program.path(), címszólista::nyelv::angol),
          hungarian_words_(program.path(), címszólista::nyelv::magyar),
          english_(program.filePath(form_data_folder), english_words_.kérdések()),
          hungarian_(program.filePath(form_data_folder), hungarian_words_.kérdések()) {}

    std::optional<Failure> missing() {
        const QStringList sentences = english_.hiányok() + hungarian_.hiányok();
        return sentences.isEmpty() ? std::nullopt : std::optional(Failure{sentences.join(u'\n')});
    }

    QVector<QByteArray> bases_of(const QByteArray &word) {
        QVector<QByteArray> bases;
        for (alakelemző *analyser : {static_cast<alakelemző *>(&english_), static_cast<alakelemző *>(&hungarian_)}) {
            for (const olvasat &reading : analyser->olvasatok(code_page::decode(word))) {
                const auto bytes = code_page::encode(reading.alapalak);
                const QVector<QByteArray> words = words_of(bytes.value_or(QByteArray()));
                const bool verb = words.size() == 2 && words.front() == "to";
                if ((words.size() == 1 || verb) && words.last() != word)
                    bases.append(words.last());
            }
        }
        return bases;
    }

  private:
    címszólista english_words_;
    címszólista hungarian_words_;
    angol_alakelemző english_;
    magyar_alakelemző hungarian_;
};

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
    if (auto failure = write(program, english_frequency_file, gyakoriságfájl::fájlja(english, of_english)))
        return failure;
    if (auto failure = write(program, hungarian_frequency_file, gyakoriságfájl::fájlja(hungarian, of_hungarian)))
        return failure;
    Forms forms(program);
    if (auto failure = forms.missing())
        return failure;
    return write(program, word_index_file,
                 word_index(english, hungarian, [&](const QByteArray &word) { return forms.bases_of(word); }));
}

}  // namespace search_data
