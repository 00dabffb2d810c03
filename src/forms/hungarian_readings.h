#pragma once

#include <QString>
#include <vector>

#include "forms/form_reader.h"
#include "forms/hungarian_analysis.h"
#include "forms/morphology.h"

/// Makes readings of the analyses of one form: chooses the base among the headwords and weighs how likely each reading
/// is.
class olvasatkészítő {
  public:
    olvasatkészítő(const szóelemző &szóelemző, const címszókérdések &kérdések, QString alak);

    /// The likelier first; empty when no analysis leads to a headword.
    [[nodiscard]] std::vector<olvasat> olvasatok();

  private:
    struct súlyozott {
        olvasat mit;
        /// The less the likelier.
        int súly = 0;
        /// What the explanation tells; empty for pronouns and exceptions.
        QStringList címkék = {};
    };

    void elemzést_olvas(const elemzés &nyers);
    void névmást_olvas(const QStringList &címkék, const QString &szófaj);
    /// A derived word that is a headword itself is the likelier base: "főzés" of "főzést", rather than "főz".
    void képzett_alapot_keres(const elemzés &elemzés, const QStringList &címkék);
    /// How many of the first tags of `egész` make the word `kezdet`; 0 when it is another one.
    [[nodiscard]] qsizetype egyező_képzők(const QString &kezdet, const elemzés &egész, const QStringList &címkék) const;
    void önmagát_felveszi();
    void felvesz(olvasat mit, int súly, const QStringList &címkék = {});
    /// Leaves out readings that only take another one's base apart: "dolog + -z" beside "dolgozik".
    void felbontottakat_elhagy();
    [[nodiscard]] std::vector<olvasat> rendezve();

    const szóelemző &szóelemző_;
    const címszókérdések &kérdések_;
    const QString alak_;
    std::vector<elemzés> elemzések_;
    std::vector<súlyozott> jelöltek_;
};
