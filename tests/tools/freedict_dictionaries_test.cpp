// The real packages: what the program's dictionaries are made of, and what they are afterwards.

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "freedict/dictd_files.h"
#include "freedict/import.h"
#include "platform/code_page.h"

using namespace Qt::StringLiterals;

namespace freedict {

/// GoogleTest's way of showing a test's parameter; by itself it would print addresses.
void PrintTo(const Dictionary &dictionary, std::ostream *out) {
    *out << qPrintable(dictionary.file.toString());
}

}  // namespace freedict

namespace {

using freedict::Dictionary;

QByteArray bytes_of(const QString &path) {
    return std::get<QByteArray>(files::read_whole(path));
}

/// The packages alone: what the supplement, the spelling dictionaries and WordNet add would hide what is lost.
freedict::Sources sources() {
    return {.freedict = u"" ZIMBORA_FREEDICT_DIR ""_s, .scowl = u"" ZIMBORA_SCOWL_DIR ""_s};
}

/// One import for all tests.
class FreedictDictionaries : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        folder_ = new QTemporaryDir;
        const auto result = freedict::import_dictionaries(sources(), folder_->path(), [](const Dictionary &, int) {});
        ASSERT_TRUE(std::holds_alternative<QVector<freedict::Imported>>(result))
            << qPrintable(std::get<Failure>(result).sentence);
    }
    static void TearDownTestSuite() {
        delete folder_;
        folder_ = nullptr;
    }

    /// The lines of a made file without their ends; the first is the notice.
    static QList<QByteArray> lines_of(const Dictionary &dictionary) {
        const QByteArray bytes = bytes_of(folder_->filePath(dictionary.file.toString()));
        EXPECT_TRUE(bytes.endsWith("\r\n"));
        EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
        EXPECT_EQ(bytes.count('\r'), bytes.count("\r\n"));
        QList<QByteArray> lines = bytes.split('\n');
        lines.removeLast();
        for (QByteArray &line : lines)
            line.chop(1);
        return lines;
    }
    static QList<QByteArray> entry_lines_of(const Dictionary &dictionary) { return lines_of(dictionary).mid(1); }

    static QTemporaryDir *folder_;
};
QTemporaryDir *FreedictDictionaries::folder_ = nullptr;

class EachFreedictDictionary : public FreedictDictionaries, public testing::WithParamInterface<Dictionary> {};

/// A headword, and behind it its meanings by their letters: the order is another test's business.
QString sorted_entry(const QString &headword, QStringList meanings) {
    meanings.sort();
    return headword + u'\n' + meanings.join(u'\n') + u'\n';
}

QString sorted_line(const QByteArray &line) {
    const qsizetype colon = line.indexOf(':');
    QStringList meanings = code_page::decode(line.mid(colon + 1)).split(u'÷');
    EXPECT_TRUE(meanings.takeLast().isEmpty()) << line.toStdString();
    return sorted_entry(code_page::decode(line.left(colon)), meanings);
}

/// A text without what is mended when there is no spelling dictionary: headwords that list fewer forms than another
/// one, doubled blanks, a bracket.
QString mended_text(const QString &text) {
    static const QHash<QString, QString> joined{
        {u"to beat, beat"_s, u"to beat, beat, beaten"_s}, {u"to crow, crew"_s, u"to crow, crowed, crew"_s},
        {u"to get, got"_s, u"to get, got, gotten"_s},     {u"to hide, hid"_s, u"to hide, hid, hidden"_s},
        {u"to hold, held, holden"_s, u"to hold, held"_s}, {u"to slink, slank, slunk"_s, u"to slink, slunk"_s},
        {u"to spin, span, spun"_s, u"to spin, spun"_s},   {u"to stink, stunk, stunk"_s, u"to stink, stank, stunk"_s}};
    if (text == u"sorozat (pókerban(")
        return u"sorozat (pókerban)"_s;
    const QString simple = text.simplified();
    return joined.value(simple, simple);
}

/// The same of each definition of the package, mended.
QStringList mended_definitions(const Dictionary &dictionary) {
    const QString base = u"" ZIMBORA_FREEDICT_DIR "/"_s + dictionary.package.toString();
    const QByteArray index = bytes_of(base + u".index"_s);
    const auto unpacked = freedict::unpacked(bytes_of(base + u".dict.dz"_s), base);
    const auto found = freedict::definitions(index, std::get<QByteArray>(unpacked), base);
    const QRegularExpression pronunciation(u" /[^/\n]+/\n"_s);
    const QRegularExpression number(u"^[0-9]+\\. "_s);
    QHash<QString, QStringList> entries;
    for (const auto &definition : std::get<QVector<freedict::Definition>>(found)) {
        if (definition.index_word.startsWith("00database"))
            continue;
        QString text = QString::fromUtf8(definition.text).replace(u'`', u'\'');
        if (dictionary.file == u"am.txt")
            text.replace(u'û', u'ű').replace(u'ô', u'ő');
        else
            text.replace(u"válasszatok: tett"_s, u"válasszatok – tett"_s);
        QStringList lines = text.replace(pronunciation, u"\n"_s).split(u'\n', Qt::SkipEmptyParts);
        const QString headword = lines.takeFirst();
        if (lines.size() > 1)
            lines.replaceInStrings(number, QString());
        for (QString &line : lines)
            line = mended_text(line);
        entries[mended_text(headword)] += lines;
    }
    QStringList definitions;
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        entry->removeDuplicates();
        definitions.append(sorted_entry(entry.key(), *entry));
    }
    return definitions;
}

