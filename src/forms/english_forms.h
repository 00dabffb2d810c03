#pragma once

#include <QHash>
#include <QMutex>
#include <QString>
#include <vector>

#include "forms/english_data.h"
#include "forms/english_readings.h"
#include "forms/form_reader.h"

/// The forms that headwords bring themselves, by form; of a verb the past and the participle, else the plural. What is
/// no form
/// ("now, now!") is left out.
[[nodiscard]] QMultiHash<QString, hozott_alak> hozott_alakok(const QStringList &címszavak);

/// Explains English forms with the rules of endings, WordNet's exceptions to them, and the forms that headwords bring.
/// The exceptions lie in a folder of the program folder beside a list of their check sums.
class angol_alakelemző final : public alakelemző {
  public:
    /// `mappa`: the folder of the data.
    angol_alakelemző(QString mappa, címszókérdések kérdések);

    [[nodiscard]] std::vector<olvasat> olvasatok(const QString &alak) override;
    [[nodiscard]] QStringList hiányok() override;
    [[nodiscard]] QString sor(const QString &alak, const olvasat &olvasat) const override;

  private:
    void betölt();

    const QString mappa_;
    const címszókérdések kérdések_;
    QMutex zár_;
    bool betöltve_ = false;
    QStringList hiányok_;
    angol_adatok adatok_;
    QMultiHash<QString, hozott_alak> hozottak_;
};
