#include "freedict/supplement_merge.h"

#include <QHash>
#include <QSet>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

/// One direction's entries while meanings are put in front of them.
class Direction final {
  public:
    Direction(QVector<Entry> &entries, Language language) : entries_(entries), language_(language) {
        for (qsizetype i = 0; i < entries.size(); ++i)
            places_[base_form(entries[i].headword, language)].append(i);
        fronts_.resize(entries.size());
    }

    enum class Rank { fixed, led, anywhere };

    void put(const QString &headword, const QString &meaning, Rank rank) {
        const QVector<qsizetype> targets = targets_for(headword, meaning);
        for (const qsizetype target : targets) {
            QStringList &meanings = entries_[target].meanings;
            const qsizetype at = place_in(meanings, meaning);
            const QString text = at < 0 ? meaning : meanings[at];
            if (at < 0) {
                meanings.append(text);
                ++added_.meanings;
            }
            if (rank != Rank::anywhere)
                (rank == Rank::fixed ? fronts_[target].fixed : fronts_[target].led).append(text);
        }
    }

    /// The headword as it stands here; the text itself where it does not.
    [[nodiscard]] QString headword_for(const QString &text) const {
        const QVector<qsizetype> places = places_.value(text);
        return places.isEmpty() ? text : entries_[selected(places, text)].headword;
    }

    void bring_to_front() {
        for (qsizetype i = 0; i < entries_.size(); ++i) {
            Fronts &front = fronts_[i];
            front.fixed.removeDuplicates();
            const QSet<QString> fixed(front.fixed.begin(), front.fixed.end());
            front.led.removeDuplicates();
            front.led.removeIf([&](const QString &text) { return fixed.contains(text); });
            QStringList meanings = front.fixed + front.led + entries_[i].meanings;
            meanings.removeDuplicates();
            entries_[i].meanings = meanings;
            entries_[i].fixed = front.fixed.size();
            entries_[i].led = front.led.size();
        }
    }

    [[nodiscard]] Added added() const { return added_; }

  private:
    struct Fronts {
        QStringList fixed;
        QStringList led;
    };

    /// Further forms do not make a meaning another one.
    [[nodiscard]] qsizetype place_in(const QStringList &meanings, const QString &meaning) const {
        for (qsizetype i = 0; i < meanings.size(); ++i) {
            if (base_form(meanings[i], other(language_)) == base_form(meaning, other(language_)))
                return i;
        }
        return -1;
    }

    /// Of entries with one base form, the one that a search for it selects: the one without further forms, but the
    /// first of the file for a verb, whose "to " keeps it from being equal to what is typed.
    [[nodiscard]] qsizetype selected(const QVector<qsizetype> &places, const QString &base) const {
        for (const qsizetype place : places) {
            if (entries_[place].headword == base && (places.size() == 1 || !base.startsWith(verb_mark)))
                return place;
        }
        return *std::ranges::min_element(places, {}, [this](qsizetype place) {
            const QString &headword = entries_[place].headword;
            return headword + (headword.contains(u',') ? QString() : u":"_s);
        });
    }

    [[nodiscard]] bool are_different_verbs(const Entry &first, const Entry &second) const {
        const QStringList forms = further_forms(first.headword, language_);
        const QStringList others = further_forms(second.headword, language_);
        return first.headword.startsWith(verb_mark) && !forms.isEmpty() && !others.isEmpty() &&
               std::ranges::none_of(forms, [&](const QString &form) { return others.contains(form); });
    }

    QVector<qsizetype> targets_for(const QString &headword, const QString &meaning) {
        QVector<qsizetype> &places = places_[base_form(headword, language_)];
        if (places.isEmpty()) {
            places.append(entries_.size());
            entries_.append(Entry{headword, {}});
            fronts_.append(Fronts());
            ++added_.entries;
            return places;
        }
        const qsizetype first = selected(places, base_form(headword, language_));
        QVector<qsizetype> targets;
        bool belongs_elsewhere = false;
        for (const qsizetype place : std::as_const(places)) {
            if (place == first || place_in(entries_[place].meanings, meaning) < 0)
                continue;
            targets.append(place);
            belongs_elsewhere = belongs_elsewhere || are_different_verbs(entries_[place], entries_[first]);
        }
        if (!belongs_elsewhere || place_in(entries_[first].meanings, meaning) >= 0)
            targets.append(first);
        return targets;
    }

    QVector<Entry> &entries_;
    Language language_;
    QHash<QString, QVector<qsizetype>> places_;
    QVector<Fronts> fronts_;
    Added added_;
};

}  // namespace

Merged merge_supplement(Lexicon &lexicon, const Supplement &supplement) {
    Direction english(lexicon.english, Language::english);
    Direction hungarian(lexicon.hungarian, Language::hungarian);
    const auto direction = [&](Language language) -> Direction & {
        return language == Language::english ? english : hungarian;
    };
    for (const Language language : {Language::english, Language::hungarian}) {
        for (const SupplementEntry &entry : supplement.in(language)) {
            for (const SupplementMeaning &meaning : entry.meanings) {
                const QString text = direction(other(language)).headword_for(meaning.text);
                direction(language).put(entry.headword, text, Direction::Rank::fixed);
            }
        }
    }
    for (const Language language : {Language::english, Language::hungarian}) {
        for (const SupplementEntry &entry : supplement.in(language)) {
            const QString headword = direction(language).headword_for(entry.headword);
            for (const SupplementMeaning &meaning : entry.meanings) {
                if (meaning.back == SupplementMeaning::Back::no)
                    continue;
                const bool in_front = meaning.back == SupplementMeaning::Back::in_front;
                direction(other(language))
                    .put(meaning.text, headword, in_front ? Direction::Rank::led : Direction::Rank::anywhere);
            }
        }
    }
    english.bring_to_front();
    hungarian.bring_to_front();
    return {english.added(), hungarian.added()};
}

}  // namespace freedict