/// Every pair of a headword and a meaning, in order; the dictionary's columns exchanged when `exchanged` is true.
QStringList pairs_of(const QList<QByteArray> &lines, bool exchanged) {
    QStringList pairs;
    for (const QByteArray &line : lines) {
        const qsizetype colon = line.indexOf(':');
        const QString headword = code_page::decode(line.left(colon));
        const QStringList meanings = code_page::decode(line.mid(colon + 1)).split(u'÷', Qt::SkipEmptyParts);
        for (const QString &meaning : meanings)
            pairs.append(exchanged ? meaning + u'=' + headword : headword + u'=' + meaning);
    }
    pairs.sort();
    return pairs;
}

TEST_P(EachFreedictDictionary, hold_each_definition_of_the_package_with_all_its_meanings) {
    QStringList written;
    const QList<QByteArray> lines = entry_lines_of(GetParam());
    std::ranges::transform(lines, std::back_inserter(written), sorted_line);
    QStringList expected = mended_definitions(GetParam());

    written.sort();
    expected.sort();

    ASSERT_EQ(written.size(), expected.size());
    for (qsizetype i = 0; i < written.size(); ++i)
        ASSERT_EQ(written[i].toStdString(), expected[i].toStdString());
}

TEST_P(EachFreedictDictionary, stand_in_byte_order_with_a_leading_to_left_out_of_account) {
    std::vector<std::string> keys;
    for (const QByteArray &line : entry_lines_of(GetParam()))
        keys.push_back((line.startsWith("to ") ? line.mid(3) : line).toStdString());

    EXPECT_TRUE(std::ranges::is_sorted(keys));
}

TEST_P(EachFreedictDictionary, have_a_headword_without_colon_and_a_meaning_in_every_line) {
    const QRegularExpression entry(u"^[^:÷]+:([^÷]+÷)+$"_s);
    qsizetype more_colons = 0;

    for (const QByteArray &line : entry_lines_of(GetParam())) {
        ASSERT_TRUE(entry.match(code_page::decode(line)).hasMatch()) << line.toStdString();
        more_colons += line.count(':') - 1;
    }

    // One meaning of the English–Hungarian package holds a colon, and it is the headword mended in the other one.
    EXPECT_EQ(more_colons, GetParam().file == u"am.txt" ? 1 : 0);
}

TEST_P(EachFreedictDictionary, begin_with_a_notice_that_the_search_skips) {
    const QByteArray notice = lines_of(GetParam()).first();

    EXPECT_GE(notice.size(), 101);
    EXPECT_FALSE(notice.contains(':'));
    EXPECT_FALSE(notice.contains('\xF7'));
    EXPECT_TRUE(notice.contains("FreeDict"));
    EXPECT_TRUE(notice.toLower().contains("gnu general public license"));
}

std::string name_of(const testing::TestParamInfo<Dictionary> &dictionary) {
    return dictionary.param.file == u"am.txt" ? "EnglishHungarian" : "HungarianEnglish";
}
INSTANTIATE_TEST_SUITE_P(Both, EachFreedictDictionary, testing::ValuesIn(freedict::dictionaries), name_of);

TEST_F(FreedictDictionaries, hold_all_the_packages_entries) {
    // Ten English and twelve Hungarian ones were doubled and are joined.
    EXPECT_EQ(entry_lines_of(freedict::english_hungarian).size(), 89'679 - 10);
    EXPECT_EQ(entry_lines_of(freedict::hungarian_english).size(), 139'935 - 12);
}

TEST_F(FreedictDictionaries, come_out_the_same_byte_by_byte_a_second_time) {
    const QTemporaryDir again;

    (void)freedict::import_dictionaries(sources(), again.path(), [](const Dictionary &, int) {});

    for (const char *name : {"am.txt", "ma.txt", "kiejt.txt"}) {
        const QString file = QString::fromLatin1(name);
        EXPECT_EQ(bytes_of(again.filePath(file)), bytes_of(folder_->filePath(file))) << name;
    }
}

TEST_F(FreedictDictionaries, name_their_edition_and_licence) {
    const QString english = code_page::decode(lines_of(freedict::english_hungarian).first());
    const QString hungarian = code_page::decode(lines_of(freedict::hungarian_english).first());

    EXPECT_TRUE(english.contains(u"English-Hungarian FreeDict Dictionary, kiadása 0.2.1, 89679 címszó"));
    EXPECT_TRUE(english.endsWith(u"GNU General Public License ver. 2.0 and any later version."));
    EXPECT_TRUE(hungarian.contains(u"Hungarian-English FreeDict Dictionary, kiadása 0.4.1, 139935 címszó"));
    EXPECT_TRUE(hungarian.endsWith(u"GNU GENERAL PUBLIC LICENSE, version 2.0."));
}

// The two packages were made of one list of pairs, and only one of them writes û and ô: equal pairs show that the mends
// restore the letters that were meant.
TEST_F(FreedictDictionaries, hold_the_same_pairs_in_both_directions) {
    QStringList english = pairs_of(entry_lines_of(freedict::english_hungarian), false);
    QStringList hungarian = pairs_of(entry_lines_of(freedict::hungarian_english), true);
    english.replaceInStrings(u"válasszatok: tett"_s, u"válasszatok – tett"_s);

    english.sort();

    EXPECT_EQ(hungarian.size(), 254'734 - 97);
    ASSERT_EQ(english.size(), hungarian.size());
    EXPECT_EQ(std::ranges::mismatch(english, hungarian).in1, english.end());
}

}  // namespace
