#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <functional>
#include <vector>

/// One way to understand a form that stands in a text: the headword that it belongs to, and what the form says.
struct olvasat {
    /// As headwords are written, an English verb with its "to ": "ház", "to go". Always one that there is.
    QString alapalak;
    /// For a learner, in Hungarian: "többes szám + -ban/-ben (hol?)", "múlt idő". Empty when the form is the headword.
    QString magyarázat;
    /// What stands in front of the base in the form and is no part of it: the beginning of a compound ("konyha" of
    /// "konyhaasztalon", when there is no such headword), a preverb. Mostly empty.
    QString előtag = {};

    bool operator==(const olvasat &) const = default;
};

/// What an analyser asks about the headwords of its language's dictionary. It does so on the thread of its caller.
struct címszókérdések {
    /// True when there is such a headword, an English verb with its "to ". What a headword has behind a comma does not
    /// count: "to go" is true for "to go, went, gone". Capitals count.
    std::function<bool(QStringView címszó)> van;
    /// How common a headword is: the greater the more, in any measure. May be missing.
    std::function<int(QStringView címszó)> gyakoriság = {};
    /// The headwords that bring their forms behind a comma, whole: "to go, went, gone". May be missing.
    std::function<QStringList()> alakosak = {};
};

/// Explains the inflected forms of a language. What it needs is loaded by the first question, which takes a fraction of
/// a second; a later one takes less than a few milliseconds. Any thread may ask; one question waits for another.
class alakelemző {
  public:
    virtual ~alakelemző() = default;

    /// The readings of a form, the likelier first, no two of them alike; those that no headword answers are left out.
    /// Of a compound the longest tail with a headword is the base. When the form itself is a headword, that is a
    /// reading with an empty explanation. Capitals of the form are forgiven. Nothing for a text that is no word, for
    /// one of more than 50 letters, and when the data cannot be read.
    [[nodiscard]] virtual std::vector<olvasat> olvasatok(const QString &alak) = 0;

    /// Loads what is needed, if that has not been done, and returns what is missing or damaged, each a sentence for the
    /// user that names the file; empty when all is there.
    [[nodiscard]] virtual QStringList hiányok() = 0;

    /// The line that explains a form: "házaimban = ház + többes szám + birtokos: én + -ban/-ben (hol?)" for Hungarian,
    /// "went = go (múlt idő)" for English; "lying = lying" without an explanation.
    [[nodiscard]] virtual QString sor(const QString &alak, const olvasat &olvasat) const = 0;
};
