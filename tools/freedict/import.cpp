#include "freedict/import.h"

#include <QDir>
#include <algorithm>
#include <optional>

#include "freedict/meaning_order.h"
#include "freedict/preparation.h"
#include "freedict/pronunciations.h"
#include "freedict/usual_verbs.h"

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

struct File {
    QStringView name;
    QByteArray bytes;
};

struct Made {
    QVector<Imported> imported;
    QVector<File> files;
};

/// Adds the file of one dictionary; the failure when it cannot be written or is not whole.
std::optional<Failure> add_file(Made &made, Imported done, const Package &package, const QVector<Entry> &entries,
                                const Steps &steps) {
    Package whole = package;
    whole.entries = entries;
    FileContent text = dictionary_text(whole, done.dictionary, steps);
    if (const auto *failure = std::get_if<Failure>(&text))
        return *failure;
    done.written = counts_in(std::get<QByteArray>(text));
    whole.stated_headwords = entries.size();
    if (const auto lost = difference(whole, done.written))
        return lost;
    made.files.append({done.dictionary.file, std::get<QByteArray>(text)});
    made.imported.append(done);
    return std::nullopt;
}

std::variant<Made, Failure> make_all(const Sources &sources, const Progress &progress) {
    Percent first(dictionaries[0], progress);
    const auto read = read_material(sources, first.stage(0, 20));
    if (const auto *failure = std::get_if<Failure>(&read))
        return *failure;
    const auto &material = std::get<Material>(read);
    auto ready = prepared(material);
    if (const auto *failure = std::get_if<Failure>(&ready))
        return *failure;
    auto &[lexicon, done, mends, doubled_left] = std::get<Prepared>(ready);
    first.tell(35);
    const WordPairs pairs = word_pairs(lexicon.english, lexicon.hungarian);
    const Steps learn = first.stage(40, 55);
    int learned = 0;
    const MeaningFeatures features(pairs, material.outside,
                                   [&] { learn(++learned, MeaningFeatures::alignment_count); });
    Made made;
    std::optional<Percent> second;
    for (std::size_t i = 0; i < dictionaries.size(); ++i) {
        Percent &percent = i == 0 ? first : second.emplace(dictionaries[i], progress);
        const Language language = dictionaries[i].language;
        order_meanings(lexicon, language, features, percent.stage(i == 0 ? 55 : 0, 90));
        if (language == Language::english && material.outside.net)
            done[i].lent = lend_usual_verbs(lexicon, *material.outside.net);
        if (const auto failure =
                add_file(made, done[i], material.packages[i], lexicon.in(language), percent.stage(90, 100)))
            return *failure;
        percent.tell(100);
    }
    made.files.append({pronunciation_file, pronunciation_text(material.packages[0], lexicon.english)});
    return made;
}

}  // namespace

std::variant<QVector<Imported>, Failure> import_dictionaries(const Sources &sources, const QString &output_folder,
                                                             const Progress &progress) {
    const auto result = make_all(sources, progress);
    if (const auto *failure = std::get_if<Failure>(&result))
        return *failure;
    const auto &made = std::get<Made>(result);
    for (const File &file : made.files) {
        const QString path = QDir(output_folder).filePath(file.name.toString());
        if (const std::optional<Failure> failure = files::replace_whole(path, file.bytes))
            return *failure;
    }
    return made.imported;
}

}  // namespace freedict
