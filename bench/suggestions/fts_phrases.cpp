#include "suggestions/fts_phrases.h"

#include "platform/code_page.h"
#include "suggestions/word_index.h"

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

void bind(sqlite3_stmt *statement, int parameter, const QByteArray &text) {
    const int bound =
        sqlite3_bind_text(statement, parameter, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    check(bound == SQLITE_OK, sqlite3_db_handle(statement));
}

}  // namespace

void FtsPhrases::make(const QString &program, const QString &path) {
    szómutató index(program);
    sqlite3 *database = nullptr;
    check(sqlite3_open(qPrintable(path), &database) == SQLITE_OK, database);
    execute(database,
            "CREATE VIRTUAL TABLE pairs USING fts5(english, hungarian, detail=none, columnsize=0, "
            "tokenize=\"unicode61 remove_diacritics 0\")");
    execute(database, "BEGIN");
    sqlite3_stmt *insert = prepare(database, "INSERT INTO pairs(rowid, english, hungarian) VALUES (?, ?, ?)");
    for (quint32 number = 0; number < index.párok(); ++number) {
        const auto pair = index.pár_itt(number);
        check(sqlite3_bind_int64(insert, 1, number) == SQLITE_OK, database);
        bind(insert, 2, code_page::decode(pair->angol).toUtf8());
        bind(insert, 3, code_page::decode(pair->magyar).toUtf8());
        check(sqlite3_step(insert) == SQLITE_DONE, database);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    execute(database, "COMMIT");
    execute(database, "INSERT INTO pairs(pairs) VALUES ('optimize')");
    execute(database, "VACUUM");
    sqlite3_close(database);
}

FtsPhrases::FtsPhrases(const QString &path) {
    check(sqlite3_open_v2(qPrintable(path), &database_, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK, database_);
    rows_ = prepare(database_, "SELECT english, hungarian FROM pairs WHERE pairs MATCH ? LIMIT ?");
    count_ = prepare(database_, "SELECT count(*) FROM pairs WHERE pairs MATCH ?");
}

FtsPhrases::~FtsPhrases() {
    sqlite3_finalize(rows_);
    sqlite3_finalize(count_);
    sqlite3_close(database_);
}

int FtsPhrases::first_rows(const char *word, int rows) {
    sqlite3_reset(rows_);
    bind(rows_, 1, word);
    check(sqlite3_bind_int(rows_, 2, rows) == SQLITE_OK, database_);
    int count = 0;
    while (sqlite3_step(rows_) == SQLITE_ROW)
        ++count;
    return count;
}

int FtsPhrases::count(const char *word) {
    sqlite3_reset(count_);
    bind(count_, 1, word);
    check(sqlite3_step(count_) == SQLITE_ROW, database_);
    return sqlite3_column_int(count_, 0);
}
