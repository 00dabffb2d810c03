#include "suggestions/word_index.h"

#include <QDir>
#include <QtEndian>
#include <algorithm>
#include <bit>

#include "dictionary/dictionary_search.h"
#include "dictionary/line_reader.h"
#include "platform/files.h"
#include "state/program_folder.h"
#include "suggestions/frequency_file.h"
#include "suggestions/word_index_format.h"

using namespace Qt::StringLiterals;

számhalmaz &számhalmaz::operator&=(const számhalmaz &másik) {
    for (size_t i = 0; i < bits_.size(); ++i)
        bits_[i] &= másik.bits_[i];
    return *this;
}

számhalmaz &számhalmaz::operator-=(const számhalmaz &másik) {
    for (size_t i = 0; i < bits_.size(); ++i)
        bits_[i] &= ~másik.bits_[i];
    return *this;
}

számhalmaz &számhalmaz::operator|=(const számhalmaz &másik) {
    for (size_t i = 0; i < bits_.size(); ++i)
        bits_[i] |= másik.bits_[i];
    return *this;
}

int számhalmaz::darab() const {
    int count = 0;
    for (const std::uint64_t bits : bits_)
        count += std::popcount(bits);
    return count;
}

std::optional<std::uint32_t> számhalmaz::következő(std::uint32_t innen) const {
    size_t at = innen / 64;
    if (at >= bits_.size())
        return std::nullopt;
    std::uint64_t bits = bits_[at] & (~std::uint64_t{0} << (innen % 64));
    while (bits == 0) {
        if (++at == bits_.size())
            return std::nullopt;
        bits = bits_[at];
    }
    return static_cast<std::uint32_t>(at * 64) + static_cast<std::uint32_t>(std::countr_zero(bits));
}

