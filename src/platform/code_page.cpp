#include "platform/code_page.h"

#include <QHash>
#include <algorithm>

namespace code_page {
namespace {

struct Tables {
    std::array<char16_t, 256> to_text = system_table();
    QHash<char16_t, char> to_byte;
    std::array<char, 256> to_upper{};

    Tables() {
        for (size_t byte = 0; byte < to_text.size(); ++byte)
            to_byte.insert(to_text[byte], static_cast<char>(byte));
        for (size_t byte = 0; byte < to_text.size(); ++byte) {
            const char16_t capital = QChar(to_text[byte]).toUpper().unicode();
            to_upper[byte] = to_byte.value(capital, static_cast<char>(byte));
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

std::optional<QByteArray> encode(const QString &text) {
    const Tables &table = tables();
    const QString joined = text.normalized(QString::NormalizationForm_C);
    QByteArray bytes(joined.size(), Qt::Uninitialized);
    char *to = bytes.data();
    for (const QChar character : joined) {
        const auto found = table.to_byte.constFind(character.unicode());
        if (found == table.to_byte.constEnd())
            return std::nullopt;
        *to++ = *found;
    }
    return bytes;
}

QString first_missing(const QString &text) {
    const QString joined = text.normalized(QString::NormalizationForm_C);
    for (qsizetype i = 0; i < joined.size(); ++i) {
        if (!tables().to_byte.contains(joined[i].unicode()))
            return joined.mid(i, joined[i].isHighSurrogate() ? 2 : 1);
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
