#include "freedict/import.h"

#include <QDir>
#include <optional>

namespace freedict {
namespace {

struct Made {
    Imported imported;
    QByteArray text;
};

/// Turns the steps of a dictionary's two halves, reading and writing, into one run from 0 to 100.
class Percent final {
  public:
    Percent(const Dictionary &dictionary, const Progress &progress) : dictionary_(dictionary), progress_(progress) {}

    [[nodiscard]] Steps half(int first) {
        return [this, first](qsizetype done, qsizetype total) { tell(first + static_cast<int>(50 * done / total)); };
    }
    void tell(int percent) {
        if (percent != told_)
            progress_(dictionary_, percent);
        told_ = percent;
    }

  private:
    const Dictionary &dictionary_;
    const Progress &progress_;
    int told_ = -1;
};

std::variant<Made, Failure> made(const Dictionary &dictionary, const QString &freedict_folder,
                                 const Progress &progress) {
    Percent percent(dictionary, progress);
    percent.tell(0);
    PackageResult read = read_package(freedict_folder, dictionary.package.toString(), percent.half(0));
    if (auto *failure = std::get_if<Failure>(&read))
        return *failure;
    const auto &package = std::get<Package>(read);
    FileContent text = dictionary_text(package, dictionary, percent.half(50));
    if (auto *failure = std::get_if<Failure>(&text))
        return *failure;
    auto &bytes = std::get<QByteArray>(text);
    const Counts written = counts_in(bytes);
    if (const auto lost = difference(package, written))
        return *lost;
    percent.tell(100);
    return Made{{dictionary, counts_of(package), written}, std::move(bytes)};
}

}  // namespace

std::variant<QVector<Imported>, Failure> import_dictionaries(const QString &freedict_folder,
                                                             const QString &output_folder, const Progress &progress) {
    QVector<Made> all;
    for (const Dictionary &dictionary : dictionaries) {
        auto one = made(dictionary, freedict_folder, progress);
        if (const auto *failure = std::get_if<Failure>(&one))
            return *failure;
        all.append(std::get<Made>(std::move(one)));
    }
    QVector<Imported> imported;
    for (const Made &one : all) {
        const QString path = QDir(output_folder).filePath(one.imported.dictionary.file.toString());
        if (const std::optional<Failure> failure = files::replace_whole(path, one.text))
            return *failure;
        imported.append(one.imported);
    }
    return imported;
}

}  // namespace freedict
