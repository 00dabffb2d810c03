#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "platform/files.h"

/// A maintenance tool for word files: checks whether the lines of "magyar.skt" in a folder are in ascending byte order
/// when upper-cased, and if not, writes them upper-cased and sorted as "magyarvg.skt" beside it. Lines end with CR LF.
/// The sort is a plain exchange sort, quadratic in the number of lines: a dictionary-sized file takes long.
class állományátalakító final {
  public:
    /// Gets every text that the tool shows: its state, its progress, its result.
    using felirat = std::function<void(const QString &)>;
    /// Asked while the tool sorts; true gives up, and nothing is written.
    using leállítás = std::function<bool()>;

    állományátalakító(QString mappa, felirat kiír, leállítás megálljon);

    /// Runs the tool; the failure when a file cannot be read or written.
    [[nodiscard]] std::optional<Failure> átalakít();

  private:
    /// False when it was told to stop.
    [[nodiscard]] bool rendez(QList<QByteArray> &sorok) const;

    QString mappa_;
    felirat kiír_;
    leállítás megálljon_;
};
