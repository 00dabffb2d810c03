#pragma once

#include <QMutex>
#include <QString>
#include <memory>
#include <vector>

#include "forms/form_reader.h"
#include "forms/morphology.h"

/// Explains Hungarian forms with the rules and words of Hunspell's hu_HU, which lie in a folder of the program folder
/// beside a list of their check sums.
class magyar_alakelemző final : public alakelemző {
  public:
    using betöltő = std::function<std::unique_ptr<szóelemző>(const QString &rules, const QString &words)>;

    /// `mappa`: the folder of the data.
    magyar_alakelemző(QString mappa, címszókérdések kérdések, betöltő betölt = load_hunspell);

    [[nodiscard]] std::vector<olvasat> olvasatok(const QString &alak) override;
    [[nodiscard]] QStringList hiányok() override;
    [[nodiscard]] QString sor(const QString &alak, const olvasat &olvasat) const override;

  private:
    void betölt();

    const QString mappa_;
    const címszókérdések kérdések_;
    const betöltő betöltő_;
    QMutex zár_;
    bool betöltve_ = false;
    QStringList hiányok_;
    std::unique_ptr<szóelemző> szóelemző_;
};
