#include "dictionary/order_tool.h"

#include <QList>
#include <utility>

#include "platform/code_page.h"
#include "platform/text_lines.h"
#include "state/number_text.h"

using namespace Qt::StringLiterals;

namespace {

QList<QByteArray> nagybetűs_sorok(QByteArrayView bytes) {
    QList<QByteArray> sorok;
    while (!bytes.isEmpty())
        sorok.append(code_page::upper(take_line(bytes)));
    return sorok;
}

qsizetype rossz_helyen(const QList<QByteArray> &sorok) {
    qsizetype rossz = 0;
    QByteArray előző;
    for (const QByteArray &sor : sorok) {
        if (sor < előző)
            ++rossz;
        előző = sor;
    }
    return rossz;
}

}  // namespace

állományátalakító::állományátalakító(QString mappa, felirat kiír, leállítás megálljon)
    : mappa_(std::move(mappa)), kiír_(std::move(kiír)), megálljon_(std::move(megálljon)) {}

std::optional<Failure> állományátalakító::átalakít() {
    kiír_(u"Folyamatban..."_s);
    const FileContent bemenet = files::read_whole(mappa_ + u"/magyar.skt"_s);
    if (const auto *hiba = std::get_if<Failure>(&bemenet))
        return *hiba;
    QList<QByteArray> sorok = nagybetűs_sorok(std::get<QByteArray>(bemenet));
    const qsizetype rossz = rossz_helyen(sorok);
    kiír_(számszöveg(rossz) + u',' + számszöveg(sorok.size()));
    if (rossz > 0) {
        if (!rendez(sorok))
            return std::nullopt;
        const QByteArray kimenet = sorok.join("\r\n") + "\r\n";
        if (auto hiba = files::replace_whole(mappa_ + u"/magyarvg.skt"_s, kimenet))
            return hiba;
    }
    kiír_(u"Művelet kész."_s);
    return std::nullopt;
}

bool állományátalakító::rendez(QList<QByteArray> &sorok) const {
    for (qsizetype i = 0; i < sorok.size(); ++i) {
        for (qsizetype j = i + 1; j < sorok.size(); ++j) {
            if (sorok[j] < sorok[i])
                sorok.swapItemsAt(i, j);
        }
        kiír_(számszöveg(i + 1));
        if (megálljon_())
            return false;
    }
    return true;
}
