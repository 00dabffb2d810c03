#include "suggestions/letter_sets.h"

#include <array>

#include "platform/code_page.h"

using namespace Qt::StringLiterals;

namespace betűk {
namespace {

struct Tables {
    std::array<std::uint8_t, 256> base{};
    std::array<char, 256> small{};
    std::array<char, 256> bare{};
    std::array<bool, 256> word{};

    Tables() {
        const std::array<char16_t, 256> letters = code_page::system_table();
        for (size_t byte = 0; byte < letters.size(); ++byte)
            fill(byte, QChar(letters[byte]));
    }

  private:
    static char byte_of(QChar letter, char otherwise) {
        const auto bytes = code_page::encode_as_it_is(QString(letter));
        return bytes && bytes->size() == 1 ? bytes->front() : otherwise;
    }

    void fill(size_t byte, QChar letter) {
        const QChar lower = letter.toLower();
        const QString parts = lower.decomposition();
        const QChar plain = parts.isEmpty() || lower.decompositionTag() != QChar::Canonical ? lower : parts.front();
        small[byte] = byte_of(lower, static_cast<char>(byte));
        bare[byte] = byte_of(plain, small[byte]);
        word[byte] = letter.isLetterOrNumber();
        const char16_t code = plain.unicode();
        base[byte] = code >= u'a' && code <= u'z' ? static_cast<std::uint8_t>(code - u'a') : egyéb;
    }
};

const Tables &tables() {
    static const Tables built;
    return built;
}

size_t index(char byte) {
    return static_cast<unsigned char>(byte);
}

/// Characters that people's keyboards, word processors and web pages put in place of those that are meant.
QChar usual(QChar character) {
    static constexpr std::array<std::array<char16_t, 2>, 14> list{{{u'õ', u'ő'},
                                                                   {u'Õ', u'Ő'},
                                                                   {u'û', u'ű'},
                                                                   {u'Û', u'Ű'},
                                                                   {u'ô', u'ő'},
                                                                   {u'\u2019', u'\''},
                                                                   {u'\u2018', u'\''},
                                                                   {u'`', u'\''},
                                                                   {u'\u00b4', u'\''},
                                                                   {u'\u2010', u'-'},
                                                                   {u'\u2011', u'-'},
                                                                   {u'\u2012', u'-'},
                                                                   {u'\u2013', u'-'},
                                                                   {u'\u2014', u'-'}}};
    for (const auto &[from, to] : list) {
        if (character == from)
            return to;
    }
    return character;
}

/// A letter that the code page lacks without its accent: "naive" for "naïve".
QChar in_code_page(QChar character) {
    const QString parts = code_page::encode_as_it_is(QString(character)) ? QString() : character.decomposition();
    return parts.isEmpty() || !parts.front().isLetter() ? character : parts.front();
}

}  // namespace

std::uint8_t alap(char byte) {
    return tables().base[index(byte)];
}

char kicsi(char byte) {
    return tables().small[index(byte)];
}

char ékezettelen(char byte) {
    return tables().bare[index(byte)];
}

bool szóé(char byte) {
    return tables().word[index(byte)];
}

bool mellékes(char byte) {
    return byte == ' ' || byte == '-' || byte == '\'' || byte == '.';
}

betűhalmaz halmaza(QByteArrayView szöveg) {
    betűhalmaz letters = 0;
    for (const char byte : szöveg) {
        const std::uint8_t letter = alap(byte);
        if (letter == egyéb)
            continue;
        const betűhalmaz once = betűhalmaz{1} << letter;
        letters |= (letters & once) == 0 ? once : once << 26U;
    }
    return letters;
}

std::optional<QByteArray> kódolva(const QString &szöveg) {
    QString text = szöveg.normalized(QString::NormalizationForm_C).simplified();
    text.remove(QChar(0xad));
    for (QChar &character : text)
        character = in_code_page(usual(character));
    return code_page::encode_as_it_is(text);
}

}  // namespace betűk
