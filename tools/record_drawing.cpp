// zimbora-draw <drawing.svg> <recorded drawing>: records how an SVG image is drawn, for a program without the toolkit's
// reader of SVG.
#include <QGuiApplication>
#include <cstdio>

#include "drawing/record.h"
#include "platform/files.h"

using namespace Qt::StringLiterals;

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("Usage: zimbora-draw <drawing.svg> <recorded drawing>\n", stderr);
        return 2;
    }
    const FileContent svg = files::read_whole(arguments[1]);
    std::optional<Failure> failure;
    if (const auto *unreadable = std::get_if<Failure>(&svg)) {
        failure = *unreadable;
    } else {
        const QByteArray recorded = record_drawing(std::get<QByteArray>(svg));
        failure = recorded.isEmpty() ? Failure{u"Ez nem SVG-rajz: "_s + arguments[1]}
                                     : files::replace_whole(arguments[2], recorded);
    }
    if (!failure)
        return 0;
    std::fprintf(stderr, "%s\n", qUtf8Printable(failure->sentence));
    return 1;
}
