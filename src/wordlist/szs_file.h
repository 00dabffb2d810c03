#pragma once

#include <QByteArray>
#include <QVector>
#include <variant>

#include "platform/files.h"
#include "wordlist/word_pair_list.h"

// The word-list file (".szs"): text in the program's code page, one pair a line, each line, the last one too, ended by
// CR LF:
//
//     English  ":"  Hungarian  CR LF
//
// The first ":" of a line separates, so the English side cannot hold one and the Hungarian side can. Nothing is
// trimmed. There is no header and no end mark, and no limit to the length of a line. Reading takes the file's size
// twice in memory for the letters of its words and some 50 to 110 bytes for each pair.
namespace szsfájl {

/// The pairs of a file's bytes. Any bytes can be read: a line without ":" is a pair without English, an empty line an
/// empty pair; a line may also end with LF alone, and the last one with nothing.
[[nodiscard]] QVector<szópár> olvas(QByteArrayView bytes);

/// The bytes of a file that olvas() reads as the same pairs; a failure that names the pair when one cannot be written:
/// a character that the code page lacks, a line end in a word, ":" in an English word.
[[nodiscard]] FileContent ír(const QVector<szópár> &párok);

/// Why a file would read `pár` as something else, as a sentence for the user; empty when it would not. That the code
/// page may lack a character is for ír() to find.
[[nodiscard]] QString akadály(const szópár &pár);

}  // namespace szsfájl
