#include "freedict/import.h"

#include <QDir>
#include <algorithm>
#include <optional>

#include "freedict/meaning_order.h"

namespace freedict {
namespace {

/// Turns the steps of a dictionary's stages into one run from 0 to 100.
class Percent final {
  public:
    Percent(const Dictionary &dictionary, const Progress &progress) : dictionary_(dictionary), progress_(progress) {
        tell(0);
    }

    /// Steps of a stage that takes it from `first` to `last` per cent.
    [[nodiscard]] Steps stage(int first, int last) {
        return [=, this](qsizetype done, qsizetype total) {
            tell(first + static_cast<int>((last - first) * done / total));
        };
    }
    void tell(int percent) {
        if (percent > told_)
            progress_(dictionary_, percent);
        told_ = std::max(told_, percent);
    }

  private:
    const Dictionary &dictionary_;
    const Progress &progress_;
    int told_ = -1;
};

/// Both packages, English first.
using Packages = std::array<Package, 2>;

std::variant<Packages, Failure> read_packages(const Sources &sources, Percent &percent) {
    Packages packages;
    for (std::size_t i = 0; i < dictionaries.size(); ++i) {
        const int first = 10 * static_cast<int>(i);
        PackageResult read =
            read_package(sources.freedict, dictionaries[i].package.toString(), percent.stage(first, first + 10));
        if (const auto *failure = std::get_if<Failure>(&read))
            return *failure;
        packages[i] = std::get<Package>(std::move(read));
        if (const auto wrong = difference(packages[i], counts_of(packages[i].entries)))
            return *wrong;
    }
    return packages;
}

std::variant<OutsideKnowledge, Failure> read_outside(const Sources &sources) {
    OutsideKnowledge outside;
    if (!sources.wordnet.isEmpty()) {
        auto net = WordNet::read(sources.wordnet);
        if (const auto *failure = std::get_if<Failure>(&net))
            return *failure;
        outside.net = std::get<WordNet>(std::move(net));
    }
    if (!sources.scowl.isEmpty()) {
        auto classes = WordClasses::read(sources.scowl);
        if (const auto *failure = std::get_if<Failure>(&classes))
            return *failure;
        outside.classes = std::get<WordClasses>(std::move(classes));
    }
    return outside;
}

struct Made {
    Imported imported;
    QByteArray text;
};

std::variant<Made, Failure> made(const Dictionary &dictionary, const Package &package, const QVector<Entry> &entries,
                                 const Steps &steps) {
    Package whole = package;
    whole.entries = entries;
    FileContent text = dictionary_text(whole, dictionary, steps);
    if (const auto *failure = std::get_if<Failure>(&text))
        return *failure;
    auto &bytes = std::get<QByteArray>(text);
    const Counts written = counts_in(bytes);
    whole.stated_headwords = entries.size();
    if (const auto lost = difference(whole, written))
        return *lost;
    return Made{{dictionary, counts_of(package.entries), written}, std::move(bytes)};
}

std::variant<QVector<Made>, Failure> make_all(const Sources &sources, const Progress &progress) {
    Percent first(dictionaries[0], progress);
    const auto packages = read_packages(sources, first);
    if (const auto *failure = std::get_if<Failure>(&packages))
        return *failure;
    const auto outside = read_outside(sources);
    if (const auto *failure = std::get_if<Failure>(&outside))
        return *failure;
    first.tell(30);
    Lexicon lexicon;
    for (std::size_t i = 0; i < dictionaries.size(); ++i)
        lexicon.in(dictionaries[i].language) = mended_entries(std::get<Packages>(packages)[i], dictionaries[i]);
    const WordPairs pairs = word_pairs(lexicon.english, lexicon.hungarian);
    first.tell(40);
    const Steps learn = first.stage(40, 60);
    int learned = 0;
    const MeaningFeatures features(pairs, std::get<OutsideKnowledge>(outside),
                                   [&] { learn(++learned, MeaningFeatures::alignment_count); });
    QVector<Made> all;
    std::optional<Percent> second;
    for (std::size_t i = 0; i < dictionaries.size(); ++i) {
        Percent &percent = i == 0 ? first : second.emplace(dictionaries[i], progress);
        order_meanings(lexicon, dictionaries[i].language, features, percent.stage(i == 0 ? 60 : 0, 90));
        auto one = made(dictionaries[i], std::get<Packages>(packages)[i], lexicon.in(dictionaries[i].language),
                        percent.stage(90, 100));
        if (const auto *failure = std::get_if<Failure>(&one))
            return *failure;
        percent.tell(100);
        all.append(std::get<Made>(std::move(one)));
    }
    return all;
}

}  // namespace

std::variant<QVector<Imported>, Failure> import_dictionaries(const Sources &sources, const QString &output_folder,
                                                             const Progress &progress) {
    const auto all = make_all(sources, progress);
    if (const auto *failure = std::get_if<Failure>(&all))
        return *failure;
    QVector<Imported> imported;
    for (const Made &one : std::get<QVector<Made>>(all)) {
        const QString path = QDir(output_folder).filePath(one.imported.dictionary.file.toString());
        if (const std::optional<Failure> failure = files::replace_whole(path, one.text))
            return *failure;
        imported.append(one.imported);
    }
    return imported;
}

}  // namespace freedict
