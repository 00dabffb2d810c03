#include "search/sqlite_search.h"

#include "support/bench_dictionary.h"

namespace {

void check(bool good, sqlite3 *database) {
    if (!good)
        qFatal("SQLite: %s", sqlite3_errmsg(database));
}

void execute(sqlite3 *database, const char *command) {
    check(sqlite3_exec(database, command, nullptr, nullptr, nullptr) == SQLITE_OK, database);
}

sqlite3_stmt *prepare(sqlite3 *database, const char *command) {
    sqlite3_stmt *statement = nullptr;
    check(sqlite3_prepare_v2(database, command, -1, &statement, nullptr) == SQLITE_OK, database);
    return statement;
}

void bind(sqlite3_stmt *statement, int parameter, QByteArrayView bytes) {
    const int bound =
        sqlite3_bind_blob(statement, parameter, bytes.data(), static_cast<int>(bytes.size()), SQLITE_STATIC);
    check(bound == SQLITE_OK, sqlite3_db_handle(statement));
}

QByteArrayView column(sqlite3_stmt *statement, int index) {
    return {static_cast<const char *>(sqlite3_column_blob(statement, index)), sqlite3_column_bytes(statement, index)};
}

/// The least bytes that are greater than all that begin with `text`, which must hold another byte than 0xFF.
QByteArray behind(QByteArray text) {
    while (text.endsWith('\xff'))
        text.chop(1);
    if (text.isEmpty())
        qFatal("nothing is greater than this text");
    text.back() = static_cast<char>(text.back() + 1);
    return text;
}

const char *definition(SqliteTable table) {
    switch (table) {
        case SqliteTable::indexed:
            return "CREATE TABLE entry (place INTEGER PRIMARY KEY, bare BLOB, headword BLOB, "
                   "meanings BLOB)";
        case SqliteTable::clustered:
            return "CREATE TABLE entry (place INTEGER, bare BLOB, headword BLOB, "
                   "meanings BLOB, PRIMARY KEY (bare, place)) WITHOUT ROWID";
    }
    return nullptr;
}

}  // namespace

void make_database(const QByteArray &dictionary, SqliteTable table, const QString &path) {
    sqlite3 *database = nullptr;
    check(sqlite3_open(qPrintable(path), &database) == SQLITE_OK, database);
    execute(database, definition(table));
    execute(database, "BEGIN");
    sqlite3_stmt *insert = prepare(database, "INSERT INTO entry VALUES (?1, ?2, ?3, ?4)");
    sqlite3_int64 place = 0;
    each_entry(dictionary, [&](const szócikk &entry) {
        sqlite3_bind_int64(insert, 1, ++place);
        bind(insert, 2, keresőkulcs(entry.címszó));
        bind(insert, 3, entry.címszó);
        bind(insert, 4, entry.jelentések);
        check(sqlite3_step(insert) == SQLITE_DONE, database);
        sqlite3_reset(insert);
    });
    sqlite3_finalize(insert);
    execute(database, "COMMIT");
    if (table == SqliteTable::indexed)
        execute(database, "CREATE INDEX by_headword ON entry (bare)");
    execute(database, "VACUUM; ANALYZE");
    sqlite3_close(database);
}

SqliteSearch::SqliteSearch(const QString &path) {
    sqlite3 *database = nullptr;
    const int opened = sqlite3_open_v2(qPrintable(path), &database, SQLITE_OPEN_READONLY, nullptr);
    database_.reset(database);
    check(opened == SQLITE_OK, database);
    query_.reset(prepare(database, "SELECT headword, meanings FROM entry WHERE bare >= ?1 AND bare < ?2"));
}

void SqliteSearch::find(const QByteArray &text, Hits &hits) {
    const QByteArray end = behind(text);
    bind(query_.get(), 1, text);
    bind(query_.get(), 2, end);
    int step = sqlite3_step(query_.get());
    for (; step == SQLITE_ROW; step = sqlite3_step(query_.get()))
        hits.add(column(query_.get(), 0), column(query_.get(), 1));
    check(step == SQLITE_DONE, database_.get());
    sqlite3_reset(query_.get());
}
