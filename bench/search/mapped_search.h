#pragma once

#include <QByteArrayView>
#include <QFile>
#include <QString>

#include "search/hits.h"

/// A plain binary search in a dictionary that is mapped into memory for good. No reading, no opening: about as fast as
/// these files can be searched.
class MappedSearch final {
  public:
    /// Maps the file `path`; ends the program when that fails.
    explicit MappedSearch(const QString &path);

    /// Collects the entries whose headword without its "to " begins with `text`.
    void find(QByteArrayView text, Hits &hits) const;

  private:
    [[nodiscard]] qsizetype first_not_before(QByteArrayView text) const;
    [[nodiscard]] qsizetype line_start(qsizetype position) const;
    [[nodiscard]] QByteArrayView line_at(qsizetype start) const;

    QFile file_;
    QByteArrayView bytes_;
    /// Where the entries begin, behind the notice.
    qsizetype entries_ = 0;
};
