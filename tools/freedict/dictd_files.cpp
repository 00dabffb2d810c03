#define ZLIB_CONST  // the input of zlib is read only
#include "freedict/dictd_files.h"

#include <zlib.h>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

constexpr int gzip_only = 15 + 16;  // the largest window, and a gzip header and check sum around the data
constexpr qsizetype piece = 1 << 20;

/// zlib's state of unpacking one gzip member.
class Inflater final {
  public:
    explicit Inflater(QByteArrayView gzip) : rest_(gzip) { inflateInit2(&stream_, gzip_only); }
    ~Inflater() { inflateEnd(&stream_); }

    Inflater(const Inflater &) = delete;
    Inflater &operator=(const Inflater &) = delete;

    /// Appends the next bytes to `bytes`; the result is zlib's: Z_OK to go on, Z_STREAM_END at the sound end of the
    /// member, anything else for broken or missing input.
    int append_to(QByteArray &bytes) {
        if (stream_.avail_in == 0) {
            const QByteArrayView next = rest_.first(std::min(piece, rest_.size()));
            stream_.next_in = reinterpret_cast<const Bytef *>(next.data());
            stream_.avail_in = static_cast<uInt>(next.size());
            rest_ = rest_.sliced(next.size());
        }
        const qsizetype before = bytes.size();
        bytes.resize(before + piece);
        stream_.next_out = reinterpret_cast<Bytef *>(bytes.data() + before);
        stream_.avail_out = static_cast<uInt>(piece);
        const int status = inflate(&stream_, Z_NO_FLUSH);
        bytes.chop(static_cast<qsizetype>(stream_.avail_out));
        return status;
    }

    [[nodiscard]] bool all_read() const { return stream_.avail_in == 0 && rest_.isEmpty(); }

  private:
    z_stream stream_{};
    QByteArrayView rest_;
};

std::optional<qsizetype> base64_digit(char digit) {
    if (digit >= 'A' && digit <= 'Z')
        return digit - 'A';
    if (digit >= 'a' && digit <= 'z')
        return digit - 'a' + 26;
    if (digit >= '0' && digit <= '9')
        return digit - '0' + 52;
    if (digit == '+')
        return 62;
    if (digit == '/')
        return 63;
    return std::nullopt;
}

std::optional<qsizetype> base64_number(QByteArrayView digits) {
    constexpr qsizetype most_digits = 9;  // 54 bits: the sum of two numbers cannot overflow either
    if (digits.isEmpty() || digits.size() > most_digits)
        return std::nullopt;
    qsizetype number = 0;
    for (const char character : digits) {
        const std::optional<qsizetype> digit = base64_digit(character);
        if (!digit)
            return std::nullopt;
        number = number * 64 + *digit;
    }
    return number;
}

/// The definition of one line of the index, or the reason, as the end of a sentence, why there is none.
std::variant<Definition, QString> definition_of(QByteArrayView line, QByteArrayView data) {
    const qsizetype first_tab = line.indexOf('\t');
    const qsizetype second_tab = line.indexOf('\t', first_tab + 1);
    if (first_tab < 1 || second_tab < 0)
        return u"nem három oszlop van."_s;
    const auto offset = base64_number(line.sliced(first_tab + 1, second_tab - first_tab - 1));
    const auto length = base64_number(line.sliced(second_tab + 1));
    if (!offset || !length)
        return u"értelmezhetetlen szám van."_s;
    if (*offset + *length > data.size())
        return u"az adatfájlon kívülre mutató hely van."_s;
    return Definition{line.first(first_tab), data.sliced(*offset, *length)};
}

}  // namespace

FileContent unpacked(QByteArrayView gzip, const QString &file) {
    Inflater inflater(gzip);
    QByteArray bytes;
    int status = Z_OK;
    while (status == Z_OK)
        status = inflater.append_to(bytes);
    if (status != Z_STREAM_END)
        return damaged(file, u"nem ép gzip-fájl."_s);
    if (!inflater.all_read())
        return damaged(file, u"a gzip-adatok vége után is van benne valami."_s);
    return bytes;
}

std::variant<QVector<Definition>, Failure> definitions(QByteArrayView index, QByteArrayView data,
                                                       const QString &index_file) {
    QVector<Definition> found;
    found.reserve(index.count('\n'));
    while (!index.isEmpty()) {
        const qsizetype end = index.indexOf('\n');
        if (end < 0)
            return damaged(index_file, u"az utolsó sora csonka."_s);
        const auto definition = definition_of(index.first(end), data);
        if (const auto *reason = std::get_if<QString>(&definition))
            return damaged(index_file, u"a(z) %1. sorban %2"_s.arg(QString::number(found.size() + 1), *reason));
        found.append(std::get<Definition>(definition));
        index = index.sliced(end + 1);
    }
    return found;
}

Failure damaged(const QString &file, const QString &reason) {
    return {u"A(z) „%1” fájl sérült: %2"_s.arg(file, reason)};
}

}  // namespace freedict
