#include "freedict/word_net.h"

#include <QDir>
#include <QSet>
#include <algorithm>
#include <array>
#include <optional>

#include "freedict/dictd_files.h"

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

constexpr std::array<std::pair<char, const char *>, 4> kinds{
    {{'n', "noun"}, {'v', "verb"}, {'a', "adj"}, {'r', "adv"}}};

// How near a word of the same meaning, of a pointed-at one, of one two steps away, and of the explanation is.
constexpr float same = 1.0F;
constexpr float neighbour = 0.5F;
constexpr float second_neighbour = 0.25F;
constexpr float in_gloss = 0.2F;

const QSet<QString> &little_words() {
    static const QStringList list =
        u"a an the of or to in for and by with that is on as be from at not any used his your one having "
        "something someone"_s.split(u' ');
    static const QSet<QString> set(list.begin(), list.end());
    return set;
}

QString word_from(const QByteArray &lemma) {
    return QString::fromLatin1(lemma).replace(u'_', u' ').toLower();
}

/// The words of an explanation, without its examples.
QStringList gloss_words(const QByteArray &gloss) {
    QStringList words;
    QString word;
    const qsizetype examples = gloss.indexOf('"');
    const QByteArray text = gloss.first(examples < 0 ? gloss.size() : examples).toLower() + ' ';
    for (const char character : text) {
        if (character >= 'a' && character <= 'z') {
            word += QLatin1Char(character);
        } else if (!word.isEmpty()) {
            if (!little_words().contains(word))
                words.append(word);
            word.clear();
        }
    }
    return words;
}

QByteArray key_of(char pos, const QString &word) {
    return pos + word.toUtf8();
}

/// Gives each line that is not of the licence to `add`, until it returns false.
template <typename Add>
std::optional<Failure> for_each_line(const QString &path, const Add &add) {
    const FileContent content = files::read_whole(path);
    if (const auto *failure = std::get_if<Failure>(&content))
        return *failure;
    const QList<QByteArray> lines = std::get<QByteArray>(content).split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (!lines[i].isEmpty() && !lines[i].startsWith("  ") && !add(lines[i])) {
            return damaged(path, u"értelmezhetetlen a(z) %1. sora."_s.arg(i + 1));
        }
    }
    return std::nullopt;
}

}  // namespace

std::variant<WordNet, Failure> WordNet::read(const QString &folder) {
    const QDir place(folder);
    WordNet net;
    for (const auto &[pos, name] : kinds) {
        const QString ending = QString::fromLatin1(name);
        if (const auto failure = net.read_data(place.filePath(u"data."_s + ending), pos))
            return *failure;
        if (const auto failure = net.read_index(place.filePath(u"index."_s + ending), pos))
            return *failure;
    }
    if (const auto failure = net.read_counts(place.filePath(u"cntlist.rev"_s)))
        return *failure;
    net.relate();
    return net;
}

std::optional<Failure> WordNet::read_data(const QString &path, char pos) {
    return for_each_line(path, [&](const QByteArray &line) { return add_synset(line, pos); });
}

std::optional<Failure> WordNet::read_index(const QString &path, char pos) {
    return for_each_line(path, [&](const QByteArray &line) { return add_word(line, pos); });
}

std::optional<Failure> WordNet::read_counts(const QString &path) {
    return for_each_line(path, [this](const QByteArray &line) { return add_count(line); });
}

bool WordNet::add_synset(const QByteArray &line, char pos) {
    const qsizetype bar = line.indexOf(" | ");
    const QList<QByteArray> fields = line.left(bar < 0 ? line.size() : bar).split(' ');
    bool is_number = false;
    const int words = fields.value(3).toInt(&is_number, 16);
    const int pointers_at = 4 + 2 * words;
    if (!is_number || fields.size() <= pointers_at)
        return false;
    Raw raw;
    for (int i = 0; i < words; ++i)
        raw.words.append(number_for(word_from(fields[4 + 2 * i])));
    const int pointers = fields[pointers_at].toInt(&is_number);
    if (!is_number || fields.size() < pointers_at + 1 + 4 * pointers)
        return false;
    for (int i = 0; i < pointers; ++i) {
        const QByteArray &sign = fields[pointers_at + 1 + 4 * i];
        const char to = fields[pointers_at + 3 + 4 * i] == "s" ? 'a' : fields[pointers_at + 3 + 4 * i].at(0);
        if (sign == "!")  // the opposite
            continue;
        const int target = synset_at(to, fields[pointers_at + 2 + 4 * i]);
        raw.near.append(target);
        if (sign == "@" || sign == "~" || sign == "&")
            raw.up_and_down.append(target);
    }
    if (bar >= 0) {
        for (const QString &word : gloss_words(line.mid(bar + 3)))
            raw.gloss.append(number_for(word));
    }
    raw_[synset_at(pos, fields[0])] = raw;
    return true;
}

