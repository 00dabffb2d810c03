#include "suggestions/headword_list.h"

#include <QDir>
#include <algorithm>
#include <array>
#include <cstring>
#include <mutex>
#include <numeric>
#include <vector>

#include "dictionary/dictionary_search.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "state/program_folder.h"
#include "suggestions/frequency_file.h"

using namespace Qt::StringLiterals;

namespace {

/// A headword on its way into the group of its length.
struct Read {
    std::uint32_t place;
    std::uint8_t frequency;
    bool verb;
};

/// The headwords of one length, item i of all four belonging together.
struct Group {
    QByteArray keys;
    std::vector<betűhalmaz> letters;
    std::vector<std::uint8_t> frequencies;
    std::vector<std::uint8_t> verbs;
};

int compared(QByteArrayView left, QByteArrayView right) {
    return std::memcmp(left.data(), right.data(), static_cast<size_t>(std::min(left.size(), right.size())));
}

/// The group of the headwords of this length in a dictionary.
Group group_of(std::vector<Read> &headwords, qsizetype length, QByteArrayView dictionary) {
    const auto key_of = [=](const Read &headword) { return dictionary.sliced(headword.place, length); };
    const auto before = [&](const Read &left, const Read &right) { return compared(key_of(left), key_of(right)) < 0; };
    // Those of a whole dictionary are in order.
    if (!std::ranges::is_sorted(headwords, before))
        std::ranges::stable_sort(headwords, before);
    Group group;
    group.keys.reserve(static_cast<qsizetype>(headwords.size()) * length);
    group.letters.reserve(headwords.size());
    group.frequencies.reserve(headwords.size());
    group.verbs.reserve(headwords.size());
    const Read *last = nullptr;
    for (const Read &headword : headwords) {
        // The same word may stand in several lines: to lie, lay, lain and to lie, lied.
        if (last && key_of(*last) == key_of(headword) && last->verb == headword.verb) {
            group.frequencies.back() = std::max(group.frequencies.back(), headword.frequency);
            continue;
        }
        last = &headword;
        group.keys.append(key_of(headword));
        group.letters.push_back(betűk::halmaza(key_of(headword)));
        group.frequencies.push_back(headword.frequency);
        group.verbs.push_back(headword.verb ? 1 : 0);
    }
    return group;
}

/// Hungarian texts hold sentences with commas, English headwords list their further forms behind one.
QByteArrayView without_further_forms(QByteArrayView headword, címszólista::nyelv language) {
    const qsizetype comma = language == címszólista::nyelv::angol ? headword.indexOf(", ") : -1;
    return comma < 0 ? headword : headword.first(comma);
}

}  // namespace

struct címszólista::belső {
    QString folder;
    nyelv language;
    std::once_flag once;
    std::array<Group, leghosszabb + 1> groups;
    QStringList with_forms;
    QStringList missing;

    belső(QString where, nyelv which) : folder(std::move(where)), language(which) {}

    void load() {
        const QString name = language == nyelv::angol ? english_hungarian_file : hungarian_english_file;
        const QDir in(folder);
        const FileContent dictionary = files::read_whole(in.filePath(name));
        if (const auto *failure = std::get_if<Failure>(&dictionary)) {
            missing.append(failure->sentence);
            return;
        }
        const QString frequency_name = language == nyelv::angol ? english_frequency_file : hungarian_frequency_file;
        const FileContent frequencies = files::read_whole(in.filePath(frequency_name));
        if (const auto *failure = std::get_if<Failure>(&frequencies))
            missing.append(failure->sentence);
        const auto &bytes = std::get<QByteArray>(dictionary);
        std::optional<QByteArrayView> known;
        if (const auto *file = std::get_if<QByteArray>(&frequencies)) {
            known = gyakoriságfájl::gyakoriságai(*file, bytes);
            if (!known)
                missing.append(
                    u"A szavak gyakorisága nem ehhez a szótárhoz való: „%1”."_s.arg(in.filePath(frequency_name)));
        }
        const qsizetype lines = take_apart(bytes, known.value_or(QByteArrayView()));
        if (known && known->size() != lines)
            missing.append(u"A szavak gyakorisága sérült: „%1”."_s.arg(in.filePath(frequency_name)));
    }

