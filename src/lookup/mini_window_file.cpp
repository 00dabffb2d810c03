#include "lookup/mini_window_file.h"

#include <QByteArrayList>
#include <algorithm>
#include <limits>

#include "state/number_text.h"

namespace kisablakfájl {
namespace {

/// Three numbers take some 40 bytes; the file may be any.
constexpr qsizetype longest_read = 4096;

/// The number of `word` if it is whole and fits into Number.
template <typename Number>
std::optional<Number> number(const QByteArray &word) {
    bool whole = false;
    const qlonglong value = word.toLongLong(&whole);
    if (!whole || value < std::numeric_limits<Number>::min() || value > std::numeric_limits<Number>::max())
        return std::nullopt;
    return static_cast<Number>(value);
}

/// How a number is written into text files: with a blank in the place of its sign and one behind it.
QByteArray line(qint64 value) {
    return számszöveg(value).toLatin1() + " \r\n";
}

}  // namespace

std::optional<értékek> olvas(QByteArrayView bytes) {
    const QByteArrayView beginning = bytes.first(std::min(bytes.size(), longest_read));
    const QByteArrayList words = beginning.toByteArray().replace(',', ' ').simplified().split(' ');
    if (words.size() < 3)
        return std::nullopt;
    const auto bal = number<qint32>(words[0]);
    const auto fent = number<qint32>(words[1]);
    const auto mód = number<qint16>(words[2]);
    if (!bal || !fent || !mód)
        return std::nullopt;
    return értékek{*bal, *fent, *mód};
}

QByteArray ír(const értékek &mit) {
    return line(mit.bal) + line(mit.fent) + line(mit.mód);
}

}  // namespace kisablakfájl
