#pragma once

#include <QHash>
#include <QString>
#include <vector>

#include "forms/english_data.h"
#include "forms/form_reader.h"

using namespace Qt::StringLiterals;

/// What a form of English says.
namespace english {

inline const QString többes_szám = u"többes szám"_s;
inline const QString birtokos_eset = u"birtokos eset: 's"_s;
inline const QString többes_birtokos = u"többes szám, birtokos eset: s'"_s;
inline const QString harmadik_személy = u"egyes szám harmadik személy"_s;
inline const QString múlt_idő = u"múlt idő"_s;
inline const QString múlt_idejű_igenév = u"múlt idejű melléknévi igenév"_s;
inline const QString múlt_vagy_igenév = u"múlt idő vagy múlt idejű melléknévi igenév"_s;
inline const QString ing_alak = u"-ing alak"_s;
inline const QString középfok = u"középfok"_s;
inline const QString felsőfok = u"felsőfok"_s;
inline const QString ly_határozó = u"-ly: hogyan?"_s;

}  // namespace english

/// A form that a headword brings itself: "went" of "to go, went, gone".
struct hozott_alak {
    /// With its "to ".
    QString alapalak;
    QString magyarázat;
};

/// Makes readings of one English word: contractions, possessives, irregular forms, then the rules of endings, held
/// against the headwords.
class angol_olvasatkészítő {
  public:
    angol_olvasatkészítő(const angol_adatok &adatok, const QMultiHash<QString, hozott_alak> &hozottak,
                         const címszókérdések &kérdések, QString alak);

    /// The likelier first.
    [[nodiscard]] std::vector<olvasat> olvasatok();

  private:
    /// How sure a reading is; the first the surest.
    enum class bizonyosság { összevonás, rendhagyó, szabályos, önmaga, bizonytalan };
    struct jelölt {
        olvasat mit;
        bizonyosság mennyire;
        int gyakoriság;
    };

    void összevonást_olvas();
    void birtokost_olvas();
    void rendhagyót_olvas();
    void hozottat_olvas();
    void főnevet_olvas();
    void igét_olvas();
    void melléknevet_olvas();
    void önmagát_felveszi();
    void bizonytalanokat_jelöl();
    [[nodiscard]] QStringList rendhagyó_többes_alapjai(const QString &többes) const;

    void főnév(const QString &tő, const QString &magyarázat, bizonyosság mennyire);
    void ige(const QString &tő, const QString &magyarázat, bizonyosság mennyire);
    void melléknév(const QString &tő, const QString &magyarázat, bizonyosság mennyire);
    void felvesz(jelölt új);
    /// What an irregular form of a verb is.
    [[nodiscard]] QString igealak(const QString &tő) const;

    const angol_adatok &adatok_;
    const QMultiHash<QString, hozott_alak> &hozottak_;
    const címszókérdések &kérdések_;
    const QString alak_;
    std::vector<jelölt> jelöltek_;
};