  private:
    /// Returns the number of lines behind the notice.
    qsizetype take_apart(QByteArrayView dictionary, QByteArrayView frequencies) {
        std::array<std::vector<Read>, leghosszabb + 1> read;
        qsizetype start = dictionary.indexOf('\n') + 1;
        qsizetype lines = 0;
        while (start > 0 && start < dictionary.size()) {
            const qsizetype number = lines++;
            const qsizetype end = dictionary.indexOf('\n', start);
            const QByteArrayView line = dictionary.sliced(start, (end < 0 ? dictionary.size() : end) - start);
            start = end + 1;
            add(dictionary, line,
                number < frequencies.size() ? static_cast<std::uint8_t>(frequencies[number]) : std::uint8_t{0}, read);
            if (end < 0)
                break;
        }
        for (size_t length = 0; length < read.size(); ++length) {
            if (!read[length].empty())
                groups[length] = group_of(read[length], static_cast<qsizetype>(length), dictionary);
            std::vector<Read>().swap(read[length]);
        }
        return lines;
    }

    void add(QByteArrayView dictionary, QByteArrayView line, std::uint8_t frequency,
             std::array<std::vector<Read>, leghosszabb + 1> &read) {
        const qsizetype colon = line.indexOf(':');
        if (colon <= 0)
            return;
        const QByteArrayView headword = line.first(colon);
        const bool english_verb = language == nyelv::angol && headword.startsWith("to ");
        const QByteArrayView key = without_further_forms(english_verb ? keresőkulcs(headword) : headword, language);
        if (key.isEmpty() || key.size() > leghosszabb)
            return;
        if (headword.contains(", ") && language == nyelv::angol)
            with_forms.append(code_page::decode(headword));
        const bool verb = language == nyelv::angol ? english_verb : line.sliced(colon + 1).startsWith("to ");
        read[static_cast<size_t>(key.size())].push_back(
            {static_cast<std::uint32_t>(key.data() - dictionary.data()), frequency, verb});
    }
};

címszólista::címszólista(const QString &programkönyvtár, nyelv melyik)
    : belső_(std::make_unique<belső>(programkönyvtár, melyik)) {}

címszólista::~címszólista() = default;

címszólista::belső &címszólista::betöltve() {
    std::call_once(belső_->once, [this] { belső_->load(); });
    return *belső_;
}

címszólista::hosszcsoport címszólista::csoport(qsizetype hossz) {
    if (hossz <= 0 || hossz > leghosszabb)
        return {};
    const Group &group = betöltve().groups[static_cast<size_t>(hossz)];
    if (group.keys.isEmpty())
        return {};
    return {.hossz = hossz,
            .kulcsok = group.keys,
            .halmazok = group.letters.data(),
            .gyakoriságok = group.frequencies.data(),
            .igék = group.verbs.data()};
}

QVector<címszólista::tétel> címszólista::egyezők(QByteArrayView kulcs) {
    const hosszcsoport group = csoport(kulcs.size());
    qsizetype low = 0;
    for (qsizetype high = group.darab(); low < high;) {
        const qsizetype middle = low + (high - low) / 2;
        if (compared(group.kulcsok.sliced(middle * group.hossz, group.hossz), kulcs) < 0)
            low = middle + 1;
        else
            high = middle;
    }
    QVector<tétel> found;
    for (; low < group.darab() && group.elem(low).kulcs == kulcs; ++low)
        found.append(group.elem(low));
    return found;
}

namespace {

/// The item of a headword, with its "to "; nothing when there is none.
std::optional<címszólista::tétel> item(címszólista &list, címszólista::nyelv language, QStringView headword) {
    const auto bytes = code_page::encode_as_it_is(headword.toString());
    if (!bytes)
        return std::nullopt;
    const bool english = language == címszólista::nyelv::angol;
    const bool verb = english && bytes->startsWith("to ");
    for (const auto &one : list.egyezők(verb ? keresőkulcs(QByteArrayView(*bytes)) : QByteArrayView(*bytes))) {
        if (!english || one.ige == verb)
            return one;
    }
    return std::nullopt;
}

}  // namespace

bool címszólista::van(QStringView címszó) {
    return item(*this, belső_->language, címszó).has_value();
}

int címszólista::gyakoriság(QStringView címszó) {
    const auto found = item(*this, belső_->language, címszó);
    return found ? found->gyakoriság : 0;
}

QStringList címszólista::alakosak() {
    return betöltve().with_forms;
}

címszókérdések címszólista::kérdések() {
    return {.van = [this](QStringView headword) { return van(headword); },
            .gyakoriság = [this](QStringView headword) { return gyakoriság(headword); },
            .alakosak = [this] { return alakosak(); }};
}

QStringList címszólista::hiányok() {
    return betöltve().missing;
}
