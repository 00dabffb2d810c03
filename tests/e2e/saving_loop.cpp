// Saves a word list again and again, as the program does, until it is killed or has saved it as often as it was told
// to:
//
//     saving_loop <list> [<number of saves> [named]]
//
// The recent files are kept as "recent" in the folder above that of the list. All pairs of a save have its number,
// which follows that of the list's file. Each save that has gone well is told by its number, a line each; the first
// that has not ends the program with a message. With "named", files without a name cannot be had, as on file systems
// that know none: needs the library of failing calls.

#include <dlfcn.h>

#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <limits>

#include "support/fake_dialogs.h"
#include "support/linux/failing_calls.h"
#include "wordlist/szs_file.h"
#include "wordlist/word_list_files.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int pairs = 5000;

class NoWindow final : public szószedetablak {
  public:
    void címbeállít(const QString &) override {}
    void listához_igazít() override {}
    void szövegmezőketürít() override {}
    void változást_mutat() override {}
    void fájllistmutat(const QStringList &) override {}
};

int number_in(const QString &path) {
    const FileContent content = files::read_whole(path);
    const auto *bytes = std::get_if<QByteArray>(&content);
    const QVector<szópár> list = bytes ? szsfájl::olvas(*bytes) : QVector<szópár>();
    return list.isEmpty() ? 0 : list[0].angol.toInt();
}

bool forbid_nameless_files() {
    auto *calls = reinterpret_cast<FailingCallsGetter>(dlsym(RTLD_DEFAULT, failing_calls_name));
    if (calls == nullptr)
        return false;
    *calls() = {"nameless", EOPNOTSUPP};
    return true;
}

}  // namespace

int main(int argc, char *argv[]) {
    if (argc < 2 || argc > 4 || (argc == 4 && !forbid_nameless_files()))
        return 2;
    const QString path = QFileInfo(QString::fromLocal8Bit(argv[1])).absoluteFilePath();
    const int saves = argc > 2 ? QByteArray(argv[2]).toInt() : std::numeric_limits<int>::max();
    global::programállapot state;
    szópárlista list;
    NoWindow window;
    FakeMessageBoxes boxes;
    FakeFileDialogs dialogs;
    szószedetfájlok files(state, list, window, boxes, dialogs, QFileInfo(QFileInfo(path).path()).path() + u"/recent"_s);
    state.aktuálisfájl = path;
    int number = number_in(path);
    for (int saved = 0; saved < saves; ++saved) {
        const QString text = QString::number(++number);
        list.kiürít();
        list.hozzáfűz(QVector<szópár>(pairs, {text, text}));
        files.mnufájlment();
        if (!boxes.told.isEmpty()) {
            std::fprintf(stderr, "%s\n", qPrintable(boxes.told[0]));
            return 1;
        }
        std::printf("%d\n", number);
        std::fflush(stdout);
    }
    return 0;
}
