#include <gtest/gtest.h>

#include <QDir>
#include <QSet>

#include "dictionary/byte_source.h"
#include "dictionary/dictionary_search.h"
#include "dictionary/meanings.h"
#include "platform/code_page.h"
#include "support/files_for_tests.h"
#include "support/printing.h"
#include "support/test_places.h"
#include "word_lists/word_list_source.h"

using namespace Qt::StringLiterals;

using namespace Qt::StringLiterals;

namespace {

using word_lists::Source;

QVector<Source> all_sources() {
    QVector<Source> all;
    const QDir folder(u"" ZIMBORA_WORD_LISTS ""_s);
    for (const QString &file : folder.entryList({u"*.txt"_s}, QDir::Files, QDir::Name)) {
        const auto source = word_lists::parse(read_file(folder.filePath(file)), file);
        if (const auto *failure = std::get_if<Failure>(&source))
            ADD_FAILURE() << failure->sentence.toStdString();
        else
            all.append(std::get<Source>(source));
    }
    return all;
}

/// The first five meanings of every entry whose headword, with or without its "to " and what follows a comma, is
/// `text`.
QStringList meanings_of(FileSource &dictionary, const QString &text) {
    QStringList all;
    const QString bare = keresőkulcs(QStringView(text)).toString();
    const keresésfigyelő watcher{
        .találat =
            [&](const szócikk &entry) {
                const QString headword = code_page::decode(entry.címszó);
                const QString without_to = keresőkulcs(QStringView(headword)).toString();
                if (headword == text || without_to == bare || without_to.section(u',', 0, 0) == bare)
                    all += jelentések(code_page::decode(entry.jelentések)).mid(0, 5);
            },
        .megálljon = [] { return false; }};
    static_cast<void>(szótárkereső(dictionary).keres(code_page::encode(bare).value_or(QByteArray()), watcher));
    return all;
}

TEST(WordLists, are_at_least_24_of_30_to_60_pairs_with_names_of_their_own_and_levels) {
    const QVector<Source> sources = all_sources();
    QSet<QString> names;
    for (const Source &source : sources) {
        names.insert(source.name);
        EXPECT_GE(source.pairs.size(), 30) << source.name.toStdString();
        EXPECT_LE(source.pairs.size(), 60) << source.name.toStdString();
        EXPECT_TRUE(QStringList({u"A1 "_s, u"A2 "_s, u"B1 "_s, u"B2 "_s}).contains(source.name.left(3)))
            << source.name.toStdString();
    }
    EXPECT_GE(names.size(), 24);
    EXPECT_EQ(names.size(), sources.size());
}

TEST(WordLists, hold_what_the_dictionary_says_first_or_the_reason_why_it_does_not) {
    FileSource dictionary(test_places::in_program(u"am.txt"_s));
    ASSERT_TRUE(dictionary.is_open());
    for (const Source &source : all_sources()) {
        for (qsizetype i = 0; i < source.pairs.size(); ++i) {
            if (!source.reasons[i].isEmpty())
                continue;
            const QStringList known = meanings_of(dictionary, source.pairs[i].angol);
            for (const QString &meaning : source.pairs[i].magyar.split(u", "_s)) {
                EXPECT_TRUE(known.contains(meaning) || known.contains(source.pairs[i].magyar))
                    << source.name.toStdString() << ": " << source.pairs[i].angol.toStdString() << " - "
                    << meaning.toStdString() << "; the dictionary: " << known.join(u"; "_s).toStdString();
            }
        }
    }
}

TEST(WordLists, lie_in_the_program_folder_under_their_names) {
    for (const Source &source : all_sources())
        EXPECT_TRUE(QFile::exists(test_places::in_program(u"szószedetek/%1.szs"_s.arg(source.name))))
            << source.name.toStdString();
}

}  // namespace
