// What explaining inflected forms takes: loading at the first question, the memory that this adds, and a question
// afterwards. The forms are those of the tests' lists; the headwords are those of the dictionaries of this build.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSet>
#include <QTextStream>
#include <algorithm>
#include <vector>

#include "forms/english_forms.h"
#include "forms/hungarian_forms.h"
#include "platform/code_page.h"
#include "print/peak_memory.h"
#include "state/program_folder.h"
#include "support/bench_dictionary.h"

using namespace Qt::StringLiterals;

namespace {

double ms_since(const QElapsedTimer &timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

címszókérdések questions_about(const QString &dictionary) {
    auto all = std::make_shared<QSet<QString>>();
    QStringList with_forms;
    each_entry(bytes_of(staged_program() + u'/' + dictionary), [&](const szócikk &entry) {
        const QString headword = code_page::decode(entry.címszó);
        all->insert(headword);
        if (const qsizetype comma = headword.indexOf(u", "_s); comma > 0) {
            all->insert(headword.first(comma));
            with_forms.append(headword);
        }
    });
    return {.van = [all](QStringView headword) { return all->contains(headword.toString()); },
            .alakosak = [with_forms] { return with_forms; }};
}

QStringList forms_of(const QString &list) {
    QStringList forms;
    for (const QByteArray &line : bytes_of(u"" ZIMBORA_FORM_LISTS "/"_s + list).split('\n')) {
        if (!line.startsWith('#') && line.contains(" | "))
            forms.append(QString::fromUtf8(line).section(u" | "_s, 0, 0));
    }
    return forms;
}

void measure(alakelemző &reader, const QStringList &forms, const QString &label, QTextStream &out) {
    const double before = memory_now();
    QElapsedTimer timer;
    timer.start();
    const std::size_t readings = reader.olvasatok(forms.first()).size();
    const double first = ms_since(timer);
    if (readings == 0)
        qFatal("nothing can be explained");
    const double more = memory_now() - before;
    std::vector<double> times;
    for (const QString &form : forms) {
        timer.start();
        static_cast<void>(reader.olvasatok(form));
        times.push_back(ms_since(timer));
    }
    std::ranges::sort(times);
    out << label.leftJustified(11) << QString::number(first, 'f', 1).rightJustified(8) << u" ms"_s
        << QString::number(more, 'f', 1).rightJustified(8) << u" MiB"_s
        << QString::number(times[times.size() / 2], 'f', 4).rightJustified(10) << u" ms"_s
        << QString::number(times.back(), 'f', 3).rightJustified(9) << u" ms"_s << Qt::endl;
}

}  // namespace

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    const QString folder = staged_program() + u'/' + form_data_folder;
    out << "              first form   more memory   a form (median, longest)\n";
    magyar_alakelemző hungarian(folder, questions_about(hungarian_english_file));
    measure(hungarian, forms_of(u"hungarian.txt"_s), u"Hungarian"_s, out);
    angol_alakelemző english(folder, questions_about(english_hungarian_file));
    measure(english, forms_of(u"english.txt"_s), u"English"_s, out);
    return 0;
}
