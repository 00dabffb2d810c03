#include "platform/code_page.h"

#include <algorithm>
#include <vector>

namespace code_page {
namespace {

constexpr qint16 no_byte = -1;

struct Tables {
    std::array<char16_t, 256> to_text = system_table();
    /// For each UTF-16 code unit its byte, or no_byte.
    std::vector<qint16> to_byte = std::vector<qint16>(0x10000, no_byte);
    std::array<char, 256> to_upper{};

    Tables() {
        for (size_t byte = 0; byte < to_text.size(); ++byte)
            to_byte[to_text[byte]] = static_cast<qint16>(byte);
        for (size_t byte = 0; byte < to_text.size(); ++byte) {
            const char16_t capital = QChar(to_text[byte]).toUpper().unicode();
            to_upper[byte] =
                static_cast<char>(to_byte[capital] == no_byte ? static_cast<qint16>(byte) : to_byte[capital]);
        }
    }
};

const Tables &tables() {
    static const Tables built;
    return built;
}

}  // namespace

QString decode(QByteArrayView bytes) {
    const Tables &table = tables();
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [&](char byte) { return QChar(table.to_text[static_cast<unsigned char>(byte)]); });
    return text;
}

std::optional<QByteArray> encode_as_it_is(const QString &text) {
    const Tables &table = tables();
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char *to = bytes.data();
    for (const QChar character : text) {
        const qint16 byte = table.to_byte[character.unicode()];
        if (byte == no_byte)
            return std::nullopt;
        *to++ = static_cast<char>(byte);
    }
    return bytes;
}

namespace {

QString joined(const QString &text) {
    return text.normalized(QString::NormalizationForm_C);
}

}  // namespace

std::optional<QByteArray> encode(const QString &text) {
    // Joining accents costs more than all the rest and is hardly ever needed.
    auto bytes = encode_as_it_is(text);
    return bytes ? bytes : encode_as_it_is(joined(text));
}

QString first_missing(const QString &text) {
    const QString whole = joined(text);
    for (qsizetype i = 0; i < whole.size(); ++i) {
        if (tables().to_byte[whole[i].unicode()] == no_byte)
            return whole.mid(i, whole[i].isHighSurrogate() ? 2 : 1);
    }
    return {};
}

QByteArray upper(QByteArrayView line) {
    const Tables &table = tables();
    QByteArray raised(line.size(), Qt::Uninitialized);
    std::transform(line.begin(), line.end(), raised.begin(),
                   [&](char byte) { return table.to_upper[static_cast<unsigned char>(byte)]; });
    return raised;
}

}  // namespace code_page
