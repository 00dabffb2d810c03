#include "dictionary/dictionary_search.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "dictionary/line_reader.h"

namespace {

// Positions are counted from 1, as in the whole search; only seek_to() turns them into byte offsets.
constexpr qint64 close_enough = 150;
constexpr qint64 walk_step = 50;
constexpr qint64 lowest = 51;

void seek_to(LineReader &lines, qint64 position) {
    lines.seek(std::max<qint64>(position, 1) - 1);
}

/// Byte order; bytes are unsigned.
bool greater(QByteArrayView left, QByteArrayView right) {
    const auto common = static_cast<size_t>(std::min(left.size(), right.size()));
    const int order = common == 0 ? 0 : std::memcmp(left.data(), right.data(), common);
    return order != 0 ? order > 0 : left.size() > right.size();
}

QByteArrayView beginning(QByteArrayView text, qsizetype length) {
    return text.first(std::min(length, text.size()));
}

/// What lies behind the last line is greater than every key: the search must turn back there.
bool line_is_greater(const std::optional<QByteArrayView> &line, QByteArrayView key) {
    return !line || greater(keresőkulcs(*line), key);
}

/// A position after which the next whole line is not greater than the key, or 0.
qint64 narrow_down(LineReader &lines, qint64 length, QByteArrayView key) {
    qint64 low = 0;
    qint64 high = length;
    qint64 position = length / 2;
    do {
        seek_to(lines, position);
        static_cast<void>(lines.next());
        if (line_is_greater(lines.next(), key)) {
            high = position;
            position = low + (position - low) / 2;
        } else {
            low = position;
            position = position + (high - position) / 2;
        }
    } while (position - low > close_enough && high - position > close_enough);
    return low;
}

/// Seeks to a line that is not behind the first possible hit.
void walk_back(LineReader &lines, qint64 low, QByteArrayView key) {
    low = std::max(low, lowest);
    qint64 start = 0;
    bool too_far = true;
    do {
        low -= walk_step;
        seek_to(lines, low);
        static_cast<void>(lines.next());
        low -= lines.length();
        start = lines.position();
        const auto line = lines.next();
        low -= lines.length();
        too_far = line_is_greater(line, key);
    } while (low >= lowest && too_far);
    lines.seek(start);
}

/// The entry of a line; nothing when the line holds no ":".
std::optional<szócikk> entry_of(QByteArrayView line) {
    const qsizetype colon = line.indexOf(':');
    if (colon < 0)
        return std::nullopt;
    return szócikk{line.first(colon), line.sliced(colon + 1)};
}

/// Remembers which hit is to be selected. The whole headword counts more than its part before the first ",".
class ExactHit final {
  public:
    explicit ExactHit(QByteArrayView key) : key_(key) {}

    void look_at(QByteArrayView headword, int index) {
        const QByteArrayView bare = keresőkulcs(headword);
        const qsizetype comma = bare.indexOf(',');
        if (headword == key_ || (index_ < 0 && (comma < 0 ? bare : bare.first(comma)) == key_))
            index_ = index;
    }

    [[nodiscard]] int selected(int hits) const { return hits > 0 ? std::max(index_, 0) : -1; }

  private:
    QByteArrayView key_;
    int index_ = -1;
};

keresésvége scan(LineReader &lines, QByteArrayView text, QByteArrayView key, const keresésfigyelő &watcher) {
    keresésvége end;
    ExactHit exact(key);
    while (const auto line = lines.next()) {
        const auto entry = entry_of(*line);
        bool past_all_hits = false;
        if (entry) {
            const QByteArrayView bare = keresőkulcs(entry->címszó);
            if (beginning(bare, key.size()) == text || beginning(entry->címszó, text.size()) == text) {
                exact.look_at(entry->címszó, end.darab);
                ++end.darab;
                watcher.találat(*entry);
            }
            past_all_hits = greater(beginning(bare, key.size()), key);
        }
        if (watcher.megálljon()) {
            end.megszakadt = true;
            return end;
        }
        if (past_all_hits)
            break;
    }
    end.kijelölendő = exact.selected(end.darab);
    return end;
}

}  // namespace

keresésvége szótárkereső::keres(QByteArrayView szöveg, const keresésfigyelő &figyelő) {
    const QByteArrayView kulcs = keresőkulcs(szöveg);
    LineReader sorok(forrás_);
    walk_back(sorok, narrow_down(sorok, forrás_.size(), kulcs), kulcs);
    return scan(sorok, szöveg, kulcs, figyelő);
}
