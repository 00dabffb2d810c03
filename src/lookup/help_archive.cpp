#include "lookup/help_archive.h"

#include <QByteArray>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView end_of_headers = u"\n\n";

/// The beginning, in which the headers end with the first empty line.
QString headers(QByteArrayView bytes) {
    constexpr qsizetype longest = 4096;
    const QByteArray beginning = bytes.first(std::min(bytes.size(), longest)).toByteArray().replace("\r\n", "\n");
    const QString text = QString::fromLatin1(beginning);
    const qsizetype end = text.indexOf(end_of_headers);
    return end < 0 ? text : text.first(end + end_of_headers.size());
}

}  // namespace

std::optional<QString> archívumhiba(QByteArrayView bytes) {
    static const QRegularExpression tartalom(
        u"^Content-Type\\s*:"_s, QRegularExpression::CaseInsensitiveOption | QRegularExpression::MultilineOption);
    static const QRegularExpression határ(u"boundary\\s*=\\s*\"?([^\"\\s;]+)"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    if (bytes.isEmpty())
        return u"üres."_s;
    const QString fejléc = headers(bytes);
    if (!tartalom.match(fejléc).hasMatch())
        return u"nem webarchívum."_s;
    const auto elválasztó = határ.match(fejléc);
    const QByteArray utolsó = "--" + elválasztó.captured(1).toLatin1() + "--";
    if (!fejléc.endsWith(end_of_headers) || (elválasztó.hasMatch() && !bytes.contains(utolsó)))
        return u"a vége hiányzik."_s;
    return std::nullopt;
}
