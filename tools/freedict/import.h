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
    /// Of spelling dictionaries, for capitals and typing errors.
    QString hunspell{};
    /// Of the project's own entries.
    QString supplement{};
};

/// What became of one dictionary.
struct Imported {
    Dictionary dictionary;
    Counts read;
    Counts written;
    /// How many texts have lost a typing error, and how many have got their capitals, as headwords here.
    qsizetype mended = 0;
    qsizetype capitals = 0;
    /// Headwords that were joined to another one, with the meanings that stood in both.
    Counts joined;
    /// What the supplement adds to the package's.
    Counts added;
    /// Meanings of a verb that stand before those of the noun of the same letters too.
    qsizetype lent = 0;
};

/// Told how far a dictionary is, from 0 to 100, each value once.
using Progress = std::function<void(const Dictionary &dictionary, int percent)>;

/// Makes the program's dictionary files and that of the pronunciations in the existing folder `output_folder`.
/// Nothing is written before all of them are made; then each file is replaced whole or not at all.
[[nodiscard]] std::variant<QVector<Imported>, Failure> import_dictionaries(const Sources &sources,
                                                                           const QString &output_folder,
                                                                           const Progress &progress);

}  // namespace freedict
