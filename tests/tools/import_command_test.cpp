#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include "tools/sample_package.h"

using namespace Qt::StringLiterals;

namespace {

struct Outcome {
    int code;
    QString out;
    QString error;
};

/// The command zimbora-import with a folder of sound packages and an empty folder for its output.
class ImportCommand : public testing::Test {
  protected:
    ImportCommand() {
        SamplePackage().add("to go /x/\n1. megy\n2. jár\n").write(packages_.path(), u"freedict-eng-hun"_s);
        SamplePackage().add("alma /x/\napple\n").write(packages_.path(), u"freedict-hun-eng"_s);
        for (const char *name : {"data.noun", "data.verb", "data.adj", "data.adv", "index.noun", "index.verb",
                                 "index.adj", "index.adv", "cntlist.rev", "english-words.10"})
            SamplePackage::put(knowledge_.filePath(QString::fromLatin1(name)), "");
        for (const char *name : {"en_GB", "en_US", "hu_HU"}) {
            SamplePackage::put(knowledge_.filePath(QString::fromLatin1(name) + u".aff"_s), "SET UTF-8\n");
            SamplePackage::put(knowledge_.filePath(QString::fromLatin1(name) + u".dic"_s), "1\nalma\n");
        }
    }

    /// The command with all that the packages are compared with made nearly empty: the real ones take seconds to read.
    Outcome run_quickly(const QStringList &arguments) const {
        return run(QStringList{u"--wordnet"_s, knowledge_.path(), u"--scowl"_s, knowledge_.path(), u"--hunspell"_s,
                               knowledge_.path()} +
                   arguments);
    }

    static Outcome run(const QStringList &arguments) {
        QProcess process;
        process.start(u"" ZIMBORA_IMPORT ""_s, arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
    [[nodiscard]] QStringList output_files() const { return QDir(output_.path()).entryList(QDir::Files); }

    QTemporaryDir packages_;
    QTemporaryDir knowledge_;
    QTemporaryDir output_;
};

TEST_F(ImportCommand, writes_both_dictionaries_and_prints_the_counts) {
    const Outcome outcome = run_quickly({u"--freedict"_s, packages_.path(), output_.path()});

    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out.toStdString(),
              "am.txt (angol–magyar szótár): 1 szócikkből és 2 jelentésből 1 szócikk és 2 jelentés lett.\n"
              "ma.txt (magyar–angol szótár): 1 szócikkből és 1 jelentésből 1 szócikk és 1 jelentés lett.\n");
    EXPECT_EQ(output_files(), (QStringList{u"am.txt"_s, u"kiejt.txt"_s, u"ma.txt"_s}));
}

TEST_F(ImportCommand, leaves_one_plain_line_a_dictionary_in_a_log) {
    const Outcome outcome = run_quickly({u"--freedict="_s + packages_.path(), output_.path()});

    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.error.toStdString(), "angol–magyar szótár átalakítása…\nmagyar–angol szótár átalakítása…\n");
}

TEST_F(ImportCommand, fails_with_a_message_and_no_file_when_a_package_is_damaged) {
    SamplePackage().state(3).write(packages_.path(), u"freedict-hun-eng"_s);

    const Outcome outcome = run_quickly({u"--freedict"_s, packages_.path(), output_.path()});

    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.out.isEmpty());
    EXPECT_TRUE(outcome.error.endsWith(
        u"A(z) „Sample FreeDict Dictionary” leírása szerint 3 címszava van, de 0 szócikke írható ki.\n"));
    EXPECT_TRUE(output_files().isEmpty());
}

TEST_F(ImportCommand, explains_itself_in_hungarian) {
    const Outcome outcome = run({u"--help"_s});

    EXPECT_EQ(outcome.code, 0);
    EXPECT_TRUE(outcome.out.startsWith(u"Használat: zimbora-import [KAPCSOLÓK] KIMENETI-MAPPA\n"));
    EXPECT_TRUE(outcome.error.isEmpty());
}

TEST_F(ImportCommand, explains_a_words_meanings_with_what_each_feature_adds) {
    const Outcome outcome = run({u"--freedict"_s, packages_.path(), u"--explain"_s, u"go"_s});

    EXPECT_EQ(outcome.code, 0);
    EXPECT_TRUE(outcome.out.startsWith(u"to go (angol–magyar)\n")) << outcome.out.toStdString();
    EXPECT_TRUE(outcome.out.contains(u"  megy "));
    EXPECT_TRUE(outcome.out.contains(u"szavak oda "));
    EXPECT_TRUE(output_files().isEmpty());
}

TEST_F(ImportCommand, says_that_a_word_to_explain_is_nowhere) {
    const Outcome outcome = run_quickly({u"--freedict"_s, packages_.path(), u"--explain=nincs"_s});

    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.error.toStdString(), "A(z) „nincs” szó egyik szótárban sincs meg.\n");
}

TEST_F(ImportCommand, prints_the_typing_errors_that_it_mends) {
    SamplePackage().add("apple  tree /x/\nalmafa\n").write(packages_.path(), u"freedict-eng-hun"_s);

    const Outcome outcome = run_quickly({u"--freedict"_s, packages_.path(), u"--mends"_s});

    EXPECT_EQ(outcome.code, 0);
    EXPECT_TRUE(outcome.out.startsWith(u"apple  tree → apple tree (szóköz)\n")) << outcome.out.toStdString();
}

TEST_F(ImportCommand, tells_a_damaged_line_of_the_supplement_with_file_and_line) {
    const QTemporaryDir supplement;
    QDir(supplement.path()).mkdir(u"english"_s);
    QDir(supplement.path()).mkdir(u"hungarian"_s);
    const QString file = supplement.filePath(u"english/a.txt"_s);
    SamplePackage::put(file, "good | adjective | jó\nto and fro | adverb | ide-oda\n");

    const Outcome outcome =
        run_quickly({u"--freedict"_s, packages_.path(), u"--supplement"_s, supplement.path(), output_.path()});

    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.error.endsWith(
        u"A(z) „%1” fájl 2. sorában „to ” kezdi a(z) „to and fro” címszót, pedig nem ige.\n"_s.arg(file)))
        << outcome.error.toStdString();
    EXPECT_TRUE(output_files().isEmpty());
}

TEST_F(ImportCommand, says_what_is_wrong_with_its_arguments) {
    const std::pair<QStringList, const char *> wrong[] = {
        {{}, "Hiányzik a kimeneti mappa.\n"},
        {{u"--gyors"_s, output_.path()}, "Ismeretlen kapcsoló: „--gyors”.\n"},
        {{output_.path(), u"--freedict"_s}, "A --freedict kapcsoló után hiányzik a mappa.\n"},
        {{output_.path(), u"--freedict="_s}, "A --freedict kapcsoló után hiányzik a mappa.\n"},
        {{output_.path(), u"más"_s}, "Csak egy kimeneti mappa adható meg, fölösleges: „más”.\n"},
    };
    for (const auto &[arguments, message] : wrong) {
        const Outcome outcome = run(arguments);

        EXPECT_EQ(outcome.code, 2);
        EXPECT_TRUE(outcome.error.startsWith(QString::fromUtf8(message))) << message;
        EXPECT_TRUE(output_files().isEmpty());
    }
}

}  // namespace
