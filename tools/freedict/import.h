#pragma once

#include <QString>
#include <QVector>
#include <functional>
#include <variant>

#include "freedict/dictionary_text.h"
#include "freedict/lexicon.h"
#include "platform/files.h"

namespace freedict {

/// The folders that an import reads. What is empty is done without.
struct Sources {
    QString freedict;
    /// Of WordNet, for the order of the meanings.
    QString wordnet{};
    /// Of SCOWL, for the order of the meanings.
    QString scowl{};
};

/// What became of one dictionary.
struct Imported {
    Dictionary dictionary;
    Counts read;
    Counts written;
};

/// Told how far a dictionary is, from 0 to 100, each value once.
using Progress = std::function<void(const Dictionary &dictionary, int percent)>;

/// Makes the program's dictionary files in the existing folder `output_folder`.
/// Nothing is written before all of them are made; then each file is replaced whole or not at all.
[[nodiscard]] std::variant<QVector<Imported>, Failure> import_dictionaries(const Sources &sources,
                                                                           const QString &output_folder,
                                                                           const Progress &progress);

}  // namespace freedict
