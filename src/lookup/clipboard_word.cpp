#include "lookup/clipboard_word.h"

#include <algorithm>

namespace {

bool sorvég(QChar karakter) {
    return karakter == u'\n' || karakter == u'\r' || karakter == QChar::LineSeparator ||
           karakter == QChar::ParagraphSeparator;
}

/// They stand in either direction: what opens in one language closes in another.
constexpr QStringView idézőjelek = u"\"„“”‟«»‹›‚‘’'`";
/// These stand for letters that are left out, too: 'cause.
constexpr QStringView hiányjelek = u"‘’'`";
constexpr QStringView nyitók = u"([{<";
constexpr QStringView csukók = u")]}>";
constexpr QStringView írásjelek = u",.;:!?";

/// Where the bracket `nyit` that the text begins with is closed; −1 when it is not.
qsizetype párja(QStringView szöveg, QChar nyit, QChar csuk) {
    int mélység = 0;
    for (qsizetype i = 0; i < szöveg.size(); ++i) {
        mélység += szöveg[i] == nyit ? 1 : szöveg[i] == csuk ? -1 : 0;
        if (mélység == 0)
            return i;
    }
    return -1;
}

bool magányos_idézőjel(QChar jel, QStringView többi) {
    return idézőjelek.contains(jel) && !hiányjelek.contains(jel) &&
           std::none_of(többi.cbegin(), többi.cend(), [](QChar másik) { return idézőjelek.contains(másik); });
}

bool fölösleges_eleje(QStringView szöveg) {
    const auto zárójel = nyitók.indexOf(szöveg.front());
    if (zárójel >= 0)
        return párja(szöveg, nyitók[zárójel], csukók[zárójel]) < 0;
    return magányos_idézőjel(szöveg.front(), szöveg.sliced(1));
}

bool fölösleges_vége(QStringView szöveg) {
    const auto zárójel = csukók.indexOf(szöveg.back());
    if (zárójel >= 0)
        return !szöveg.contains(nyitók[zárójel]);
    // "word", as it stands in a sentence.
    if (írásjelek.contains(szöveg.back()))
        return idézőjelek.contains(szöveg.front()) || nyitók.contains(szöveg.front());
    return magányos_idézőjel(szöveg.back(), szöveg.chopped(1));
}

bool közrefogott(QStringView szöveg) {
    if (szöveg.size() < 2)
        return false;
    const auto zárójel = nyitók.indexOf(szöveg.front());
    if (zárójel >= 0)
        return párja(szöveg, nyitók[zárójel], csukók[zárójel]) == szöveg.size() - 1;
    return idézőjelek.contains(szöveg.front()) && idézőjelek.contains(szöveg.back());
}

/// The text without the quotes, brackets and blanks around it.
QStringView lehámozva(QStringView szöveg) {
    qsizetype előző = -1;
    while (szöveg.size() != előző && !szöveg.isEmpty()) {
        előző = szöveg.size();
        if (közrefogott(szöveg))
            szöveg = szöveg.sliced(1).chopped(1);
        else if (fölösleges_eleje(szöveg))
            szöveg = szöveg.sliced(1);
        else if (fölösleges_vége(szöveg))
            szöveg.chop(1);
        szöveg = szöveg.trimmed();
    }
    return szöveg;
}

}  // namespace

std::optional<QString> vágólapszó::új_szó(const QString &szöveg) {
    if (szöveg == szöveg_)
        return std::nullopt;
    szöveg_ = szöveg;
    const QStringView sor = QStringView(szöveg).trimmed();
    if (sor.size() > leghosszabb || std::any_of(sor.cbegin(), sor.cend(), sorvég))
        return std::nullopt;
    return lehámozva(sor).toString().toLower();
}

void rövidítve_keres(QString szó, const std::function<std::optional<bool>(const QString &)> &keres) {
    while (keres(szó) == false && !szó.isEmpty())
        szó.chop(1);
}
