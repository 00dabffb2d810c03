#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>
#include <optional>
#include <variant>

#include "platform/files.h"

// The meanings of English words as WordNet has them (Debian package wordnet-base): which words each meaning is related
// to, and how often it was found in texts. It never gives a meaning to the dictionary; it only tells which of those
// that the dictionary has is the usual one.
//
// A line of index.noun, .verb, .adj, .adv, behind a licence of lines that begin with two blanks:
//
//     lemma  pos  senses  n  n pointer signs  senses  tagged senses  place of each sense in data.…
//
// and of data.…:
//
//     place  file  type  words (hexadecimal)  { word  number }  pointers  { sign  place  pos  … }  …  "|" gloss
//
// A line of cntlist.rev: lemma "%" type ":" …  sense number  count. In all of them "_" stands for a blank, and the
// types 1 to 5 are noun, verb, adjective, adverb and dependent adjective.
namespace freedict {

class WordNet final {
  public:
    /// One meaning of a word.
    struct Sense {
        /// Its part of the word's use, from 0 to 1.
        double share;
        int synset;
    };

    /// Reads the files in `folder`; a failure that names the file, and the line where one makes no sense.
    [[nodiscard]] static std::variant<WordNet, Failure> read(const QString &folder);

    /// The meanings of a word in small letters, of the verb or of everything else.
    [[nodiscard]] QVector<Sense> senses(const QString &word, bool verb) const;
    /// How often it was found in texts with all its meanings.
    [[nodiscard]] int count(const QString &word, bool verb) const;
    /// The number of a word for relation(); −1 when nothing is related to it.
    [[nodiscard]] int number(const QString &word) const { return numbers_.value(word, -1); }
    /// From 0, not related, to 1, a word of this very meaning.
    [[nodiscard]] double relation(int synset, int word) const;

  private:
    struct Related {
        int word;
        float strength;
    };
    struct Raw {
        QVector<int> words;
        QVector<int> gloss;
        QVector<int> near;
        /// Of near ones the more and less general.
        QVector<int> up_and_down;
    };

    [[nodiscard]] std::optional<Failure> read_data(const QString &path, char pos);
    [[nodiscard]] std::optional<Failure> read_index(const QString &path, char pos);
    [[nodiscard]] std::optional<Failure> read_counts(const QString &path);
    bool add_synset(const QByteArray &line, char pos);
    bool add_word(const QByteArray &line, char pos);
    bool add_count(const QByteArray &line);
    void relate();
    int number_for(const QString &word);
    int synset_at(char pos, const QByteArray &place);

    QHash<QString, int> numbers_;
    QHash<QByteArray, int> places_;
    QVector<Raw> raw_;
    QVector<QVector<Related>> related_;
    /// The synsets of a word by their frequency, under the part of speech and the word; and their counts.
    QHash<QByteArray, QVector<int>> synsets_;
    QHash<QByteArray, int> counts_;
};

}  // namespace freedict
