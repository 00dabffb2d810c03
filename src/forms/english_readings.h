#pragma once

#include <QHash>
#include <QString>
#include <vector>

#include "forms/english_data.h"
#include "forms/form_reader.h"

/// What a form of English says.
namespace english {

inline const QString többes_szám = QStringLiteral("többes szám");
inline const QString birtokos_eset = QStringLiteral("birtokos eset: 's");
inline const QString többes_birtokos = QStringLiteral("többes szám, birtokos eset: s'");
inline const QString harmadik_személy = QStringLiteral("egyes szám harmadik személy");
inline const QString múlt_idő = QStringLiteral("múlt idő");
inline const QString múlt_idejű_igenév = QStringLiteral("múlt idejű melléknévi igenév");
inline const QString múlt_vagy_igenév = QStringLiteral("múlt idő vagy múlt idejű melléknévi igenév");
inline const QString ing_alak = QStringLiteral("-ing alak");
inline const QString középfok = QStringLiteral("középfok");
inline const QString felsőfok = QStringLiteral("felsőfok");
inline const QString ly_határozó = QStringLiteral("-ly: hogyan?");

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
