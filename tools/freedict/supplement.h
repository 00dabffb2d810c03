#pragma once

#include <QString>
#include <QVector>
#include <variant>

#include "freedict/words_of.h"
#include "platform/files.h"

// The project's own entries: files in UTF-8 in the folders english/ and hungarian/ of the supplement, named by the
// language of their headwords. A line is an entry, a comment that begins with "#", or empty:
//
//     headword " | " part of speech " | " meaning "; " meaning …
//
// An English verb begins with "to ", as a headword and as a meaning. The meanings stand in the order in which a learner
// should see them. " <" behind a meaning says that it leads back: the entry of the meaning in the other direction holds
// the headword; " <<" that the headword stands in front there.
namespace freedict {

struct SupplementMeaning {
    enum class Back { no, yes, in_front };

    QString text;
    Back back = Back::no;

    friend bool operator==(const SupplementMeaning &, const SupplementMeaning &) = default;
};

struct SupplementEntry {
    QString headword;
    QString kind;
    QVector<SupplementMeaning> meanings;

    friend bool operator==(const SupplementEntry &, const SupplementEntry &) = default;
};

/// The entries of both directions, by the names of their files and in their order.
struct Supplement {
    QVector<SupplementEntry> english;
    QVector<SupplementEntry> hungarian;

    [[nodiscard]] const QVector<SupplementEntry> &in(Language language) const {
        return language == Language::english ? english : hungarian;
    }
};

/// The entries of one file's bytes; a failure that names `file` and the line when one is not as above, holds a sign
/// that a dictionary file cannot hold, or has an entry of the same headword and part of speech before it.
[[nodiscard]] std::variant<QVector<SupplementEntry>, Failure> parse_supplement(QByteArrayView bytes,
                                                                               const QString &file, Language language);

/// The entries of the files in `folder`; a failure also when one of its folders holds no file.
[[nodiscard]] std::variant<Supplement, Failure> read_supplement(const QString &folder);

}  // namespace freedict
