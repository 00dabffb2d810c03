#include "suggestions/phrase_search.h"

#include <QByteArrayMatcher>
#include <QSet>
#include <algorithm>
#include <array>
#include <limits>
#include <optional>

#include "platform/code_page.h"
#include "suggestions/letter_sets.h"
#include "suggestions/word_index.h"

namespace {

constexpr qsizetype most_words = 8;
/// Inside of longer words only what is long enough to mean something.
constexpr qsizetype shortest_inside = 3;
constexpr qsizetype first_page = 40;
constexpr qsizetype largest_page = 640;

struct Run {
    qsizetype start;
    qsizetype length;
};

/// The words of a text in the code page: runs of letters and digits.
QVector<Run> runs_of(QByteArrayView text) {
    QVector<Run> runs;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!betűk::szóé(text[at]))
            continue;
        const qsizetype start = at;
        while (at < text.size() && betűk::szóé(text[at]))
            ++at;
        runs.append({start, at - start});
    }
    return runs;
}

QByteArray small(QByteArrayView text) {
    QByteArray letters(text.size(), Qt::Uninitialized);
    std::ranges::transform(text, letters.begin(), betűk::kicsi);
    return letters;
}

QByteArray bare(QByteArrayView text) {
    QByteArray letters(text.size(), Qt::Uninitialized);
    std::ranges::transform(text, letters.begin(), betűk::ékezettelen);
    return letters;
}

/// The words of a question, each once.
QVector<QByteArray> words_of(const QString &text) {
    QVector<QByteArray> words;
    const auto bytes = betűk::kódolva(text);
    if (!bytes)
        return words;
    for (const Run &run : runs_of(*bytes)) {
        const QByteArray word = small(QByteArrayView(*bytes).sliced(run.start, run.length));
        if (!words.contains(word) && words.size() < most_words)
            words.append(word);
    }
    return words;
}

/// How a word of the index answers one of the question, the best first.
enum tier { as_typed, other_form, beginning, inside, tier_count };

/// The words of the index that answer one word of the question.
struct Answers {
    QByteArray word;
    /// Up to `other_form`; the tiers behind are found by looking.
    QSet<QByteArray> whole;
    std::array<std::optional<számhalmaz>, tier_count> pairs;
};

}  // namespace

struct kifejezéskereső::belső {
    QString folder;
    elemzők analysers;
    std::optional<szómutató> index;

    szómutató &loaded() {
        if (!index)
            index.emplace(folder);
        return *index;
    }

    /// The word itself and what it may be a form of, one word each.
    [[nodiscard]] QVector<QByteArray> bases(const QByteArray &word) const {
        QVector<QByteArray> all{word};
        for (alakelemző *analyser : {analysers.angol, analysers.magyar}) {
            if (!analyser)
                continue;
            for (const olvasat &reading : analyser->olvasatok(code_page::decode(word))) {
                const auto base = words_of(reading.alapalak);
                const bool verb = base.size() == 2 && base.front() == "to";
                if ((base.size() == 1 || verb) && !all.contains(base.last()))
                    all.append(base.last());
            }
        }
        return all;
    }

    void add_whole(Answers &answers, tier tier, std::uint32_t number) {
        auto &pairs = answers.pairs[tier];
        if (!pairs)
            pairs.emplace(index->párok());
        if (!answers.whole.contains(index->szó(number).toByteArray())) {
            answers.whole.insert(index->szó(number).toByteArray());
            index->párjai(number, number + 1, *pairs);
        }
    }

    void add_with_forms(Answers &answers, std::uint32_t number) {
        add_whole(answers, other_form, number);
        for (const std::uint32_t form : index->alakjai(number))
            add_whole(answers, other_form, form);
    }

    /// Words that are written so but for their accents.
    void add_accented(Answers &answers) {
        for (std::uint32_t i = 0; i < index->szavak(); ++i) {
            const QByteArrayView word = index->szó(i);
            const auto same = [](char mine, char its) { return mine == betűk::ékezettelen(its); };
            if (word.size() == answers.word.size() && std::ranges::equal(answers.word, word, same))
                add_with_forms(answers, i);
        }
    }

    /// What stands whole: as typed, and in other forms.
    [[nodiscard]] Answers whole_words(const QByteArray &word) {
        Answers answers{.word = word, .whole = {}, .pairs = {}};
        const auto typed = index->keres(word);
        if (typed)
            add_whole(answers, as_typed, *typed);
        else if (bare(word) == word)
            add_accented(answers);
        for (const QByteArray &base : bases(word)) {
            const auto number = index->keres(base);
            if (!number)
                continue;
            add_with_forms(answers, *number);
        }
        for (auto &pairs : answers.pairs) {
            if (!pairs)
                pairs.emplace(index->párok());
        }
        *answers.pairs[other_form] |= *answers.pairs[as_typed];
        return answers;
    }

    /// The pairs whose words begin with the word; each tier holds those before it.
    void add_beginnings(Answers &answers) {
        QByteArray behind = answers.word;
        behind.append('\xff');
        számhalmaz &pairs = *answers.pairs[beginning];
        index->párjai(index->első(answers.word), index->első(behind), pairs);
        pairs |= *answers.pairs[other_form];
    }

