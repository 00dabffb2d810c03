#include "forms/english_contractions.h"

#include <QHash>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

struct tagadott {
    QString alapalak;
    /// What the verb in front of "n't" is.
    QString magyarázat = {};
};

const QString jelen = u"jelen idő"_s;
const QString harmadik = u"egyes szám harmadik személy"_s;
const QString múlt = u"múlt idő"_s;

/// Verbs in front of "n't"; a modal verb has nothing to be said of.
const QHash<QString, tagadott> &tagadott_igék() {
    static const QHash<QString, tagadott> tábla{
        {u"do"_s, {u"to do"_s, jelen}},
        {u"does"_s, {u"to do"_s, harmadik}},
        {u"did"_s, {u"to do"_s, múlt}},
        {u"is"_s, {u"to be"_s, harmadik}},
        {u"are"_s, {u"to be"_s, jelen}},
        {u"ai"_s, {u"to be"_s, jelen}},
        {u"was"_s, {u"to be"_s, múlt}},
        {u"were"_s, {u"to be"_s, múlt}},
        {u"have"_s, {u"to have"_s, jelen}},
        {u"has"_s, {u"to have"_s, harmadik}},
        {u"had"_s, {u"to have"_s, múlt}},
        {u"ca"_s, {u"can"_s}},
        {u"wo"_s, {u"will"_s}},
        {u"sha"_s, {u"shall"_s}},
        {u"could"_s, {u"could"_s}},
        {u"would"_s, {u"would"_s}},
        {u"should"_s, {u"should"_s}},
        {u"might"_s, {u"might"_s}},
        {u"may"_s, {u"may"_s}},
        {u"must"_s, {u"must"_s}},
        {u"need"_s, {u"need"_s}},
        {u"dare"_s, {u"dare"_s}},
        {u"ought"_s, {u"ought"_s}},
    };
    return tábla;
}

QString segédige(const QString &vég) {
    static const QHash<QString, QString> tábla{
        {u"'m"_s, u"am"_s},    {u"'re"_s, u"are"_s},           {u"'ve"_s, u"have"_s},
        {u"'ll"_s, u"will"_s}, {u"'d"_s, u"had vagy would"_s}, {u"'s"_s, u"is vagy has"_s},
    };
    return tábla.value(vég);
}

/// Behind other words "'s" is the possessive.
bool ige_áll_utána(const QString &szó) {
    static const QStringList szavak{u"he"_s,   u"she"_s, u"it"_s,    u"that"_s, u"this"_s, u"there"_s, u"here"_s,
                                    u"what"_s, u"who"_s, u"where"_s, u"when"_s, u"how"_s,  u"why"_s};
    return szavak.contains(szó.toLower());
}

std::vector<olvasat> tagadás(const QString &ige) {
    const auto sor = tagadott_igék().constFind(ige.toLower());
    if (sor == tagadott_igék().constEnd())
        return {};
    const QString tagadás = u"tagadás: not"_s;
    const bool módbeli = sor->magyarázat.isEmpty();
    return {{.alapalak = sor->alapalak, .magyarázat = módbeli ? tagadás : sor->magyarázat + u", "_s + tagadás}};
}

}  // namespace

std::vector<olvasat> összevont_alakok(const QString &alak) {
    if (alak.endsWith(u"n't"))
        return tagadás(alak.chopped(3));
    if (alak.toLower() == u"let's")
        return {{.alapalak = u"to let"_s, .magyarázat = u"+ us"_s}};
    const QString szó = alak.section(u'\'', 0, 0);
    const QString mi = segédige(alak.mid(szó.size()));
    if (szó.isEmpty() || mi.isEmpty() || (alak.endsWith(u"'s") && !ige_áll_utána(szó)))
        return {};
    // "I" is never written small.
    return {{.alapalak = szó, .magyarázat = u"+ "_s + mi}};
}