bool WordNet::add_word(const QByteArray &line, char pos) {
    const QList<QByteArray> fields = line.trimmed().split(' ');
    bool is_number = false;
    const int senses = fields.value(2).toInt(&is_number);
    if (!is_number || senses < 1 || fields.size() < senses + 3)
        return false;
    QVector<int> &synsets = synsets_[key_of(pos, word_from(fields[0]))];
    for (int i = 0; i < senses; ++i)
        synsets.append(synset_at(pos, fields[fields.size() - senses + i]));
    return true;
}

bool WordNet::add_count(const QByteArray &line) {
    const QList<QByteArray> fields = line.split(' ');
    const qsizetype percent = line.indexOf('%');
    bool is_number = false;
    const int count = fields.value(2).toInt(&is_number);
    if (percent < 1 || !is_number || fields.size() != 3)
        return false;
    const char type = line.at(percent + 1);
    const char pos = type == '1' ? 'n' : type == '2' ? 'v' : type == '4' ? 'r' : 'a';
    const QByteArray key = key_of(pos, word_from(line.left(percent))) + ' ' + fields[1];
    counts_[key] = std::max(counts_.value(key), count);
    return true;
}

void WordNet::relate() {
    related_.resize(raw_.size());
    for (qsizetype i = 0; i < raw_.size(); ++i) {
        QHash<int, float> strengths;
        const auto add = [&](const QVector<int> &words, float strength) {
            for (const int word : words)
                strengths[word] = std::max(strengths.value(word), strength);
        };
        add(raw_[i].gloss, in_gloss);
        for (const int near : std::as_const(raw_[i].near)) {
            add(raw_[near].words, neighbour);
            if (!raw_[i].up_and_down.contains(near))
                continue;
            for (const int second : std::as_const(raw_[near].up_and_down))
                add(raw_[second].words, second_neighbour);
        }
        add(raw_[i].words, same);
        for (auto strength = strengths.cbegin(); strength != strengths.cend(); ++strength)
            related_[i].append({strength.key(), strength.value()});
        std::ranges::sort(related_[i], {}, &Related::word);
    }
    raw_.clear();
}

int WordNet::number_for(const QString &word) {
    const auto found = numbers_.constFind(word);
    return found != numbers_.constEnd() ? *found : *numbers_.insert(word, static_cast<int>(numbers_.size()));
}

int WordNet::synset_at(char pos, const QByteArray &place) {
    const QByteArray key = pos + place;
    const auto found = places_.constFind(key);
    if (found != places_.constEnd())
        return *found;
    raw_.append(Raw());
    return *places_.insert(key, static_cast<int>(raw_.size()) - 1);
}

QVector<WordNet::Sense> WordNet::senses(const QString &word, bool verb) const {
    QVector<Sense> all;
    double sum = 0;
    for (const auto &[pos, name] : kinds) {
        if ((pos == 'v') != verb)
            continue;
        const QByteArray key = key_of(pos, word);
        const QVector<int> synsets = synsets_.value(key);
        for (qsizetype i = 0; i < synsets.size(); ++i) {
            // A meaning that was never met counts a little, the less the further behind it stands.
            const int met = counts_.value(key + ' ' + QByteArray::number(i + 1));
            all.append({met + 0.5 / static_cast<double>(i + 1), synsets[i]});
            sum += all.last().share;
        }
    }
    for (Sense &sense : all)
        sense.share /= sum;
    return all;
}

int WordNet::count(const QString &word, bool verb) const {
    int sum = 0;
    for (const auto &[pos, name] : kinds) {
        if ((pos == 'v') != verb)
            continue;
        const QByteArray key = key_of(pos, word);
        const qsizetype senses = synsets_.value(key).size();
        for (qsizetype i = 0; i < senses; ++i)
            sum += counts_.value(key + ' ' + QByteArray::number(i + 1));
    }
    return sum;
}

double WordNet::relation(int synset, int word) const {
    const auto &all = related_[synset];
    const auto found = std::ranges::lower_bound(all, word, {}, &Related::word);
    return found != all.end() && found->word == word ? static_cast<double>(found->strength) : 0;
}

}  // namespace freedict
