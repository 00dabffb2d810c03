#pragma once

#include <sqlite3.h>

#include <QString>

/// The pairs of the dictionaries in a table of SQLite's full-text search, numbered as those of the word index.
class FtsPhrases final {
  public:
    /// Makes the database `path` of the pairs of the program folder `program`.
    static void make(const QString &program, const QString &path);

    explicit FtsPhrases(const QString &path);
    ~FtsPhrases();
    FtsPhrases(const FtsPhrases &) = delete;
    FtsPhrases &operator=(const FtsPhrases &) = delete;

    /// Reads the first `rows` pairs in which `word` stands; how many there were.
    int first_rows(const char *word, int rows);
    /// In how many pairs it stands.
    int count(const char *word);

  private:
    sqlite3 *database_ = nullptr;
    sqlite3_stmt *rows_ = nullptr;
    sqlite3_stmt *count_ = nullptr;
};
