#include "suggestions/frequency_file.h"

#include <QtEndian>

namespace {

constexpr QByteArrayView magic("ZIMGYK1\0", 8);
constexpr qsizetype header = 16;

}  // namespace

namespace gyakoriságfájl {

QByteArray fájlja(QByteArrayView szótár, const QByteArray &gyakoriságok) {
    QByteArray file = magic.toByteArray();
    file.resize(header);
    qToLittleEndian<quint64>(ujjlenyomat(szótár), file.data() + magic.size());
    return file + gyakoriságok;
}

std::optional<QByteArrayView> gyakoriságai(QByteArrayView fájl, QByteArrayView szótár) {
    if (fájl.size() < header || !fájl.startsWith(magic) ||
        qFromLittleEndian<quint64>(fájl.data() + magic.size()) != ujjlenyomat(szótár))
        return std::nullopt;
    return fájl.sliced(header);
}

}  // namespace gyakoriságfájl

std::uint64_t ujjlenyomat(QByteArrayView bájtok) {
    constexpr std::uint64_t prime = 0x100000001b3;
    std::uint64_t hash = 0xcbf29ce484222325;
    qsizetype at = 0;
    for (; at + 8 <= bájtok.size(); at += 8)
        hash = (hash ^ qFromLittleEndian<quint64>(bájtok.data() + at)) * prime;
    std::uint64_t last = 0;
    for (unsigned shift = 0; at < bájtok.size(); ++at, shift += 8)
        last |= std::uint64_t{static_cast<unsigned char>(bájtok[at])} << shift;
    hash = (hash ^ last) * prime;
    return (hash ^ static_cast<std::uint64_t>(bájtok.size())) * prime;
}
