#pragma once

#include <QDir>
#include <QTemporaryDir>

#include "search_data/word_index_maker.h"
#include "suggestions/frequency_file.h"
#include "support/files_for_tests.h"

/// A program folder with two small dictionaries, the index of their words, and frequencies.
class DictionaryFolder final {
  public:
    DictionaryFolder(const QByteArray &english, const QByteArray &hungarian)
        : english_(english), hungarian_(hungarian) {
        write("am.txt", english_);
        write("ma.txt", hungarian_);
    }

    [[nodiscard]] QString path() const { return folder_.path(); }
    [[nodiscard]] QString file(const char *name) const { return folder_.filePath(QString::fromLatin1(name)); }
    void write(const char *name, const QByteArray &bytes) const { write_file(file(name), bytes); }
    void remove(const char *name) const { QFile::remove(file(name)); }

    void write_index(const search_data::Bases &bases = {}) const {
        write("szavak.idx", search_data::word_index(english_, hungarian_, bases));
    }
    /// A byte for each line behind the notice.
    void write_frequencies(const QByteArray &english, const QByteArray &hungarian) const {
        write("am.gyk", gyakoriságfájl::fájlja(english_, english));
        write("ma.gyk", gyakoriságfájl::fájlja(hungarian_, hungarian));
    }

  private:
    QTemporaryDir folder_;
    QByteArray english_;
    QByteArray hungarian_;
};

/// A dictionary of these lines, behind a notice.
inline QByteArray small_dictionary(const QStringList &lines) {
    QByteArray text = "A notice that is long enough to be passed over by every search\r\n";
    for (const QString &line : lines)
        text += code_page::encode(line).value() + "\r\n";
    return text;
}
