#include "print/font_choice.h"

#include <QFont>
#include <QRawFont>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *table_name = "OS/2";

// The face's PANOSE number is the ten bytes from offset 32 of the table "OS/2" (OpenType, "OS/2 and
// Windows Metrics Table", field panose). The first byte is the kind, 2 for Latin text; the second is then the style of
// the serifs: 0 any, 1 no fit, 2 (cove) to 10 (triangle) the serif faces, 11 (normal sans) to 15 the sans-serif ones.
constexpr int panose = 32;
constexpr char latin_text = 2;
constexpr char first_serif = 2;
constexpr char last_serif = 10;

}  // namespace

int választott_betűtípus(const QStringList &betűtípusok, const QString &helyettes,
                         const std::function<bool(const QString &)> &talpas) {
    for (const QString &keresett : {u"Times New Roman CE"_s, u"Times New Roman"_s}) {
        const auto hol = static_cast<int>(betűtípusok.indexOf(keresett));
        if (hol >= 0)
            return hol;
    }
    // The toolkit keeps stand-ins in small letters.
    const auto ugyanaz = [&helyettes](const QString &név) { return név.compare(helyettes, Qt::CaseInsensitive) == 0; };
    auto első = std::find_if(betűtípusok.begin(), betűtípusok.end(), ugyanaz);
    if (első == betűtípusok.end())
        első = std::find_if(betűtípusok.begin(), betűtípusok.end(), talpas);
    if (első != betűtípusok.end())
        return static_cast<int>(első - betűtípusok.begin());
    return betűtípusok.isEmpty() ? -1 : 0;
}

bool talpas_betűtípus(const QString &név) {
    const QByteArray table = QRawFont::fromFont(QFont(QStringList{név})).fontTable(table_name);
    if (table.size() < panose + 2 || table[panose] != latin_text)
        return false;
    return table[panose + 1] >= first_serif && table[panose + 1] <= last_serif;
}
