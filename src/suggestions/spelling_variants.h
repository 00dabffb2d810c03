#pragma once

#include <QString>
#include <QStringList>

/// How an English word may be written in another country: "color" for "colour", "organise" for "organize", "theatre"
/// for "theater", "traveller" for "traveler". By rule, so most of them are no words: they are to be held against the
/// headwords. The text itself is not among them; no more than some dozens.
[[nodiscard]] QStringList angol_változatok(const QString &szöveg);
