#include "suggestions/spelling_variants.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

enum class place { anywhere, at_end, whole_word };

struct Rule {
    QStringView british;
    QStringView american;
    place where;
};

constexpr std::array rules{
    Rule{u"our", u"or", place::anywhere},
    Rule{u"is", u"iz", place::anywhere},
    Rule{u"ys", u"yz", place::anywhere},
    Rule{u"tre", u"ter", place::anywhere},
    Rule{u"bre", u"ber", place::anywhere},
    Rule{u"cre", u"cer", place::at_end},
    Rule{u"gre", u"ger", place::anywhere},
    Rule{u"vre", u"ver", place::at_end},
    Rule{u"ll", u"l", place::anywhere},
    Rule{u"pp", u"p", place::anywhere},
    Rule{u"gg", u"g", place::anywhere},
    Rule{u"tt", u"t", place::anywhere},
    Rule{u"ogue", u"og", place::anywhere},
    Rule{u"ae", u"e", place::anywhere},
    Rule{u"oe", u"e", place::anywhere},
    Rule{u"ence", u"ense", place::anywhere},
    Rule{u"ice", u"ise", place::anywhere},
    Rule{u"amme", u"am", place::anywhere},
    Rule{u"xion", u"ction", place::anywhere},
    Rule{u"eable", u"able", place::at_end},
    Rule{u"dgement", u"dgment", place::anywhere},
    Rule{u"mould", u"mold", place::anywhere},
    Rule{u"moust", u"must", place::anywhere},
    Rule{u"plough", u"plow", place::anywhere},
    Rule{u"grey", u"gray", place::anywhere},
    Rule{u"tyre", u"tire", place::anywhere},
    Rule{u"kerb", u"curb", place::anywhere},
    Rule{u"pyjama", u"pajama", place::anywhere},
    Rule{u"aluminium", u"aluminum", place::anywhere},
    Rule{u"aeroplane", u"airplane", place::whole_word},
    Rule{u"cheque", u"check", place::anywhere},
    Rule{u"sceptic", u"skeptic", place::anywhere},
    Rule{u"storey", u"story", place::anywhere},
    Rule{u"sulph", u"sulf", place::anywhere},
    Rule{u"jewellery", u"jewelry", place::anywhere},
    Rule{u"cosy", u"cozy", place::anywhere},
    Rule{u"doughnut", u"donut", place::anywhere},
    Rule{u"draught", u"draft", place::anywhere},
    Rule{u"through", u"thru", place::anywhere},
    Rule{u"night", u"nite", place::anywhere},
};

bool fits(QStringView text, qsizetype at, QStringView part, place where) {
    const bool ends = at + part.size() == text.size();
    return where == place::anywhere || (ends && (where == place::at_end || at == 0));
}

/// Replaces the part at each of its places, one at a time.
void replace_each(const QString &text, QStringView from, QStringView to, place where, QStringList &variants) {
    for (qsizetype at = text.indexOf(from); at >= 0; at = text.indexOf(from, at + 1)) {
        QString variant = text;
        variant.replace(at, from.size(), to.data(), to.size());
        if (fits(text, at, from, where) && variant != text && !variants.contains(variant))
            variants.append(variant);
    }
}

QStringList replaced_once(const QString &text) {
    QStringList variants;
    for (const Rule &rule : rules) {
        replace_each(text, rule.british, rule.american, rule.where, variants);
        replace_each(text, rule.american, rule.british, rule.where, variants);
    }
    return variants;
}

}  // namespace

QStringList angol_változatok(const QString &szöveg) {
    constexpr qsizetype longest = 40;
    return szöveg.size() > longest ? QStringList() : replaced_once(szöveg.toLower());
}
