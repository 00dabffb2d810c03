#include "freedict/import.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "tools/sample_package.h"

using namespace Qt::StringLiterals;

namespace {

using freedict::Counts;
using freedict::Imported;

const QString english = u"freedict-eng-hun"_s;
const QString hungarian = u"freedict-hun-eng"_s;

/// Two small sound packages, and a folder with what an earlier import left.
class Import : public testing::Test {
  protected:
    Import() {
        english_.add("apple /x/\nalma\n").add("to go /x/\n1. megy\n2. jár\n");
        hungarian_.add("alma /x/\napple\n");
        write_packages();
        SamplePackage::put(output(u"am.txt"_s), "old am");
        SamplePackage::put(output(u"ma.txt"_s), "old ma");
    }

    void write_packages() const {
        english_.write(packages_.path(), english);
        hungarian_.write(packages_.path(), hungarian);
    }
    [[nodiscard]] QString package_file(const QString &name) const { return packages_.filePath(name); }
    [[nodiscard]] QString output(const QString &name) const { return output_.filePath(name); }
    [[nodiscard]] QByteArray content(const QString &name) const {
        return std::get<QByteArray>(files::read_whole(output(name)));
    }
    std::variant<QVector<Imported>, Failure> import() {
        return freedict::import_dictionaries({.freedict = packages_.path()}, output_.path(),
                                             [this](const freedict::Dictionary &dictionary, int percent) {
                                                 progress_.append({dictionary.file.toString(), percent});
                                             });
    }
    /// Expects that the import fails with `reason` and leaves everything as it was.
    void expect_failure(const QString &reason) {
        const auto result = import();
        ASSERT_TRUE(std::holds_alternative<Failure>(result));
        EXPECT_EQ(std::get<Failure>(result).sentence.toStdString(), reason.toStdString());
        EXPECT_EQ(content(u"am.txt"_s).toStdString(), "old am");
        EXPECT_EQ(content(u"ma.txt"_s).toStdString(), "old ma");
        EXPECT_EQ(QDir(output_.path()).entryList(QDir::Files).size(), 2);
    }

    SamplePackage english_;
    SamplePackage hungarian_;
    QTemporaryDir packages_;
    QTemporaryDir output_;
    QVector<std::pair<QString, int>> progress_;
};

TEST_F(Import, makes_both_dictionaries_and_counts_what_went_in_and_came_out) {
    const auto result = import();

    const auto &imported = std::get<QVector<Imported>>(result);
    ASSERT_EQ(imported.size(), 2);
    EXPECT_EQ(imported[0].read, (Counts{.entries = 2, .meanings = 3}));
    EXPECT_EQ(imported[0].written, (Counts{.entries = 2, .meanings = 3}));
    EXPECT_EQ(imported[1].written, (Counts{.entries = 1, .meanings = 1}));
    EXPECT_TRUE(content(u"am.txt"_s).endsWith("\r\napple:alma\xF7\r\nto go:j\xE1r\xF7megy\xF7\r\n"));
    EXPECT_TRUE(content(u"ma.txt"_s).endsWith("\r\nalma:apple\xF7\r\n"));
}

TEST_F(Import, makes_the_same_bytes_of_the_same_packages) {
    const QStringList names{u"am.txt"_s, u"kiejt.txt"_s, u"ma.txt"_s};
    QVector<QByteArray> first;
    QVector<QByteArray> second;

    (void)import();
    for (const QString &name : names)
        first.append(content(name));
    (void)import();
    for (const QString &name : names)
        second.append(content(name));

    EXPECT_EQ(first, second);
}

TEST_F(Import, tells_its_progress_from0_to100_for_each_dictionary) {
    (void)import();

    ASSERT_GE(progress_.size(), 4);
    EXPECT_EQ(progress_.first(), std::pair(u"am.txt"_s, 0));
    EXPECT_EQ(progress_.last(), std::pair(u"ma.txt"_s, 100));
    EXPECT_TRUE(std::ranges::is_sorted(progress_));
    EXPECT_EQ(std::ranges::adjacent_find(progress_), progress_.end());
    EXPECT_EQ(progress_.count(std::pair(u"am.txt"_s, 100)), 1);
    EXPECT_EQ(progress_.count(std::pair(u"ma.txt"_s, 0)), 1);
}

TEST_F(Import, writes_nothing_when_the_second_package_states_more_headwords_than_it_has) {
    hungarian_.state(2);
    write_packages();

    expect_failure(u"A(z) „Sample FreeDict Dictionary” leírása szerint 2 címszava van, de 1 szócikke írható ki."_s);
}

TEST_F(Import, writes_nothing_when_an_index_is_missing) {
    QFile::remove(package_file(hungarian + u".index"_s));

    expect_failure(u"A(z) „%1” fájl nem olvasható: a fájl nem létezik."_s.arg(package_file(hungarian + u".index"_s)));
}

TEST_F(Import, writes_nothing_when_the_data_are_missing) {
    QFile::remove(package_file(english + u".dict.dz"_s));

    expect_failure(u"A(z) „%1” fájl nem olvasható: a fájl nem létezik."_s.arg(package_file(english + u".dict.dz"_s)));
}

TEST_F(Import, writes_nothing_when_the_data_are_not_packed) {
    SamplePackage::put(package_file(hungarian + u".dict.dz"_s), hungarian_.data());

    expect_failure(u"A(z) „freedict-hun-eng.dict.dz” fájl sérült: nem ép gzip-fájl."_s);
}

TEST_F(Import, writes_nothing_when_the_index_belongs_to_other_data) {
    SamplePackage::put(package_file(english + u".index"_s), english_.index() + "w\tAAAB\t/////\n");

    expect_failure(
        u"A(z) „freedict-eng-hun.index” fájl sérült: a(z) 4. sorban az adatfájlon kívülre mutató hely van."_s);
}

TEST_F(Import, writes_nothing_when_an_entry_makes_no_sense) {
    hungarian_.add("körte", "körte\npear\n");
    write_packages();

    expect_failure(
        u"A(z) „freedict-hun-eng.dict.dz” fájl sérült: értelmezhetetlen a(z) „körte” szócikk (az index 3. sora)."_s);
}

TEST_F(Import, writes_nothing_when_a_character_has_no_place_in_the_code_page) {
    hungarian_.add("fû /x/\ngrass\n");
    write_packages();

    expect_failure(
        u"A(z) magyar–angol szótár „fû” szócikke nem írható ki: a „û” karakter nincs meg "
        "a windows-1250 kódlapon."_s);
}

TEST_F(Import, writes_nothing_when_a_meaning_holds_a_division_sign) {
    english_.add("sign /x/\n÷\n");
    write_packages();

    expect_failure(u"A(z) angol–magyar szótár „sign” szócikke nem írható ki: a(z) „÷” jelentésben „÷” jel áll."_s);
}

TEST_F(Import, names_the_file_that_cannot_be_written) {
    output_.remove();

    const auto result = import();

    ASSERT_TRUE(std::holds_alternative<Failure>(result));
    EXPECT_EQ(std::get<Failure>(result).sentence,
              u"A(z) „%1” fájl nem írható: a mappa nem létezik."_s.arg(output(u"am.txt"_s)));
}

}  // namespace
