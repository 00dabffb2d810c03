#include "freedict/pronunciations.h"

#include <QSet>
#include <QStringList>
#include <algorithm>

#include "dictionary/dictionary_search.h"
#include "freedict/dictionary_text.h"

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

constexpr QChar primary(u'ˈ');
constexpr QChar secondary(u'ˌ');

bool is_consonant(QChar sound) {
    return QStringView(u"bdfhjklmnpstvwzðŋɡɫɹʃʒθgrx").contains(sound);
}

/// What an English syllable can begin with, beside nothing and one consonant.
bool begins_syllable(const QString &consonants) {
    static const QStringList list =
        u"tʃ dʒ pl bl kl ɡl fl sl pɹ bɹ tɹ dɹ kɹ ɡɹ fɹ θɹ ʃɹ tw dw kw ɡw θw sw sp st sk sm sn sf spl spɹ stɹ skɹ "
        "skw pj bj tj dj kj fj vj mj nj hj lj sj θj zj ɡj spj stj skj"_s.split(u' ');
    static const QSet<QString> beginnings(list.begin(), list.end());
    return consonants.size() <= 1 ? consonants != u"ŋ" : beginnings.contains(consonants);
}

/// Of the consonants before a stressed vowel those that belong to its syllable: as many as can begin one, and at the
/// beginning of a word all.
qsizetype onset_length(const QString &consonants, bool word_begins) {
    if (word_begins)
        return consonants.size();
    for (qsizetype length = consonants.size(); length > 0; --length) {
        // "tʃ" and "dʒ" are one sound.
        const bool torn =
            length < consonants.size() &&
            ((consonants[consonants.size() - length] == u'ʃ' && consonants[consonants.size() - length - 1] == u't') ||
             (consonants[consonants.size() - length] == u'ʒ' && consonants[consonants.size() - length - 1] == u'd'));
        if (!torn && begins_syllable(consonants.last(length)))
            return length;
    }
    return 0;
}

QString with_moved_stress(const QString &word) {
    QString result;
    for (const QChar sound : word) {
        if (sound != primary && sound != secondary) {
            result += sound;
            continue;
        }
        qsizetype first = result.size();
        while (first > 0 && is_consonant(result[first - 1]))
            --first;
        const qsizetype onset = onset_length(result.sliced(first), first == 0);
        result.insert(result.size() - onset, sound);
    }
    return result;
}

/// The package reads these abbreviations letter by letter.
QString read_out(const QString &headword_word, const QString &sounds) {
    if (headword_word == u"sg")
        return u"sˈʌmθɪŋ"_s;
    if (headword_word == u"sy")
        return u"sˈʌmbədi"_s;
    if (headword_word == u"sy's")
        return u"sˈʌmbədiz"_s;
    return sounds;
}

}  // namespace

QString mended_pronunciation(const QString &headword, const QString &pronunciation) {
    QStringList sounds = pronunciation.split(u' ', Qt::SkipEmptyParts);
    const QStringList words = headword.split(u' ', Qt::SkipEmptyParts);
    // Word by word only where the package has as many pronounced words as written ones.
    const bool same_count = sounds.size() == words.size();
    for (qsizetype i = 0; i < sounds.size(); ++i)
        sounds[i] = with_moved_stress(same_count ? read_out(words[i], sounds[i]) : sounds[i]);
    return sounds.join(u' ');
}

QByteArray pronunciation_text(const Package &package, const QVector<Entry> &entries) {
    QVector<QByteArray> lines;
    for (const Entry &entry : entries) {
        const QString sounds = mended_pronunciation(entry.headword, entry.pronunciation);
        if (!sounds.isEmpty() && !sounds.contains(u':'))
            lines.append((entry.headword + u':' + sounds).toUtf8());
    }
    std::ranges::stable_sort(lines, {}, [](const QByteArray &line) { return keresőkulcs(QByteArrayView(line)); });
    QString notice =
        u"A FreeDict (freedict.org) angol–magyar szótárának kiejtési jelölése, a hangsúlyjelek a szótag "
        "elé téve. %1, kiadása %2, %3 címszó. Felhasználási feltételei – %4"_s.arg(
            package.name, package.edition, QString::number(package.stated_headwords), package.licence);
    QByteArray text = notice.replace(u':', u" –"_s).simplified().toUtf8() + "\r\n";
    for (const QByteArray &line : lines)
        text += line + "\r\n";
    return text;
}

}  // namespace freedict
