#include "suggestions/edit_distance.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>
#include <vector>

#include "platform/code_page.h"

namespace eltérésköltség {
namespace {

bool is_vowel(char bare) {
    return QByteArrayView("aeiouy").contains(bare);
}

/// Consonants that sound alike or lie beside each other in what people write for one another.
bool mixed_up(char left, char right, címszólista::nyelv language) {
    static constexpr std::array<QByteArrayView, 9> hungarian{"bp", "dt", "gk", "fv", "sz", "mn", "cs", "yz", "jy"};
    static constexpr std::array<QByteArrayView, 9> english{"ck", "cs", "sz", "fv", "gj", "kq", "mn", "dt", "bp"};
    const auto &pairs = language == címszólista::nyelv::magyar ? hungarian : english;
    return std::ranges::any_of(pairs, [&](QByteArrayView pair) {
        return (pair[0] == left && pair[1] == right) || (pair[0] == right && pair[1] == left);
    });
}

/// 1 for a vowel that is long, 2 for one with dots, 3 for both; 0 for what has no accent and 4 for other ones.
int accent(char small) {
    static const QByteArray list = code_page::encode(QString::fromUtf16(u"áéíóúöüőű")).value();
    const qsizetype place = list.indexOf(small);
    if (place < 0)
        return betűk::ékezettelen(small) == small ? 0 : 4;
    return place < 5 ? 1 : place < 7 ? 2 : 3;
}

int between_accents(char left, char right, címszólista::nyelv language) {
    const int first = accent(left);
    const int second = accent(right);
    const char bare = betűk::ékezettelen(left);
    if (language == címszólista::nyelv::angol || first == 4 || second == 4 || bare == 'a' || bare == 'e')
        return ékezet;
    const int length = ((first ^ second) & 1) != 0 ? hosszúság : 0;
    return length + (((first ^ second) & 2) != 0 ? hangzás : 0);
}

}  // namespace

int helyettesítés(char ebből, char ebbe, címszólista::nyelv nyelv) {
    const char from = betűk::kicsi(ebből);
    const char to = betűk::kicsi(ebbe);
    if (from == to)
        return 0;
    const char bare_from = betűk::ékezettelen(from);
    const char bare_to = betűk::ékezettelen(to);
    if (bare_from == bare_to)
        return between_accents(from, to, nyelv);
    if (betűk::mellékes(from) && betűk::mellékes(to))
        return mellékes;
    const bool alike = (is_vowel(bare_from) && is_vowel(bare_to)) || mixed_up(bare_from, bare_to, nyelv);
    return alike ? hasonló : betű;
}

}  // namespace eltérésköltség

namespace {

using namespace eltérésköltség;

using Costs = std::vector<std::uint8_t>;

/// The costs of all pairs of bytes. `forgiving`: a missing accent costs next to nothing.
Costs costs_of_pairs(címszólista::nyelv language, bool forgiving) {
    Costs costs(size_t{256} * 256);
    for (size_t from = 0; from < 256; ++from) {
        for (size_t to = 0; to < 256; ++to) {
            const int cost = helyettesítés(static_cast<char>(from), static_cast<char>(to), language);
            const bool only_accents = cost > 0 && cost < hasonló && !betűk::mellékes(static_cast<char>(from));
            costs[from * 256 + to] =
                static_cast<std::uint8_t>(forgiving && only_accents ? std::min(cost, ékezet_nélkül) : cost);
        }
    }
    return costs;
}

const Costs &costs_for(címszólista::nyelv language, bool forgiving) {
    static const std::array<Costs, 4> all{
        costs_of_pairs(címszólista::nyelv::angol, false), costs_of_pairs(címszólista::nyelv::angol, true),
        costs_of_pairs(címszólista::nyelv::magyar, false), costs_of_pairs(címszólista::nyelv::magyar, true)};
    return all[(language == címszólista::nyelv::magyar ? 2U : 0U) + (forgiving ? 1U : 0U)];
}

bool has_accents(QByteArrayView text) {
    return std::ranges::any_of(text, [](char byte) { return betűk::ékezettelen(byte) != betűk::kicsi(byte); });
}

constexpr int far = std::numeric_limits<int>::max() / 2;
constexpr qsizetype most_letters = 128;

/// A letter put in or taken out, at the place `i` of the text that has it.
int alone(QByteArrayView text, qsizetype i) {
    const char byte = text[i];
    if (betűk::mellékes(byte))
        return mellékes;
    const auto same = [&](qsizetype j) {
        return j >= 0 && j < text.size() && betűk::ékezettelen(text[j]) == betűk::ékezettelen(byte);
    };
    if (same(i - 1) || same(i + 1))
        return kettőzés;
    return i == 0 ? betű + elöl : betű;
}

/// True when `two` stands in the first text before its end and `one`, which sounds the same, in the second one.
bool same_sound(QByteArrayView first, qsizetype first_end, QByteArrayView second, qsizetype second_end,
                bool hungarian) {
    const QByteArrayView two = hungarian ? "ly" : "ph";
    const char one = hungarian ? 'j' : 'f';
    return first_end >= 2 && second_end >= 1 && betűk::kicsi(second[second_end - 1]) == one &&
           betűk::kicsi(first[first_end - 2]) == two[0] && betűk::kicsi(first[first_end - 1]) == two[1];
}

}  // namespace

