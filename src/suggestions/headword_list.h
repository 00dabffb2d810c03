#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QVector>
#include <cstdint>
#include <memory>

#include "forms/form_reader.h"
#include "suggestions/letter_sets.h"

/// All headwords of a dictionary and how common they are, in some 20 bytes each: their letters in the program's code
/// page, those of equal length behind each other and in byte order, so that the place of one follows from its number.
/// What stands behind a comma does not count, nor does the "to " of a verb: "to go, went, gone" is "go", a verb.
///
/// Read by the first question, which takes some hundredths of a second; any thread may ask, and the first one reads
/// while others wait.
class címszólista final {
  public:
    enum class nyelv { angol, magyar };

    /// The dictionary am.txt or ma.txt of the program folder, and the file of the frequencies beside it.
    címszólista(const QString &programkönyvtár, nyelv melyik);
    ~címszólista();

    /// True when there is such a headword, an English verb with its "to "; capitals count.
    [[nodiscard]] bool van(QStringView címszó);
    /// How common it is, from 0 to 255; 0 when it is none.
    [[nodiscard]] int gyakoriság(QStringView címszó);
    /// What is missing or damaged, each a sentence for the user that names the file.
    [[nodiscard]] QStringList hiányok();

    /// The English headwords that bring their forms, whole: "to go, went, gone".
    [[nodiscard]] QStringList alakosak();
    /// What an analyser asks about these headwords; this object must outlive it.
    [[nodiscard]] címszókérdések kérdések();

    /// One headword.
    struct tétel {
        /// In the code page, without "to ".
        QByteArrayView kulcs;
        /// An English headword with "to ", a Hungarian one whose first meaning has it.
        bool ige = false;
        int gyakoriság = 0;
    };
    /// The headwords of one length, in byte order. `halmazok` are their sets of letters.
    struct hosszcsoport {
        qsizetype hossz = 0;
        QByteArrayView kulcsok;
        const betűhalmaz *halmazok = nullptr;
        const std::uint8_t *gyakoriságok = nullptr;
        const std::uint8_t *igék = nullptr;
        [[nodiscard]] qsizetype darab() const { return hossz == 0 ? 0 : kulcsok.size() / hossz; }
        [[nodiscard]] tétel elem(qsizetype i) const {
            return {kulcsok.sliced(i * hossz, hossz), igék[i] != 0, gyakoriságok[i]};
        }
    };
    /// Longer headwords are left out.
    static constexpr qsizetype leghosszabb = 80;
    /// Empty for a length that no headword has. What it views stays.
    [[nodiscard]] hosszcsoport csoport(qsizetype hossz);
    /// Those with these letters: none, one, or a noun and a verb.
    [[nodiscard]] QVector<tétel> egyezők(QByteArrayView kulcs);

  private:
    struct belső;
    belső &betöltve();
    std::unique_ptr<belső> belső_;
};