namespace {

namespace format = szómutató_formátum;

/// All bytes of a source; short when reading fails.
QByteArray bytes_of(FileSource &source) {
    QByteArray bytes(source.size(), Qt::Uninitialized);
    qint64 got = 0;
    while (got < bytes.size()) {
        const qint64 more = source.read(got, bytes.data() + got, bytes.size() - got);
        if (more <= 0)
            break;
        got += more;
    }
    bytes.truncate(got);
    return bytes;
}

std::uint32_t number_at(const QByteArray &bytes, qsizetype at) {
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

/// Numbers of four bytes that do not fall and end with `end`; none when they are not so.
std::vector<std::uint32_t> rising(const QByteArray &bytes, qsizetype at, qsizetype count, std::uint32_t end) {
    std::vector<std::uint32_t> numbers(static_cast<size_t>(count));
    for (qsizetype i = 0; i < count; ++i)
        numbers[static_cast<size_t>(i)] = number_at(bytes, at + 4 * i);
    if (numbers.front() != 0 || numbers.back() != end || !std::ranges::is_sorted(numbers))
        numbers.clear();
    return numbers;
}

/// Takes packed numbers off bytes. Behind their end all numbers are 0.
class Unpacker final {
  public:
    explicit Unpacker(QByteArrayView bytes) : bytes_(bytes) {}

    [[nodiscard]] bool at_end() const { return at_ >= bytes_.size(); }
    std::uint32_t next() {
        std::uint32_t number = 0;
        for (unsigned shift = 0; at_ < bytes_.size() && shift < 32; shift += 7) {
            const auto byte = static_cast<unsigned char>(bytes_[at_++]);
            number |= static_cast<std::uint32_t>(byte & 0x7fU) << shift;
            if ((byte & 0x80U) == 0)
                break;
        }
        return number;
    }

    /// Calls `visit` with each number of a list of differences; of those beyond `end` with none.
    template <typename Visit>
    void list(std::uint32_t end, Visit visit) {
        std::uint32_t number = 0;
        for (std::uint32_t left = next(); left > 0 && !at_end(); --left) {
            number += next();
            if (number < end)
                visit(number);
        }
    }

  private:
    QByteArrayView bytes_;
    qsizetype at_ = 0;
};

}  // namespace

szómutató::szómutató(const QString &programkönyvtár) {
    const QDir folder(programkönyvtár);
    const auto opened = [&](const QString &name) {
        const QString path = folder.filePath(name);
        auto source = std::make_unique<FileSource>(path);
        if (!source->is_open())
            missing_.append(files::cannot_read(path, files::reason_not_readable(path)).sentence);
        return source;
    };
    english_ = opened(english_hungarian_file);
    hungarian_ = opened(hungarian_english_file);
    index_ = opened(word_index_file);
    if (!missing_.isEmpty())
        return;
    if (!load(folder.filePath(word_index_file), ujjlenyomat(bytes_of(*english_)), ujjlenyomat(bytes_of(*hungarian_)))) {
        words_ = 0;
        pairs_ = 0;
    }
}

bool szómutató::load(const QString &path, std::uint64_t english, std::uint64_t hungarian) {
    const QByteArray file = bytes_of(*index_);
    const auto print = [&](qsizetype which) {
        return qFromLittleEndian<quint64>(file.constData() + format::ujjlenyomatok + 8 * which);
    };
    if (file.size() < format::fejléc || !file.startsWith(QByteArrayView(format::kezdet, format::kezdethossz)) ||
        print(2) != ujjlenyomat(QByteArrayView(file).sliced(format::fejléc)) || !take_tables(file)) {
        missing_.append(u"A szavak mutatója sérült: „%1”."_s.arg(path));
        return false;
    }
    if (print(0) != english || print(1) != hungarian) {
        missing_.append(u"A szavak mutatója nem ezekhez a szótárakhoz való: „%1”."_s.arg(path));
        return false;
    }
    return true;
}

bool szómutató::take_tables(const QByteArray &file) {
    words_ = number_at(file, format::számok);
    pairs_ = number_at(file, format::számok + 4);
    const std::uint32_t letters = number_at(file, format::számok + 8);
    const std::uint32_t records = number_at(file, format::számok + 12);
    const qint64 beginnings = format::fejléc + qint64{letters};
    const qint64 table = 4 * (qint64{words_} + 1);
    pairs_at_ = beginnings + 2 * table;
    records_at_ = pairs_at_ + format::párhossz * qint64{pairs_};
    if (records_at_ + records != file.size())
        return false;
    letters_ = file.sliced(format::fejléc, letters);
    starts_ = rising(file, beginnings, qsizetype{words_} + 1, letters);
    record_starts_ = rising(file, beginnings + table, qsizetype{words_} + 1, records);
    return !starts_.empty() && !record_starts_.empty();
}

QByteArrayView szómutató::szó(std::uint32_t szám) const {
    return QByteArrayView(letters_).sliced(starts_[szám], starts_[szám + 1] - starts_[szám]);
}

std::uint32_t szómutató::első(QByteArrayView betűk) const {
    std::uint32_t low = 0;
    for (std::uint32_t high = words_; low < high;) {
        const std::uint32_t middle = low + (high - low) / 2;
        if (szó(middle) < betűk)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

std::optional<std::uint32_t> szómutató::keres(QByteArrayView szó) const {
    const std::uint32_t number = első(szó);
    return number < words_ && this->szó(number) == szó ? std::optional(number) : std::nullopt;
}

QByteArray szómutató::records(std::uint32_t first, std::uint32_t behind) {
    QByteArray bytes(record_starts_[behind] - record_starts_[first], Qt::Uninitialized);
    const qint64 got = index_->read(records_at_ + record_starts_[first], bytes.data(), bytes.size());
    bytes.truncate(got);
    return bytes;
}

std::vector<std::uint32_t> szómutató::alakjai(std::uint32_t szám) {
    std::vector<std::uint32_t> forms;
    const QByteArray record = records(szám, szám + 1);
    Unpacker(record).list(words_, [&](std::uint32_t form) { forms.push_back(form); });
    return forms;
}

void szómutató::párjai(std::uint32_t első, std::uint32_t utolsó, számhalmaz &halmaz) {
    if (első >= utolsó)
        return;
    const QByteArray bytes = records(első, utolsó);
    Unpacker record(bytes);
    for (; első < utolsó; ++első) {
        record.list(0, [](std::uint32_t) {});
        record.list(pairs_, [&](std::uint32_t pair) { halmaz.felvesz(pair); });
    }
}

std::optional<szómutató::pár> szómutató::pár_itt(std::uint32_t szám) {
    QByteArray place(format::párhossz, Qt::Uninitialized);
    if (index_->read(pairs_at_ + format::párhossz * qint64{szám}, place.data(), place.size()) != place.size())
        return std::nullopt;
    const std::uint32_t line_place = number_at(place, 0);
    const auto meaning_place = qFromLittleEndian<quint16>(place.constData() + 4);
    const bool other = (line_place & format::másik_szótár) != 0;
    LineReader lines(other ? *hungarian_ : *english_);
    lines.seek(line_place & ~format::másik_szótár);
    const auto line = lines.next();
    if (!line || line->size() < meaning_place)
        return std::nullopt;
    const QByteArrayView rest = line->sliced(meaning_place);
    const qsizetype end = rest.indexOf('\xf7');
    QByteArray headword = line->first(std::max<qsizetype>(0, line->indexOf(':'))).toByteArray();
    QByteArray meaning = rest.first(std::max<qsizetype>(0, end)).toByteArray();
    return other ? pár{.angol = meaning, .magyar = headword} : pár{.angol = headword, .magyar = meaning};
}
