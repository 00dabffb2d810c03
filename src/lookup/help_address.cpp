#include "lookup/help_address.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const QString súgó_helye = u"kavaro\\help\\Kavaro súgó.mht"_s;
const QString készítők_lapja_helye = u"kavaro\\help\\keszito.html"_s;

/// A path as the system has it: a backslash separates folders everywhere.
QString útvonal(QString szöveg) {
    return szöveg.replace(u'\\', u'/');
}

bool útvonal_e(const QString &szöveg) {
    static const QRegularExpression meghajtó(u"^[A-Za-z]:"_s);
    return szöveg.startsWith(u'/') || szöveg.startsWith(u'\\') || meghajtó.match(szöveg).hasMatch();
}

/// What stands behind the last "#" is a place in the document, unless it belongs to the name of a file.
QUrl fájlcím(const QString &szöveg) {
    const QString út = útvonal(szöveg);
    const auto kettőskereszt = út.lastIndexOf(u'#');
    if (kettőskereszt < 0 || files::exists(út))
        return QUrl::fromLocalFile(út);
    QUrl cím = QUrl::fromLocalFile(út.left(kettőskereszt));
    cím.setFragment(út.mid(kettőskereszt + 1));
    return cím;
}

bool benne_van(const QString &mappa, const QString &fájl) {
    return !mappa.isEmpty() && fájl.startsWith(mappa.endsWith(u'/') ? mappa : mappa + u'/');
}

/// An encoded separator or end of text is read by nobody in the same way.
bool kétértelmű(const QUrl &cím) {
    const QString kódolt = cím.path(QUrl::FullyEncoded);
    for (const char16_t *jel : {u"%2F", u"%5C", u"%00"}) {
        if (kódolt.contains(QString::fromUtf16(jel), Qt::CaseInsensitive))
            return true;
    }
    return false;
}

}  // namespace

QString súgócímek::kezdőcím() const {
    return programkönyvtár_ + súgó_helye;
}

QString súgócímek::készítőcím() const {
    return programkönyvtár_ + készítők_lapja_helye;
}

QUrl súgócímek::url(const QString &szöveg) {
    // A number behind the colon is a port.
    static const QRegularExpression séma(u"^[A-Za-z][A-Za-z0-9+-]+:(?!\\d)"_s);
    const QString cím = szöveg.trimmed();
    if (cím.isEmpty())
        return {};
    if (útvonal_e(cím))
        return fájlcím(cím);
    return QUrl(séma.match(cím).hasMatch() ? cím : u"http://"_s + cím);
}

std::optional<Failure> súgócímek::akadály(const QUrl &cím) const {
    const bool web = cím.scheme() == u"http" || cím.scheme() == u"https";
    if (web && cím.isValid() && !cím.host().isEmpty())
        return std::nullopt;
    if (cím.isLocalFile())
        return fájlakadály(cím);
    return Failure{
        u"A(z) „%1” cím itt nem nyitható meg. A súgó ablaka weblapokat (http, https) és a "
        "program saját fájljait mutatja."_s.arg(cím.toDisplayString())};
}

std::variant<QUrl, Failure> súgócímek::nyitható(const QString &szöveg) const {
    QUrl cím = url(szöveg);
    if (!cím.isValid())
        return Failure{u"A(z) „%1” nem cím."_s.arg(szöveg.trimmed())};
    if (auto gond = akadály(cím))
        return *std::move(gond);
    return cím;
}

std::optional<Failure> súgócímek::fájlakadály(const QUrl &cím) const {
    const QString út = cím.toLocalFile();
    const QString megnevezés = QDir::toNativeSeparators(út);
    const QString súgómappa = QFileInfo(útvonal(kezdőcím())).absolutePath();
    const QFileInfo fájl(út);
    // The host is another machine's.
    const bool helyi = cím.host().isEmpty() && !kétértelmű(cím) && fájl.isAbsolute();
    for (const QString &mappa : {QDir(programkönyvtár_).absolutePath(), súgómappa}) {
        if (!helyi || programkönyvtár_.isEmpty())
            break;
        if (fájl.isFile() && benne_van(QFileInfo(mappa).canonicalFilePath(), fájl.canonicalFilePath()))
            return std::nullopt;
        if (!fájl.exists() && benne_van(mappa, QDir::cleanPath(út)))
            return Failure{u"Nem található: „%1”."_s.arg(megnevezés)};
    }
    return Failure{u"A(z) „%1” fájl itt nem nyitható meg: nem a program mappájában van."_s.arg(megnevezés)};
}
