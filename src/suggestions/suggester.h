#pragma once

#include <QString>
#include <QStringList>
#include <QVector>
#include <functional>
#include <thread>
#include <vector>

#include "forms/form_reader.h"
#include "suggestions/headword_list.h"
#include "suggestions/phrase_search.h"

/// Why something is offered for a text, in the order in which the offers stand.
enum class ajánlatfajta {
    /// The text is an inflected form, which is explained: "házaimban = ház + többes szám + …".
    alak,
    /// Other capitals, accents, hyphens, or the English of another country: "Monday" for "monday".
    írásmód,
    /// One or two letters are wrong: "receive" for "recieve".
    elírás,
    /// Parts of one headword that stand apart in the text: "turn it off".
    egység,
};

/// A link: what was probably meant.
struct ajánlat {
    ajánlatfajta fajta{};
    /// The text to be shown, "házaimban = ház + többes szám + birtokos: én + -ban/-ben (hol?)" or the headword alone.
    QString szöveg;
    /// The part of the text that is the link.
    szövegrész hivatkozás = {};
    /// What to search for, as it stands in the search box: "ház", "to go".
    QString címszó;
    /// In which dictionary: the other one than was asked about where that one knows the text. The text does not tell.
    bool angolról = true;
};

/// The answer to a question.
struct ajánlás {
    /// At most `ajánló::legtöbb`, the best first; no headword of a dictionary twice.
    QVector<ajánlat> ajánlatok = {};
    /// In how many phrases all words of the text stand whole; 0 when the index of the phrases is missing.
    int kifejezések = 0;
};

/// What was looked up.
struct ajánlókérdés {
    QString szöveg;
    bool angolról = true;
};

/// Finds out what was probably meant by a text that is no headword.
///
/// Made on any thread, then used on one thread, which should not be the window's: the first question takes a fraction
/// of a second, later ones some milliseconds. Nothing is loaded before the first question, which has everything loaded
/// side by side and waits for what it needs itself; the destructor waits for the rest. munkaszál
/// (suggestions/worker_thread.h) asks from a window.
class ajánló final {
  public:
    static constexpr qsizetype legtöbb = 5;

    /// What suggestions are made of; all of it outlives the object. An analyser may be missing.
    struct források {
        címszólista &angol_címszavak;
        címszólista &magyar_címszavak;
        alakelemző *angol_alakok = nullptr;
        alakelemző *magyar_alakok = nullptr;
        kifejezéskereső *kifejezések = nullptr;
    };
    explicit ajánló(const források &miből) : források_(miből) {}

    /// Answers a question. `elavult` is asked now and then; when it says true the answer is what there is until then
    /// and of no use. An empty answer for a text without a letter and for one of more than 100 characters.
    [[nodiscard]] ajánlás ajánl(const ajánlókérdés &kérdés, const std::function<bool()> &elavult);

    /// What is missing or damaged of all that suggestions are made of, each a sentence for the user that names the
    /// file; loads what has not been loaded.
    [[nodiscard]] QStringList hiányok();

  private:
    void betölt(bool angolról);

    források források_;
    std::vector<std::jthread> betöltők_;
};