    void add_insides(Answers &answers, const std::function<bool()> &stop) {
        számhalmaz &pairs = *answers.pairs[inside];
        pairs |= *answers.pairs[beginning];
        if (answers.word.size() < shortest_inside)
            return;
        const QByteArrayMatcher matcher(answers.word);
        for (std::uint32_t i = 0; i < index->szavak(); ++i) {
            if (i % 4096 == 0 && stop())
                return;
            const QByteArrayView word = index->szó(i);
            if (word.size() > answers.word.size() && matcher.indexIn(word, 1) > 0)
                index->párjai(i, i + 1, pairs);
        }
    }
};

namespace {

/// Where in a text the words of the question stand, from left to right.
QVector<szövegrész> marks_in(const QByteArray &text, const QVector<Answers> &question) {
    QVector<szövegrész> marks;
    const QByteArray letters = small(text);
    for (const Run &run : runs_of(letters)) {
        const QByteArray word = letters.sliced(run.start, run.length);
        const bool whole = std::ranges::any_of(question, [&](const Answers &one) { return one.whole.contains(word); });
        if (whole) {
            marks.append({run.start, run.length});
            continue;
        }
        for (const Answers &one : question) {
            const qsizetype at = word.indexOf(one.word);
            if (at == 0 || (at > 0 && one.word.size() >= shortest_inside)) {
                marks.append({run.start + at, one.word.size()});
                break;
            }
        }
    }
    return marks;
}

kifejezés row_of(const szómutató::pár &pair, const QVector<Answers> &question, bool whole) {
    return {.angol = code_page::decode(pair.angol),
            .magyar = code_page::decode(pair.magyar),
            .angol_találatok = marks_in(pair.angol, question),
            .magyar_találatok = marks_in(pair.magyar, question),
            .egész_szó = whole};
}

/// Tells the rows in pages that grow.
class Pages final {
  public:
    Pages(szómutató &index, const QVector<Answers> &question, const kifejezésfigyelő &watcher)
        : index_(index), question_(question), watcher_(watcher) {}

    /// False when the search is to end.
    bool tell(const számhalmaz &pairs, bool whole) {
        for (auto pair = pairs.következő(0); pair; pair = pairs.következő(*pair + 1)) {
            if (told_ + static_cast<int>(page_.size()) >= watcher_.legfeljebb)
                return false;
            if (const auto texts = index_.pár_itt(*pair))
                page_.append(row_of(*texts, question_, whole));
            if (page_.size() >= size_ && !turn())
                return false;
        }
        return page_.isEmpty() || turn();
    }
    /// Tells what is left; how many were told in all.
    int finish() {
        if (!page_.isEmpty())
            static_cast<void>(turn());
        return told_;
    }

  private:
    bool turn() {
        if (watcher_.megálljon()) {
            page_.clear();
            return false;
        }
        told_ += static_cast<int>(page_.size());
        watcher_.lap(page_);
        page_.clear();
        size_ = std::min(2 * size_, largest_page);
        return true;
    }

    szómutató &index_;
    const QVector<Answers> &question_;
    const kifejezésfigyelő &watcher_;
    QVector<kifejezés> page_;
    qsizetype size_ = first_page;
    int told_ = 0;
};

/// The pairs that have all words, each at least as good as the tier says.
számhalmaz all_words(const QVector<Answers> &question, tier tier) {
    számhalmaz pairs = *question.front().pairs[tier];
    for (const Answers &one : question)
        pairs &= *one.pairs[tier];
    return pairs;
}

}  // namespace

kifejezéskereső::kifejezéskereső(const QString &programkönyvtár, elemzők alakok)
    : belső_(std::make_unique<belső>(belső{.folder = programkönyvtár, .analysers = alakok, .index = {}})) {}

kifejezéskereső::~kifejezéskereső() = default;

int kifejezéskereső::keres(const QString &szöveg, const kifejezésfigyelő &figyelő) {
    const QVector<QByteArray> words = words_of(szöveg);
    if (words.isEmpty() || belső_->loaded().párok() == 0)
        return 0;
    QVector<Answers> question;
    for (const QByteArray &word : words) {
        if (figyelő.megálljon())
            return 0;
        question.append(belső_->whole_words(word));
    }
    Pages pages(belső_->loaded(), question, figyelő);
    számhalmaz told(belső_->loaded().párok());
    for (const tier step : {as_typed, other_form, beginning, inside}) {
        for (Answers &one : question) {
            if (figyelő.megálljon())
                return pages.finish();
            if (step == beginning)
                belső_->add_beginnings(one);
            else if (step == inside)
                belső_->add_insides(one, figyelő.megálljon);
        }
        számhalmaz pairs = all_words(question, step);
        pairs -= told;
        told |= pairs;
        if (!pages.tell(pairs, step <= other_form))
            break;
    }
    return pages.finish();
}

int kifejezéskereső::egész_szavak_száma(const QString &szöveg) {
    const QVector<QByteArray> words = words_of(szöveg);
    if (words.isEmpty() || belső_->loaded().párok() == 0)
        return 0;
    QVector<Answers> question;
    for (const QByteArray &word : words)
        question.append(belső_->whole_words(word));
    return all_words(question, other_form).darab();
}

QStringList kifejezéskereső::hiányok() {
    return belső_->loaded().hiányok();
}
