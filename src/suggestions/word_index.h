#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "dictionary/byte_source.h"

/// Numbers from 0 on that are in a set or not.
class számhalmaz final {
  public:
    explicit számhalmaz(qsizetype darab) : bits_(static_cast<size_t>((darab + 63) / 64)) {}

    void felvesz(std::uint32_t szám) { bits_[szám / 64] |= std::uint64_t{1} << (szám % 64); }
    [[nodiscard]] bool benne(std::uint32_t szám) const { return (bits_[szám / 64] >> (szám % 64) & 1U) != 0; }
    /// Keeps what is in both.
    számhalmaz &operator&=(const számhalmaz &másik);
    /// Takes out what is in the other one.
    számhalmaz &operator-=(const számhalmaz &másik);
    számhalmaz &operator|=(const számhalmaz &másik);
    [[nodiscard]] int darab() const;
    /// The first number from `innen` on, or nothing.
    [[nodiscard]] std::optional<std::uint32_t> következő(std::uint32_t innen) const;

  private:
    std::vector<std::uint64_t> bits_;
};

/// The index of the words of both dictionaries (suggestions/word_index_format.h). Its words are kept in memory, the
/// rest is read where it lies.
class szómutató final {
  public:
    /// Reads the index of a program folder and compares it with the dictionaries there. hiányok() tells what is missing
    /// or damaged; then there is neither a word nor a pair.
    explicit szómutató(const QString &programkönyvtár);

    [[nodiscard]] const QStringList &hiányok() const { return missing_; }
    [[nodiscard]] std::uint32_t szavak() const { return words_; }
    [[nodiscard]] std::uint32_t párok() const { return pairs_; }
    [[nodiscard]] QByteArrayView szó(std::uint32_t szám) const;
    /// The first word that is not before these letters; szavak() when all are.
    [[nodiscard]] std::uint32_t első(QByteArrayView betűk) const;
    /// The number of a word.
    [[nodiscard]] std::optional<std::uint32_t> keres(QByteArrayView szó) const;

    /// The words that are forms of a word.
    [[nodiscard]] std::vector<std::uint32_t> alakjai(std::uint32_t szám);
    /// Adds the pairs in which the words from `első` to before `utolsó` stand.
    void párjai(std::uint32_t első, std::uint32_t utolsó, számhalmaz &halmaz);

    /// Headword and meaning of a pair, as the dictionary has them.
    struct pár {
        QByteArray angol;
        QByteArray magyar;
    };
    /// Nothing when the dictionary cannot be read any more.
    [[nodiscard]] std::optional<pár> pár_itt(std::uint32_t szám);

  private:
    [[nodiscard]] bool load(const QString &path, std::uint64_t english, std::uint64_t hungarian);
    [[nodiscard]] bool take_tables(const QByteArray &file);
    [[nodiscard]] QByteArray records(std::uint32_t first, std::uint32_t behind);

    QStringList missing_;
    std::unique_ptr<FileSource> english_;
    std::unique_ptr<FileSource> hungarian_;
    std::unique_ptr<FileSource> index_;
    std::uint32_t words_ = 0;
    std::uint32_t pairs_ = 0;
    QByteArray letters_;
    /// Beginnings of the words, then of their records.
    std::vector<std::uint32_t> starts_;
    std::vector<std::uint32_t> record_starts_;
    qint64 pairs_at_ = 0;
    qint64 records_at_ = 0;
};
