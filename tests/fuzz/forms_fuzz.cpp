// Feeds arbitrary text to the analysers of forms, each line as a word, as the answer of a morphology, as the English
// data and as headwords that bring forms. Whatever comes out is a headword, and no reading comes twice.

#include <QCoreApplication>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "forms/english_forms.h"
#include "forms/form_text.h"
#include "forms/hungarian_readings.h"

using namespace Qt::StringLiterals;

namespace {

void demand(bool condition) {
    if (!condition)
        std::abort();
}

/// Answers every question with the same lines.
class Echo final : public szóelemző {
  public:
    explicit Echo(QByteArrayList lines) : lines_(std::move(lines)) {}
    QByteArrayList elemzések(const QByteArray &) const override { return lines_; }

  private:
    QByteArrayList lines_;
};

void check(const std::vector<olvasat> &readings) {
    for (std::size_t i = 0; i < readings.size(); ++i) {
        demand(!readings[i].alapalak.isEmpty());
        demand(!readings[i].magyarázat.contains(u'_'));
        demand(std::count(readings.begin(), readings.end(), readings[i]) == 1);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QByteArrayList lines = bytes.split('\n').mid(0, 20);
    const címszókérdések questions{.van = [](QStringView word) { return word.size() % 3 != 0; }};
    const Echo echo(lines);
    const angol_adatok english(bytes);
    QStringList headwords;
    for (const QByteArray &line : lines)
        headwords.append(QString::fromUtf8(line));
    const auto brought = hozott_alakok(headwords);
    for (const QString &line : headwords) {
        const QString word = elemezhető_szó(line);
        demand(word.size() <= 50);
        if (word.isEmpty())
            continue;
        check(olvasatkészítő(echo, questions, word).olvasatok());
        check(angol_olvasatkészítő(english, brought, questions, word).olvasatok());
    }
    return 0;
}
