#include "freedict/coarse_words.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

// A word, or with "*" every word that begins so. Words with a harmless meaning of their own (cock, tit, faggot, kúra,
// szarv) are kept out by naming the forms.
const QStringList &patterns(Language language) {
    static const QStringList english =
        u"arse arsehole* arseholes ass asshole* bastard bastards bitch* bollocks boner bugger* bullshit* cunt* "
        "cocksucker* dickhead* fag faggot fuck* motherfuck* mothafuck* nigger* nigga* dago kike spic wop "
        "jap gook coon paki piss pissed pissing poof poofter poofta pussy queer shit* shite slut* "
        "tits titties turd turds twat* wank* whore* knobhead crap crappy screw-up jism jizz blowjob"_s.split(u' ');
    static const QStringList hungarian =
        u"baszik basz baszás baszakod* basztat* megbasz* elbasz* kibasz* lebasz* felbasz* összebasz* átbasz* "
        "baszd baszott bassza* buzi* buzer* buzeráns cigó fasz faszt fasza faszok faszfej* faszság* faszkalap "
        "faszkarika faszopó fos fosik fosás* fosos geci* gecis kurva kurvá* kurvul* kúr megkúr* lekúr* "
        "nigger* pina piná* picsa picsá* punci* ribanc* riherongy segg* szajha* "
        "szar szaros* szarik szarás szarok szart szarrágó* szarfészek szarkupac szarság* szarházi* leszar* "
        "beszarik beszari* elszar* kiszar* megszar* összeszar* szarakod* szopat* leszop* faszszopó* "
        "bassz baszó köcsög*  pöcs* pöcsfej rüfke lotyó* lófasz* bibsi zsidrák csöcs* "
        "didkó* megkefél* hímringyó ringyó*"_s.split(u' ');
    return language == Language::english ? english : hungarian;
}

bool matches(const QString &word, const QString &pattern) {
    return pattern.endsWith(u'*') ? word.startsWith(QStringView(pattern).chopped(1)) : word == pattern;
}

}  // namespace

bool is_coarse(const QString &text, Language language) {
    if (text.contains(u"(vulg") || text.contains(u"(durva"))
        return true;
    const QStringList words = words_of(text, language);
    return std::ranges::any_of(words, [&](const QString &word) {
        return std::ranges::any_of(patterns(language), [&](const QString &p) { return matches(word, p); });
    });
}

}  // namespace freedict
