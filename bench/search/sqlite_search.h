#pragma once

#include <sqlite3.h>

#include <QByteArray>
#include <QString>
#include <memory>

#include "search/hits.h"

/// How the entries lie in a database.
enum class SqliteTable {
    /// In file order, with an index on the headword without its "to ".
    indexed,
    /// In the order of the headword without its "to ", which is the key of the table itself.
    clustered,
};

/// Makes a database of the dictionary with these bytes at `path`; ends the program when that fails.
void make_database(const QByteArray &dictionary, SqliteTable table, const QString &path);

/// A connection to such a database and its prepared query. Texts are compared byte by byte.
class SqliteSearch final {
  public:
    explicit SqliteSearch(const QString &path);

    /// Collects the entries whose headword without its "to " begins with `text`.
    void find(const QByteArray &text, Hits &hits);

  private:
    struct Close {
        void operator()(sqlite3 *database) const { sqlite3_close(database); }
        void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    };

    std::unique_ptr<sqlite3, Close> database_;
    std::unique_ptr<sqlite3_stmt, Close> query_;
};
