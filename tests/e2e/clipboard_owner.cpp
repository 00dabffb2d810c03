// clipboard_owner [--hang] <text> [<mark>]: a program that copies, for the whole-program tests. It puts the text on the
// clipboard, says "copied" and offers it until it is killed, also under the type `mark`, as password managers mark what
// nobody should keep. It says "asked what there is" and "asked for the text" when another program does. With --hang it
// stops itself before it answers anybody.

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QStringList>
#include <csignal>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void say(const char *what) {
    std::puts(what);
    std::fflush(stdout);
}

class Offer final : public QMimeData {
  public:
    Offer(const QString &text, const QString &mark) {
        setText(text);
        if (!mark.isEmpty())
            setData(mark, "secret");
        told_ = true;
    }

    QStringList formats() const override {
        if (told_)
            say("asked what there is");
        return QMimeData::formats();
    }

  protected:
    QVariant retrieveData(const QString &type, QMetaType preferred) const override {
        if (told_ && type.startsWith(u"text/plain"_s))
            say("asked for the text");
        return QMimeData::retrieveData(type, preferred);
    }

  private:
    bool told_ = false;
};

}  // namespace

int main(int argc, char *argv[]) {
    const QGuiApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool hangs = arguments.removeAll(u"--hang"_s) > 0;
    QGuiApplication::clipboard()->setMimeData(new Offer(arguments.value(0), arguments.value(1)));
    say("copied");
    if (hangs)
        std::raise(SIGSTOP);
    return QGuiApplication::exec();
}