/// Three rows of the matrix: that of the place in the text, and the two above it.
struct eltérésmérő::rács {
    std::array<std::array<int, most_letters + 1>, 3> sorok;
    std::array<int, most_letters> szóé{};

    [[nodiscard]] int &at(qsizetype i, qsizetype j) {
        return sorok[static_cast<size_t>(i % 3)][static_cast<size_t>(j)];
    }
    [[nodiscard]] int at(qsizetype i, qsizetype j) const {
        return sorok[static_cast<size_t>(i % 3)][static_cast<size_t>(j)];
    }
};

eltérésmérő::eltérésmérő(QByteArray szöveg, címszólista::nyelv nyelv)
    : szöveg_(std::move(szöveg)),
      magyar_(nyelv == címszólista::nyelv::magyar),
      helyett_(costs_for(nyelv, !has_accents(szöveg_)).data()) {}

int eltérésmérő::lépés(const rács &eddig, QByteArrayView szó, qsizetype i, qsizetype j) const {
    const char mine = szöveg_[i - 1];
    const char its = szó[j - 1];
    int cost = helyett(mine, its);
    if (cost >= hasonló && (i == 1 || j == 1))
        cost += elöl;
    int best = eddig.at(i - 1, j - 1) + cost;
    best = std::min(best, eddig.at(i - 1, j) + alone(szöveg_, i - 1));
    best = std::min(best, eddig.at(i, j - 1) + eddig.szóé[static_cast<size_t>(j - 1)]);
    if (i >= 2 && j >= 2 && cost != 0) {
        const int crossed = helyett(mine, szó[j - 2]) + helyett(szöveg_[i - 2], its);
        if (crossed < hasonló)
            best = std::min(best, eddig.at(i - 2, j - 2) + csere + crossed);
    }
    if (same_sound(szöveg_, i, szó, j, magyar_))
        best = std::min(best, eddig.at(i - 2, j - 1) + hangjel);
    if (same_sound(szó, j, szöveg_, i, magyar_))
        best = std::min(best, eddig.at(i - 1, j - 2) + hangjel);
    return best;
}

int eltérésmérő::mér(QByteArrayView szó, int határ) const {
    const qsizetype rows = szöveg_.size();
    const qsizetype columns = szó.size();
    if (rows > most_letters || columns > most_letters)
        return far;
    // No step to the side is cheaper than this one, so nothing beyond the band can come back within the bound.
    const qsizetype band = határ / mellékes + 1;
    rács matrix;
    matrix.at(0, 0) = 0;
    for (qsizetype j = 1; j <= columns; ++j) {
        matrix.szóé[static_cast<size_t>(j - 1)] = alone(szó, j - 1);
        matrix.at(0, j) = j > band ? far : matrix.at(0, j - 1) + matrix.szóé[static_cast<size_t>(j - 1)];
    }
    int lowest_above = 0;
    for (qsizetype i = 1; i <= rows; ++i) {
        const qsizetype first = std::max<qsizetype>(1, i - band);
        const qsizetype last = std::min(columns, i + band);
        matrix.at(i, first - 1) = first == 1 && i <= band ? matrix.at(i - 1, 0) + alone(szöveg_, i - 1) : far;
        int lowest = matrix.at(i, first - 1);
        for (qsizetype j = first; j <= last; ++j) {
            matrix.at(i, j) = lépés(matrix, szó, i, j);
            lowest = std::min(lowest, matrix.at(i, j));
        }
        if (last < columns)
            matrix.at(i, last + 1) = far;
        // Two letters at a time may pass over a row.
        if (lowest > határ && lowest_above > határ)
            return far;
        lowest_above = lowest;
    }
    return std::abs(rows - columns) > band ? far : matrix.at(rows, columns);
}

int eltérésmérő::szokásos_határ() const {
    const auto letters = std::ranges::count_if(szöveg_, [](char byte) { return betűk::szóé(byte); });
    constexpr std::array<int, 8> bounds{0, 0, kettőzés, betű, hangjel, 17, 2 * betű, 2 * betű + 2};
    return letters < static_cast<qsizetype>(bounds.size()) ? bounds[static_cast<size_t>(letters)] : 2 * betű + hangzás;
}

int eltérésmérő::legnagyobb_többlet(int határ) {
    return határ >= hangjel ? std::max(határ / kettőzés, 2) : határ / kettőzés;
}

int eltérésmérő::legnagyobb_eltérés(int határ) {
    // For its price nothing changes more sets than another letter instead of one, then two for one of the same sound.
    const auto by_letters = [](int cost) { return 2 * (cost / hasonló) + (cost % hasonló >= kettőzés ? 1 : 0); };
    return határ < hangjel ? by_letters(határ) : std::max(by_letters(határ), 3 + by_letters(határ - hangjel));
}
