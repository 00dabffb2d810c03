#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QVector>
#include <functional>

// The maker of the index of the words of both dictionaries (suggestions/word_index_format.h).
namespace search_data {

/// The words that a word may be a form of, each one word in small letters, in the code page.
using Bases = std::function<QVector<QByteArray>(const QByteArray &word)>;

/// The bytes of the index of these dictionaries. `bases` may be missing; then no form is known of any word.
[[nodiscard]] QByteArray word_index(QByteArrayView english, QByteArrayView hungarian, const Bases &bases);

}  // namespace search_data
