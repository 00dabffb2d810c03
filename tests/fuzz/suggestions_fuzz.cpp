// Asks what was meant by an arbitrary text: the first line of the input. What follows is taken for an index of the
// words of the dictionaries, its fingerprints set right. Every answer keeps its promises, and every search in phrases
// ends.

#include <QtEndian>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "fuzz/expanded.h"
#include "suggestions/suggester.h"
#include "suggestions/word_index_format.h"
#include "support/dictionary_folder.h"

using namespace Qt::StringLiterals;

namespace {

namespace format = szómutató_formátum;

void demand(bool condition) {
    if (!condition)
        std::abort();
}

struct Words {
    QByteArray english = small_dictionary({u"apple:alma÷"_s, u"Monday:hétfő÷"_s, u"to go, went, gone:megy÷jár÷"_s,
                                           u"to turn off:kikapcsol÷"_s, u"ice-cream:fagylalt÷"_s});
    QByteArray hungarian = small_dictionary(
        {u"alma:apple÷"_s, u"felhív:to call up÷"_s, u"gólya:stork÷"_s, u"hűtő:fridge÷cooler÷"_s, u"muszáj:must÷"_s});
    DictionaryFolder folder{english, hungarian};
    címszólista english_list{folder.path(), címszólista::nyelv::angol};
    címszólista hungarian_list{folder.path(), címszólista::nyelv::magyar};
};

QByteArray with_right_fingerprints(QByteArray index, const Words &words) {
    if (index.size() < format::fejléc)
        return index;
    index.replace(qsizetype{0}, format::kezdethossz, format::kezdet, format::kezdethossz);
    char *prints = index.data() + format::ujjlenyomatok;
    qToLittleEndian<quint64>(ujjlenyomat(words.english), prints);
    qToLittleEndian<quint64>(ujjlenyomat(words.hungarian), prints + 8);
    qToLittleEndian<quint64>(ujjlenyomat(QByteArrayView(index).sliced(format::fejléc)), prints + 16);
    return index;
}

void search_phrases(kifejezéskereső &phrases, const QString &text) {
    int rows = 0;
    const int told = phrases.keres(text, {.lap =
                                              [&](const QVector<kifejezés> &page) {
                                                  rows += static_cast<int>(page.size());
                                                  for (const kifejezés &row : page) {
                                                      for (const szövegrész &mark : row.angol_találatok)
                                                          demand(mark.kezdet >= 0 && mark.hossz > 0 &&
                                                                 mark.kezdet + mark.hossz <= row.angol.size());
                                                  }
                                              },
                                          .megálljon = [] { return false; },
                                          .legfeljebb = 1000});
    demand(rows == told && rows <= 1000);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static Words words;
    const QByteArray input = expanded(QByteArrayView(data, static_cast<qsizetype>(size)));
    const qsizetype line_end = input.indexOf('\n');
    const QString text = QString::fromUtf8(line_end < 0 ? input : input.first(line_end));
    words.folder.write("szavak.idx",
                       with_right_fingerprints(line_end < 0 ? QByteArray() : input.mid(line_end + 1), words));
    kifejezéskereső phrases(words.folder.path(), {});
    ajánló suggester(
        {.angol_címszavak = words.english_list, .magyar_címszavak = words.hungarian_list, .kifejezések = &phrases});
    for (const bool from_english : {true, false}) {
        const ajánlás answer = suggester.ajánl({text, from_english}, [] { return false; });
        demand(answer.ajánlatok.size() <= ajánló::legtöbb && answer.kifejezések >= 0);
        for (const ajánlat &offer : answer.ajánlatok) {
            demand((offer.angolról ? words.english_list : words.hungarian_list).van(offer.címszó));
            demand(offer.hivatkozás.kezdet + offer.hivatkozás.hossz <= offer.szöveg.size());
        }
    }
    search_phrases(phrases, text);
    return 0;
}
