#include "lookup/clipboard_word.h"

#include <algorithm>

namespace {

bool sorvég(QChar karakter) {
    return karakter == u'\n' || karakter == u'\r' || karakter == QChar::LineSeparator ||
           karakter == QChar::ParagraphSeparator;
}

}  // namespace

std::optional<QString> vágólapszó::új_szó(const QString &szöveg) {
    if (szöveg == szöveg_)
        return std::nullopt;
    szöveg_ = szöveg;
    if (szöveg.size() > leghosszabb || std::any_of(szöveg.cbegin(), szöveg.cend(), sorvég))
        return std::nullopt;
    const QString szó = szöveg.trimmed().toLower();
    return szó.isEmpty() ? std::nullopt : std::optional(szó);
}

void rövidítve_keres(QString szó, const std::function<std::optional<bool>(const QString &)> &keres) {
    while (keres(szó) == false && !szó.isEmpty())
        szó.chop(1);
}
