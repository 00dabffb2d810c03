#pragma once

#include <QtGlobal>

// The index of the words of both dictionaries, "szavak.idx" beside them. Numbers stand least byte first; a packed
// number has seven bits a byte, the lowest first, and the highest bit of each byte but the last.
//
//     bytes 0–7      "ZIMSZM1" and a zero
//     bytes 8–31     three fingerprints (suggestions/frequency_file.h) of eight bytes: of am.txt, of ma.txt, and of all
//                    that stands in this file from byte 64 on
//     bytes 32–47    four numbers of four bytes: how many words, how many pairs, bytes of the letters, bytes of the
//     places bytes 48–63    zeros letters        the words behind each other, in the program's code page, small, in
//     byte order, each once beginnings     for each word, and the end behind them, where it begins in the letters: four
//     bytes record starts  for each word, and the end behind them, where its record begins in the records: four bytes
//     pairs          for each pair four bytes: where its line begins in am.txt, or with the highest bit set in ma.txt;
//                    and two bytes: where its meaning begins in that line
//     records        for each word: packed, how many words are forms of it, and their numbers, each but the first as
//     the
//                    difference from the one before; then in the same way the pairs that it stands in
//
// A word is a run of letters and digits. Pairs are numbered as they are to be shown: the shorter and more usual first.
namespace szómutató_formátum {

inline constexpr char kezdet[] = "ZIMSZM1";
inline constexpr qsizetype kezdethossz = 8;
inline constexpr qsizetype fejléc = 64;
inline constexpr qsizetype ujjlenyomatok = 8;
inline constexpr qsizetype számok = 32;
inline constexpr qsizetype párhossz = 6;
inline constexpr quint32 másik_szótár = 0x80000000U;

}  // namespace szómutató_formátum
